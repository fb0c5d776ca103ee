// Laws of the keystroke language, tried on texts that a fixed generator makes.
#include "bridge/Keystrokes.h"

#include "forms/RunTimeError.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>

namespace mirelle {
namespace {

using Random = std::minstd_rand;

std::size_t Below(Random& random, std::size_t bound) {
    return random() % bound;
}

// A piece of text that is well formed by itself and leaves no modifier open.
std::string WellFormed(Random& random, int depth = 0) {
    static const std::string kPieces[] = {"a",      "Z",      " ",       "[",     "é",   "{+}",   "~",
                                          "\r",     "{LEFT}", "{TAB 3}", "{h 2}", "{{}", "{}}",   "+b",
                                          "^{DEL}", "%x",     "\t",      "{} 2}", "()",  "{x 0}", "+^{F5 2}"};
    std::string text;
    for (std::size_t i = Below(random, 6); i > 0; --i) {
        if (depth < 4 && Below(random, 4) == 0) {
            static const char* const kOpenings[] = {"(", "+(", "^(", "%(", "+%("};
            text += kOpenings[Below(random, std::size(kOpenings))] + WellFormed(random, depth + 1) + ")";
        } else {
            const std::string& piece = kPieces[Below(random, std::size(kPieces))];
            text += piece;
        }
    }
    return text;
}

std::vector<KeyStroke> Joined(std::vector<KeyStroke> first, const std::vector<KeyStroke>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST(KeystrokesLaws, TextsOneAfterTheOtherAreTheirStrokesOneAfterTheOther) {
    Random random(1);
    for (int round = 0; round < 2000; ++round) {
        const std::string first = WellFormed(random);
        const std::string second = WellFormed(random);
        EXPECT_EQ(InterpretKeystrokes(first + second),
                  Joined(InterpretKeystrokes(first), InterpretKeystrokes(second)))
            << first << " and " << second;
    }
}

TEST(KeystrokesLaws, AGroupAddsItsModifierToEveryStrokeAndKeepsItAfterTheFirst) {
    Random random(2);
    for (int round = 0; round < 2000; ++round) {
        const std::string text = WellFormed(random);
        std::vector<KeyStroke> expected = InterpretKeystrokes(text);
        for (std::size_t i = 0; i < expected.size(); ++i) {
            expected[i].modifiers |= kShift;
            if (i > 0) expected[i].kept |= kShift;
        }
        EXPECT_EQ(InterpretKeystrokes("+(" + text + ")"), expected) << text;
    }
}

TEST(KeystrokesLaws, AGroupWithoutAModifierChangesNothing) {
    Random random(3);
    for (int round = 0; round < 500; ++round) {
        const std::string text = WellFormed(random);
        EXPECT_EQ(InterpretKeystrokes("(" + text + ")"), InterpretKeystrokes(text)) << text;
    }
}

TEST(KeystrokesLaws, BracesAroundEachCharacterGuardEveryText) {
    for (char c = ' '; c < 127; ++c) {
        const std::vector<KeyStroke> expected{{.character = char32_t(c)}};
        EXPECT_EQ(InterpretKeystrokes(std::string("{") + c + "}"), expected) << c;
    }
}

// Texts of the language's own marks and of any bytes: each is read to its end or refused with error 5.
TEST(KeystrokesLaws, RandomTextIsReadOrRefused) {
    static const std::string kMarks = "+^%~(){}[] 0123aF\r";
    Random random(4);
    int read = 0;
    int refused = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t i = Below(random, 40); i > 0; --i)
            text += Below(random, 8) == 0 ? char(Below(random, 256)) : kMarks[Below(random, kMarks.size())];
        try {
            for (const KeyStroke& stroke : InterpretKeystrokes(text)) {
                EXPECT_EQ(stroke.key == Key::Character, stroke.character != 0);
                EXPECT_EQ(stroke.kept & ~stroke.modifiers, 0);
                EXPECT_LE(stroke.modifiers, kShift | kCtrl | kAlt);
                EXPECT_GE(stroke.key == Key::Character ? stroke.character : U' ', U' ');
                EXPECT_LE(stroke.character, U'\x10FFFF');
            }
            ++read;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::InvalidProcedureCall);
            ++refused;
        }
    }
    EXPECT_GT(read, 500);
    EXPECT_GT(refused, 500);
}

} // namespace
} // namespace mirelle
