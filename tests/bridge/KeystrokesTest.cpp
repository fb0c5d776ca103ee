#include "bridge/Keystrokes.h"

#include "forms/RunTimeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace mirelle {

void PrintTo(const KeyStroke& stroke, std::ostream* out) {
    *out << "key " << int(stroke.key) << " character " << std::uint32_t(stroke.character) << " modifiers "
         << int(stroke.modifiers) << " kept " << int(stroke.kept);
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

KeyStroke Typed(char32_t c, Modifiers modifiers = kNoModifiers, Modifiers kept = kNoModifiers) {
    return {.character = c, .modifiers = modifiers, .kept = kept};
}

KeyStroke Pressed(Key key, Modifiers modifiers = kNoModifiers, Modifiers kept = kNoModifiers) {
    return {.key = key, .modifiers = modifiers, .kept = kept};
}

int ErrorOf(std::string_view text) {
    try {
        InterpretKeystrokes(text);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Description(), "Invalid procedure call or argument") << text;
        return int(error.Number());
    }
    return 0;
}

TEST(Keystrokes, PlainTextTypesItself) {
    EXPECT_THAT(InterpretKeystrokes("a B\"1"),
                ElementsAre(Typed(U'a'), Typed(U' '), Typed(U'B'), Typed(U'"'), Typed(U'1')));
    EXPECT_THAT(InterpretKeystrokes(""), IsEmpty());
}

TEST(Keystrokes, SquareBracketsGoThroughAsTheyAre) {
    EXPECT_THAT(InterpretKeystrokes("[1]"), ElementsAre(Typed(U'['), Typed(U'1'), Typed(U']')));
}

TEST(Keystrokes, CharactersBeyondAsciiAreOneStrokeEach) {
    EXPECT_THAT(InterpretKeystrokes("é€😀"), ElementsAre(Typed(U'é'), Typed(U'€'), Typed(U'😀')));
}

TEST(Keystrokes, CarriageReturnAndTildePressEnter) {
    EXPECT_THAT(InterpretKeystrokes("x\r~"),
                ElementsAre(Typed(U'x'), Pressed(Key::Enter), Pressed(Key::Enter)));
}

TEST(Keystrokes, AModifierHoldsForTheNextKeyOnly) {
    EXPECT_THAT(InterpretKeystrokes("+ab"), ElementsAre(Typed(U'a', kShift), Typed(U'b')));
    EXPECT_THAT(InterpretKeystrokes("^a"), ElementsAre(Typed(U'a', kCtrl)));
    EXPECT_THAT(InterpretKeystrokes("%a"), ElementsAre(Typed(U'a', kAlt)));
    EXPECT_THAT(InterpretKeystrokes("%{F4}"), ElementsAre(Pressed(Key::F4, kAlt)));
    EXPECT_THAT(InterpretKeystrokes("+\r"), ElementsAre(Pressed(Key::Enter, kShift)));
    EXPECT_THAT(InterpretKeystrokes("+~"), ElementsAre(Pressed(Key::Enter, kShift)));
}

TEST(Keystrokes, ModifiersAddUpAndTwiceIsOnce) {
    EXPECT_THAT(InterpretKeystrokes("+^%a"), ElementsAre(Typed(U'a', kShift | kCtrl | kAlt)));
    EXPECT_THAT(InterpretKeystrokes("++a"), ElementsAre(Typed(U'a', kShift)));
}

// The blank takes the Shift: two blanks arrive and no plus.
TEST(Keystrokes, APlusInAMaterialNameActsAsShift) {
    EXPECT_THAT(InterpretKeystrokes("l + b"),
                ElementsAre(Typed(U'l'), Typed(U' '), Typed(U' ', kShift), Typed(U'b')));
}

TEST(Keystrokes, ParenthesesInAPathAreSwallowed) {
    EXPECT_EQ(InterpretKeystrokes(R"(C:\\Mats (old)\\a.jpg)"), InterpretKeystrokes(R"(C:\\Mats old\\a.jpg)"));
}

TEST(Keystrokes, AModifierAheadOfAGroupStaysDownThroughIt) {
    EXPECT_THAT(InterpretKeystrokes("+(ab)c"),
                ElementsAre(Typed(U'a', kShift), Typed(U'b', kShift, kShift), Typed(U'c')));
    EXPECT_THAT(InterpretKeystrokes("%({TAB 2})"),
                ElementsAre(Pressed(Key::Tab, kAlt), Pressed(Key::Tab, kAlt, kAlt)));
}

TEST(Keystrokes, TwoChordsLetTheModifierGoInBetween) {
    EXPECT_THAT(InterpretKeystrokes("%a%a"), ElementsAre(Typed(U'a', kAlt), Typed(U'a', kAlt)));
    EXPECT_THAT(InterpretKeystrokes("%(a)%(a)"), ElementsAre(Typed(U'a', kAlt), Typed(U'a', kAlt)));
}

TEST(Keystrokes, GroupsNestAndKeepWhatTheOuterOneHolds) {
    constexpr Modifiers both = kShift | kCtrl;
    EXPECT_THAT(InterpretKeystrokes("+(a^(bc)d)"),
                ElementsAre(Typed(U'a', kShift), Typed(U'b', both, kShift), Typed(U'c', both, both),
                            Typed(U'd', kShift, kShift)));
    EXPECT_THAT(InterpretKeystrokes("+(^(a)^(b))"),
                ElementsAre(Typed(U'a', both), Typed(U'b', both, kShift)));
}

TEST(Keystrokes, AModifierThatNoKeyFollowsDoesNothing) {
    EXPECT_THAT(InterpretKeystrokes("a+"), ElementsAre(Typed(U'a')));
    EXPECT_THAT(InterpretKeystrokes("(a^)b"), ElementsAre(Typed(U'a'), Typed(U'b')));
    EXPECT_THAT(InterpretKeystrokes("+()a"), ElementsAre(Typed(U'a')));
}

struct NamedRow {
    const char* name;
    Key key;
};

class KeyNames : public testing::TestWithParam<NamedRow> {};

TEST_P(KeyNames, PressesItsKeyInAnyCaseAndAsOftenAsTold) {
    const std::string name = GetParam().name;
    std::string lower = name;
    for (char& c : lower)
        c = char(std::tolower(c));
    const KeyStroke stroke = Pressed(GetParam().key);
    EXPECT_THAT(InterpretKeystrokes("{" + name + "}"), ElementsAre(stroke));
    EXPECT_THAT(InterpretKeystrokes("{" + lower + "}"), ElementsAre(stroke));
    EXPECT_THAT(InterpretKeystrokes("{" + name + " 3}"), ElementsAre(stroke, stroke, stroke));
}

INSTANTIATE_TEST_SUITE_P(Keystrokes, KeyNames,
                         testing::Values(NamedRow{"BACKSPACE", Key::Backspace},
                                         NamedRow{"BS", Key::Backspace}, NamedRow{"BKSP", Key::Backspace},
                                         NamedRow{"BREAK", Key::Break}, NamedRow{"CAPSLOCK", Key::CapsLock},
                                         NamedRow{"DELETE", Key::Delete}, NamedRow{"DEL", Key::Delete},
                                         NamedRow{"DOWN", Key::Down}, NamedRow{"END", Key::End},
                                         NamedRow{"ENTER", Key::Enter}, NamedRow{"ESC", Key::Escape},
                                         NamedRow{"HELP", Key::Help}, NamedRow{"HOME", Key::Home},
                                         NamedRow{"INSERT", Key::Insert}, NamedRow{"INS", Key::Insert},
                                         NamedRow{"LEFT", Key::Left}, NamedRow{"NUMLOCK", Key::NumLock},
                                         NamedRow{"PGDN", Key::PageDown}, NamedRow{"PGUP", Key::PageUp},
                                         NamedRow{"PRTSC", Key::PrintScreen}, NamedRow{"RIGHT", Key::Right},
                                         NamedRow{"SCROLLLOCK", Key::ScrollLock}, NamedRow{"TAB", Key::Tab},
                                         NamedRow{"UP", Key::Up}),
                         [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(FunctionKeys, KeyNames,
                         testing::Values(NamedRow{"F1", Key::F1}, NamedRow{"F2", Key::F2},
                                         NamedRow{"F3", Key::F3}, NamedRow{"F4", Key::F4},
                                         NamedRow{"F5", Key::F5}, NamedRow{"F6", Key::F6},
                                         NamedRow{"F7", Key::F7}, NamedRow{"F8", Key::F8},
                                         NamedRow{"F9", Key::F9}, NamedRow{"F10", Key::F10},
                                         NamedRow{"F11", Key::F11}, NamedRow{"F12", Key::F12},
                                         NamedRow{"F13", Key::F13}, NamedRow{"F14", Key::F14},
                                         NamedRow{"F15", Key::F15}, NamedRow{"F16", Key::F16}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Keystrokes, BracesGiveEverySpecialCharacterItself) {
    for (const char c : std::string("{}+^%~()[]"))
        EXPECT_THAT(InterpretKeystrokes(std::string("{") + c + "}"), ElementsAre(Typed(char32_t(c)))) << c;
}

TEST(Keystrokes, ACharacterInBracesIsRepeatedByItsCount) {
    EXPECT_EQ(InterpretKeystrokes("{h 10}"), InterpretKeystrokes("hhhhhhhhhh"));
    EXPECT_EQ(InterpretKeystrokes("{}   2}"), InterpretKeystrokes("{}}{}}"));
    EXPECT_EQ(InterpretKeystrokes("{  2}"), InterpretKeystrokes("  "));
    EXPECT_EQ(InterpretKeystrokes("{é 2}"), InterpretKeystrokes("éé"));
    EXPECT_EQ(InterpretKeystrokes("{\r 2}"), InterpretKeystrokes("~~"));
    EXPECT_THAT(InterpretKeystrokes("{h 0}"), IsEmpty());
}

TEST(Keystrokes, ARepeatedKeyKeepsItsModifierDown) {
    EXPECT_THAT(InterpretKeystrokes("+{LEFT 2}"),
                ElementsAre(Pressed(Key::Left, kShift), Pressed(Key::Left, kShift, kShift)));
}

TEST(Keystrokes, ControlCharactersPressTheKeyThatGivesThem) {
    EXPECT_THAT(InterpretKeystrokes("\b\t\n\r\x1b\x7f"),
                ElementsAre(Pressed(Key::Backspace), Pressed(Key::Tab), Pressed(Key::Enter, kCtrl),
                            Pressed(Key::Enter), Pressed(Key::Escape), Pressed(Key::Backspace, kCtrl)));
}

TEST(Keystrokes, OtherControlCharactersAreNotWellFormed) {
    for (int code = 0; code < 0x20; ++code) {
        if (code == 8 || code == 9 || code == 10 || code == 13 || code == 27) continue;
        EXPECT_EQ(ErrorOf(std::string(1, char(code))), 5) << code;
    }
    EXPECT_EQ(ErrorOf("\xC2\x80"), 5);
    EXPECT_EQ(ErrorOf("\xC2\x9F"), 5);
    EXPECT_EQ(ErrorOf("\xC2\xA0"), 0);
}

TEST(Keystrokes, UnbalancedOrUnknownTextRaisesError5) {
    for (const char* text :
         {"(",       ")",        "(a",        "a)",       "((a)",      "(a))",      "{",         "}",
          "{}",      "{a",       "a}",        "{ENTER",   "{{",        "{}a}",      "{ab}",      "{ENTERS}",
          "{F17}",   "{F0}",     "{LEFT }",   "{LEFT x}", "{LEFT 1x}", "{LEFT 1 }", "{LEFT -1}", "{LEFT 1 2}",
          "{LEFT 3", "{LEFT 1x", "{LEFT\t3}", "{ 3}",     "{é3}"})
        EXPECT_EQ(ErrorOf(text), 5) << text;
}

TEST(Keystrokes, ACountHasABound) {
    EXPECT_EQ(InterpretKeystrokes("{a 32767}").size(), 32767U);
    EXPECT_EQ(ErrorOf("{a 32768}"), 5);
    EXPECT_EQ(ErrorOf("{a 99999999999999999999999999}"), 5);
    EXPECT_EQ(InterpretKeystrokes("{a 00000000000000000002}").size(), 2U);
}

TEST(Keystrokes, AWholeTextHasABound) {
    std::string text;
    for (int i = 0; i < 30; ++i)
        text += "{a 32767}";
    text += "{a 16990}";
    EXPECT_EQ(InterpretKeystrokes(text).size(), kMaxKeyStrokes);
    EXPECT_EQ(ErrorOf(text + "a"), 5);
}

TEST(Keystrokes, BytesThatAreNotUtf8CountAsTheReplacementCharacter) {
    const KeyStroke replaced = Typed(U'\xFFFD');
    EXPECT_THAT(InterpretKeystrokes("a\x80z"), ElementsAre(Typed(U'a'), replaced, Typed(U'z')));
    EXPECT_THAT(InterpretKeystrokes("\xC3"), ElementsAre(replaced));
    EXPECT_THAT(InterpretKeystrokes("\xE2\x82z"), ElementsAre(replaced, replaced, Typed(U'z')));
    EXPECT_THAT(InterpretKeystrokes("\xC0\xAF"), ElementsAre(replaced, replaced));               // overlong
    EXPECT_THAT(InterpretKeystrokes("\xED\xA0\x80"), ElementsAre(replaced, replaced, replaced)); // surrogate
    EXPECT_THAT(InterpretKeystrokes("\xF4\x90\x80\x80"),
                ElementsAre(replaced, replaced, replaced, replaced)); // above 10FFFF
    EXPECT_THAT(InterpretKeystrokes("\xF4\x8F\xBF\xBD"), ElementsAre(Typed(U'\x10FFFD')));
}

TEST(Keystrokes, DeepNestingIsNoTrouble) {
    const std::string text = std::string(200000, '(') + "a" + std::string(200000, ')');
    EXPECT_THAT(InterpretKeystrokes(text), ElementsAre(Typed(U'a')));
}

} // namespace
} // namespace mirelle
