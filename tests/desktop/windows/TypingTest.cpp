// A console window of another program is brought to the front and typed into; Escape is noticed.
#include "desktop/windows/KeyPlayer.h"
#include "desktop/windows/TopMost.h"
#include "desktop/windows/Wide.h"
#include "desktop/windows/WindowsConsole.h"
#include "desktop/windows/WindowsKeyboard.h"
#include "forms/RunTimeError.h"
#include "tests/desktop/windows/ConsoleProcess.h"
#include "tests/support/ErrorOf.h"

#include <objbase.h>

#include <gmock/gmock.h>

namespace mirelle::test {
namespace {

std::string Braced(const std::string& text) {
    std::string braced;
    for (const char each : text)
        braced += std::string_view("+^%~(){}[]").find(each) == std::string_view::npos
                      ? std::string(1, each)
                      : std::string{'{', each, '}'};
    return braced;
}

void Press(WORD code, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = code;
    input.ki.dwFlags = up ? DWORD(KEYEVENTF_KEYUP) : 0;
    ASSERT_EQ(SendInput(1, &input, sizeof(input)), 1U);
}

class Typing : public testing::Test {
protected:
    void Type(const std::string& text) {
        console_.AppActivate("Ruby Console");
        console_.CreateObject("WScript.Shell")->SendKeys(text);
    }

    WindowsConsole console_;
};

TEST_F(Typing, EveryPrintableCharacterArrives) {
    const ConsoleProcess console("Ruby Console");
    std::string text;
    for (char each = ' '; each <= '~'; ++each)
        text += each;
    Type(Braced(text));
    EXPECT_TRUE(Await([&] { return console.Text() == text; })) << console.Text();
}

// Outside of the program no thread takes part in COM, and the shell object can't be had.
TEST_F(Typing, ByTheSystemsOwnShellObjectOrWithoutItTheTextArrives) {
    const ConsoleProcess console("Ruby Console");
    ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    Type("model.entities.count\rwall {+} brick\r");
    const bool arrived = Await([&] { return console.Text() == "model.entities.count\nwall + brick\n"; });
    CoUninitialize();
    EXPECT_TRUE(arrived) << console.Text();
}

TEST_F(Typing, ALongTextArrivesInOrder) {
    const ConsoleProcess console("Ruby Console");
    std::string text;
    for (int i = 0; i < 60; ++i)
        text += "material.texture = \"C:\\\\Mats\\\\Wall_" + std::to_string(i) + ".jpg\"\n";
    std::string keys = text;
    std::ranges::replace(keys, '\n', '\r');
    Type(keys);
    EXPECT_TRUE(Await([&] { return console.Text() == text; }))
        << console.Text().size() << " of " << text.size();
}

TEST_F(Typing, CharactersThatTheLayoutLacksArrive) {
    const ConsoleProcess console("Ruby Console");
    Type("é字ж€ß\r😀");
    EXPECT_TRUE(Await([&] { return console.Text() == "é字ж€ß\n😀"; })) << console.Text();
}

TEST_F(Typing, SignsOfTheKeystrokeLanguageTakeTheirMeanings) {
    const ConsoleProcess console("Ruby Console");
    Type("wall + brick~(old){+}");
    EXPECT_TRUE(Await([&] { return console.Text() == "wall  brick\nold+"; })) << console.Text();
    Type("^{F2}%{F3}+{HOME}");
    const std::string wanted = "key 113 ctrl\nkey 114 alt\nkey 36 shift\n";
    EXPECT_TRUE(Await([&] { return console.Keys().ends_with(wanted); })) << console.Keys();
}

TEST_F(Typing, AHeldShiftChangesNothing) {
    const ConsoleProcess console("Ruby Console");
    console_.AppActivate("Ruby Console");
    Press(VK_LSHIFT, false);
    console_.CreateObject("WScript.Shell")->SendKeys("held 12");
    EXPECT_TRUE(Await([&] { return console.Text() == "held 12"; })) << console.Text();
    Press(VK_LSHIFT, true);
}

TEST_F(Typing, CapsLockChangesNothing) {
    const ConsoleProcess console("Ruby Console");
    console_.AppActivate("Ruby Console");
    Press(VK_CAPITAL, false);
    Press(VK_CAPITAL, true);
    console_.CreateObject("WScript.Shell")->SendKeys("Small and LARGE");
    const bool arrived = Await([&] { return console.Text() == "Small and LARGE"; });
    Press(VK_CAPITAL, false);
    Press(VK_CAPITAL, true);
    EXPECT_TRUE(arrived) << console.Text();
}

TEST_F(Typing, ATextThatIsNotWellFormedRaisesError5AndTypesNothing) {
    const ConsoleProcess console("Ruby Console");
    EXPECT_EQ(ErrorOf([&] { Type("wall (old"); }), ErrorNumber::InvalidProcedureCall);
    Type("x");
    EXPECT_TRUE(Await([&] { return console.Text() == "x"; })) << console.Text();
}

TEST_F(Typing, WithoutTheWindowActivationRaisesError5) {
    EXPECT_EQ(ErrorOf([&] { console_.AppActivate("Ruby Console"); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(ErrorOf([&] { console_.AppActivate(""); }), ErrorNumber::InvalidProcedureCall);
}

TEST_F(Typing, AWindowThatStaysBehindRaisesError5AndTheShellStillTypes) {
    const ConsoleProcess other("Other");
    console_.AppActivate("Other");
    const ConsoleProcess console("Ruby Console", ConsoleProcess::Hearing::Deaf);
    EXPECT_EQ(ErrorOf([&] { console_.AppActivate("Ruby Console"); }), ErrorNumber::InvalidProcedureCall);
    const std::unique_ptr<ShellObject> shell = console_.CreateObject("WScript.Shell");
    console_.AppActivate("Other");
    shell->SendKeys("x");
    EXPECT_TRUE(Await([&] { return other.Text() == "x"; })) << other.Text();
}

TEST_F(Typing, WithoutAnySuchWindowTheKeysGoWhereTheFocusIs) {
    const ConsoleProcess other("Other");
    console_.AppActivate("Other");
    EXPECT_EQ(ErrorOf([&] { console_.AppActivate("Ruby Console"); }), ErrorNumber::InvalidProcedureCall);
    console_.CreateObject("WScript.Shell")->SendKeys("here");
    EXPECT_TRUE(Await([&] { return other.Text() == "here"; })) << other.Text();
}

TEST_F(Typing, AnotherClassRaisesError429) {
    EXPECT_EQ(ErrorOf([&] { console_.CreateObject("WScript.Network"); }), ErrorNumber::CannotCreateObject);
    EXPECT_NE(console_.CreateObject("wscript.SHELL"), nullptr);
}

TEST_F(Typing, TheExactTitleIsPreferredThenTheBeginningThenTheEnd) {
    const ConsoleProcess end("The Ruby Console");
    console_.AppActivate("Ruby Console");
    EXPECT_EQ(GetForegroundWindow(), end.Window());
    const ConsoleProcess beginning("Ruby Console 2");
    console_.AppActivate("Ruby Console");
    EXPECT_EQ(GetForegroundWindow(), beginning.Window());
    const ConsoleProcess exact("RUBY console");
    console_.AppActivate("Ruby Console");
    EXPECT_EQ(GetForegroundWindow(), exact.Window());
}

TEST_F(Typing, AMinimisedWindowIsOpenedUp) {
    const ConsoleProcess console("Ruby Console");
    ShowWindow(console.Window(), SW_MINIMIZE);
    ASSERT_TRUE(Await([&] { return IsIconic(console.Window()) != 0; }));
    Type("here");
    EXPECT_TRUE(Await([&] { return console.Text() == "here"; })) << console.Text();
    EXPECT_EQ(IsIconic(console.Window()), 0);
}

TEST_F(Typing, EscapeIsNoticedOnceInWhateverWindowItWasPressed) {
    const ConsoleProcess console("Ruby Console");
    console_.AppActivate("Ruby Console");
    WindowsKeyboard keyboard;
    EXPECT_FALSE(keyboard.EscapeWentDown());
    Press(VK_ESCAPE, false);
    Press(VK_ESCAPE, true);
    EXPECT_TRUE(Await([&] { return keyboard.EscapeWentDown(); }));
    EXPECT_FALSE(keyboard.EscapeWentDown());
    Press('X', false);
    Press('X', true);
    EXPECT_TRUE(Await([&] { return console.Text().ends_with("x"); }));
    EXPECT_FALSE(keyboard.EscapeWentDown());
}

TEST_F(Typing, AWindowIsKeptOnTopAndLetGo) {
    const ConsoleProcess console("Ruby Console");
    const auto handle = reinterpret_cast<std::uintptr_t>(console.Window());
    const auto isTopMost = [&] {
        return (GetWindowLongW(console.Window(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    };
    RECT before;
    GetWindowRect(console.Window(), &before);
    EXPECT_TRUE(windows::SetTopMost(handle, true));
    EXPECT_TRUE(isTopMost());
    EXPECT_TRUE(windows::SetTopMost(handle, false));
    EXPECT_FALSE(isTopMost());
    RECT after;
    GetWindowRect(console.Window(), &after);
    EXPECT_TRUE(EqualRect(&before, &after));
    EXPECT_FALSE(windows::SetTopMost(0x7FFFFFF0, true));
}

} // namespace
} // namespace mirelle::test
