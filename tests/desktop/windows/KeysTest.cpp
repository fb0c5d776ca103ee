// What goes to the system for key strokes, before any of it is sent.
#include "desktop/windows/KeyPlayer.h"
#include "desktop/windows/VirtualKeys.h"

#include <string>

#include <gmock/gmock.h>

namespace mirelle::windows {
namespace {

using testing::ElementsAre;

// "+16" is the press of the key of code 16, "-16" its release, "u65" a character that is handed over.
std::vector<std::string> Told(const std::vector<INPUT>& input) {
    std::vector<std::string> told;
    for (const INPUT& each : input) {
        const bool isUp = (each.ki.dwFlags & KEYEVENTF_KEYUP) != 0;
        if ((each.ki.dwFlags & KEYEVENTF_UNICODE) == 0)
            told.push_back((isUp ? "-" : "+") + std::to_string(each.ki.wVk));
        else if (!isUp)
            told.push_back("u" + std::to_string(each.ki.wScan));
    }
    return told;
}

std::vector<std::string> Keys(std::string_view text, bool capsLock = false) {
    return Told(InputOf(InterpretKeystrokes(text), LoadKeyboardLayoutW(L"00000409", 0), capsLock));
}

TEST(KeyInput, PressesAndReleasesTheKeysOfCharacters) {
    EXPECT_THAT(Keys("a"), ElementsAre("+65", "-65"));
    EXPECT_THAT(Keys("A"), ElementsAre("+16", "+65", "-65", "-16"));
    EXPECT_THAT(Keys("\r"), ElementsAre("+13", "-13"));
}

TEST(KeyInput, HoldsTheModifiersOfAGroupThroughout) {
    EXPECT_THAT(Keys("+(ab)"), ElementsAre("+16", "+65", "-65", "+66", "-66", "-16"));
    EXPECT_THAT(Keys("^a"), ElementsAre("+17", "+65", "-65", "-17"));
    EXPECT_THAT(Keys("%{F4}"), ElementsAre("+18", "+115", "-115", "-18"));
}

TEST(KeyInput, HandsOverWhatTheLayoutLacks) {
    EXPECT_THAT(Keys("字"), ElementsAre("u23383"));
    EXPECT_THAT(Keys("😀"), ElementsAre("u55357", "u56832"));
}

TEST(KeyInput, HandsTextOverWhereCapsLockWouldTurnItRound) {
    EXPECT_THAT(Keys("aB", true), ElementsAre("u97", "u66"));
    EXPECT_THAT(Keys("^a", true), ElementsAre("+17", "+65", "-65", "-17"));
}

TEST(KeyInput, MarksTheKeysBesideTheLettersSoThatTheyTypeNoNumbers) {
    for (const INPUT& each :
         InputOf(InterpretKeystrokes("{HOME}{LEFT}{DEL}{PGUP}"), GetKeyboardLayout(0), false))
        EXPECT_NE(each.ki.dwFlags & KEYEVENTF_EXTENDEDKEY, 0U) << each.ki.wVk;
}

TEST(KeyInput, KnowsEveryNamedKey) {
    for (int key = static_cast<int>(Key::Character) + 1; key <= static_cast<int>(Key::F16); ++key)
        EXPECT_TRUE(NamedKey(static_cast<Key>(key))) << key;
    EXPECT_FALSE(NamedKey(Key::Character));
    EXPECT_EQ(NamedKey(Key::F16)->code, VK_F16);
}

} // namespace
} // namespace mirelle::windows
