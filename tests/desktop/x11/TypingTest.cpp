// What is typed arrives, character by character, whatever the layout is and whatever is held or locked.
#include "tests/desktop/x11/X11Desktop.h"

#include "forms/RunTimeError.h"

#include <X11/keysym.h>

#include <algorithm>
#include <random>

namespace mirelle::test {
namespace {

// Mixed letters, digits and signs, and characters that one or the other layout lacks.
std::string LongText(int characters) {
    static const std::vector<std::string> kRare = {"é", "à", "ß", "Ä",  "ñ", "€",
                                                   "Ω", "ж", "Ж", "字", "😀", "ô"};
    std::minstd_rand random(7);
    std::string text;
    for (int i = 0; i < characters; ++i) {
        const unsigned pick = unsigned(random());
        if (i % 80 == 79)
            text += '\r';
        else if (pick % 16 == 0)
            text += kRare[pick / 16 % kRare.size()];
        else
            text += char(' ' + pick / 16 % 95);
    }
    return text;
}

struct TypingRow {
    const char* name;
    const char* layout;
    int group = 0;
    unsigned locks = 0;
    KeySym held = NoSymbol;
    int characters = 100000;
};

void PrintTo(const TypingRow& row, std::ostream* out) {
    *out << row.name;
}

class Typing : public X11Desktop, public testing::WithParamInterface<TypingRow> {};

TEST_P(Typing, ArrivesExactlyAndLeavesTheKeyboardAsItWas) {
    const TypingRow& row = GetParam();
    const std::string text = LongText(row.characters);
    ConsoleProcess console("Ruby Console");
    UseLayout(row.layout, row.group);
    LockModifiers(row.locks);
    const std::vector<KeySym> mapping = KeyboardMapping();
    auto shell = ShellFor("Ruby Console");
    if (row.held != NoSymbol) PressOnKeyboard(row.held);

    shell->SendKeys(Literally(text));
    shell.reset();

    const std::string record = console.TakeRecord();
    const auto difference = std::ranges::mismatch(record, text);
    EXPECT_TRUE(record == text) << "from byte " << difference.in1 - record.begin() << " of " << text.size()
                                << ": " << std::string(difference.in1, record.end()).substr(0, 40)
                                << "\ninstead of: " << std::string(difference.in2, text.end()).substr(0, 40);
    EXPECT_EQ(LockedModifiers(), row.locks);
    EXPECT_EQ(LockedGroup(), row.group);
    EXPECT_EQ(KeyboardMapping(), mapping);
    if (row.held != NoSymbol) {
        EXPECT_TRUE(IsDown(row.held));
        ReleaseOnKeyboard(row.held);
    }
    EXPECT_EQ(HeldModifiers(), 0U);
}

constexpr unsigned kCapsAndNum = LockMask | Mod2Mask;

INSTANTIATE_TEST_SUITE_P(
    Layouts, Typing,
    testing::Values(TypingRow{"American", "us"}, TypingRow{"German", "de"}, TypingRow{"French", "fr"},
                    TypingRow{"AmericanWithLocksOn", "us", 0, kCapsAndNum},
                    TypingRow{"GermanWithLocksOn", "de", 0, kCapsAndNum},
                    TypingRow{"FrenchWithLocksOn", "fr", 0, kCapsAndNum},
                    TypingRow{"AmericanWithShiftHeld", "us", 0, 0, XK_Shift_L},
                    TypingRow{"GermanWithControlHeldAndLocksOn", "de", 0, kCapsAndNum, XK_Control_L},
                    TypingRow{"FrenchWithShiftHeld", "fr", 0, 0, XK_Shift_R},
                    TypingRow{"Russian", "ru", 0, 0, NoSymbol, 400},
                    TypingRow{"RussianBehindAmerican", "us,ru", 1, LockMask, NoSymbol, 20000},
                    TypingRow{"AmericanBeforeRussian", "us,ru", 0, 0, NoSymbol, 20000},
                    TypingRow{"ThreeLayouts", "de,gr,fr", 1, 0, NoSymbol, 20000}),
    [](const auto& row) { return std::string(row.param.name); });

using TypingTest = X11Desktop;

TEST_F(TypingTest, AnotherLayoutOfTheUsersIsUsedWithoutAnyChangeOfTheMapping) {
    ConsoleProcess console("Ruby Console");
    UseLayout("us,ru,fr", 1);
    auto shell = ShellFor("Ruby Console");
    MappingChanges();
    shell->SendKeys("жa@é");
    EXPECT_EQ(MappingChanges(), 0);
    EXPECT_EQ(console.TakeRecord(), "жa@é");
    EXPECT_EQ(LockedGroup(), 1);
}

TEST_F(TypingTest, MoreRareCharactersThanThereAreFreeKeysAllArrive) {
    const std::string text = RareCharacters(100);
    ConsoleProcess console("Ruby Console");
    const std::vector<KeySym> mapping = KeyboardMapping();
    auto shell = ShellFor("Ruby Console");
    shell->SendKeys(text + text);
    shell.reset();
    EXPECT_EQ(console.TakeRecord(), text + text);
    EXPECT_EQ(KeyboardMapping(), mapping);
}

TEST_F(TypingTest, BorrowedKeysServeTheTextsThatFollow) {
    ConsoleProcess console("Ruby Console");
    auto shell = ShellFor("Ruby Console");
    shell->SendKeys("éa");
    EXPECT_GT(MappingChanges(), 0);
    shell->SendKeys("aé");
    EXPECT_EQ(MappingChanges(), 0);
    EXPECT_EQ(console.TakeRecord(), "éaaé");
}

// Media keys are borrowed where no key is free.
TEST_F(TypingTest, AKeyboardWithoutFreeKeysLendsItsMediaKeys) {
    ConsoleProcess console("Ruby Console");
    FillKeys([](const auto& symbols) { return std::ranges::count(symbols, NoSymbol) == std::ssize(symbols); },
             XK_F35);
    const std::vector<KeySym> mapping = KeyboardMapping();
    auto shell = ShellFor("Ruby Console");
    shell->SendKeys("aéb");
    shell.reset();
    EXPECT_EQ(console.TakeRecord(), "aéb");
    EXPECT_EQ(KeyboardMapping(), mapping);
}

TEST_F(TypingTest, WhereNoKeyCanBeBorrowedARareCharacterRaisesError5) {
    ConsoleProcess console("Ruby Console");
    FillKeys([](const auto& symbols) { return symbols.front() == NoSymbol || symbols.front() >= 0x10000000; },
             XK_F35);
    auto shell = ShellFor("Ruby Console");
    try {
        shell->SendKeys("aéb");
        ADD_FAILURE() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::InvalidProcedureCall);
    }
    shell->SendKeys("c");
    EXPECT_EQ(console.TakeRecord(), "ac");
    EXPECT_EQ(HeldModifiers(), 0U);
}

} // namespace
} // namespace mirelle::test
