#include "forms/Text.h"
#include "tests/support/ErrorOf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace mirelle {
namespace {

using test::ErrorOf;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Len, CountsUtf16Units) {
    EXPECT_EQ(Len(""), 0);
    EXPECT_EQ(Len("Art_12"), 6);
    EXPECT_EQ(Len("Größe"), 5);
    EXPECT_EQ(Len("漢字"), 2);
    EXPECT_EQ(Len("a😀b"), 4) << "a character beyond U+FFFF takes two units";
    EXPECT_EQ(Len("\xFF\xFE"), 2) << "each malformed byte is one";
    EXPECT_EQ(Len("\xE2\x82"), 2);
    EXPECT_EQ(Len(std::string_view("a\0b", 3)), 3);
}

TEST(Left, TakesCharactersFromTheFront) {
    EXPECT_EQ(Left("Art_12", 3), "Art");
    EXPECT_EQ(Left("Art_12", 0), "");
    EXPECT_EQ(Left("Art_12", 6), "Art_12");
    EXPECT_EQ(Left("Art_12", 99), "Art_12");
    EXPECT_EQ(Left("Größe", 3), "Grö");
    EXPECT_EQ(Left("", 3), "");
    EXPECT_EQ(Left("Art", std::numeric_limits<int>::max()), "Art");
}

TEST(Right, TakesCharactersFromTheEnd) {
    EXPECT_EQ(Right("Art_12", 2), "12");
    EXPECT_EQ(Right("Art_12", 0), "");
    EXPECT_EQ(Right("Art_12", 6), "Art_12");
    EXPECT_EQ(Right("Art_12", 99), "Art_12");
    EXPECT_EQ(Right("Größe", 3), "öße");
    EXPECT_EQ(Right("", 3), "");
    EXPECT_EQ(Right(".TIFF", 4), "TIFF");
}

TEST(LeftAndRight, NeverCutACharacterInTwo) {
    EXPECT_EQ(Left("😀b", 1), "");
    EXPECT_EQ(Left("😀b", 2), "😀");
    EXPECT_EQ(Left("a😀b", 2), "a");
    EXPECT_EQ(Right("a😀", 1), "");
    EXPECT_EQ(Right("a😀", 2), "😀");
    EXPECT_EQ(Right("a😀b", 2), "b");
}

TEST(LeftAndRight, KeepMalformedBytes) {
    EXPECT_EQ(Left("\xFF\xC3x", 2), "\xFF\xC3");
    EXPECT_EQ(Right("x\xE2\x82", 2), "\xE2\x82");
    EXPECT_EQ(Right("\xC3\xA4\xA4", 1), "\xA4");
}

TEST(LeftAndRight, RaiseAnErrorForANegativeCount) {
    EXPECT_EQ(ErrorOf([] { Left("abc", -1); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { Right("abc", -1); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { Left("", -1); }), ErrorNumber::InvalidProcedureCall);
}

TEST(LeftAndRight, TogetherGiveTheTextWhereverItIsParted) {
    for (const std::string text : {"Art_12.jpg", "Größe 漢字 ÿ", "a\xFFz\xC3", "\xE2\x82\xAC\x82"}) {
        for (int count = 0; count <= Len(text); ++count) {
            EXPECT_EQ(Left(text, count) + Right(text, Len(text) - count), text) << count;
        }
    }
}

TEST(Trim, CutsBlanksAndNothingElse) {
    EXPECT_EQ(Trim("  Art 12  "), "Art 12");
    EXPECT_EQ(Trim("Art"), "Art");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim(" \tArt\r\n "), "\tArt\r\n");
    EXPECT_EQ(Trim("\xC2\xA0"
                   "a"
                   "\xC2\xA0"),
              "\xC2\xA0"
              "a"
              "\xC2\xA0")
        << "a no-break space is no blank";
    EXPECT_EQ(Trim(std::string_view(" \0 ", 3)), std::string(1, '\0'));
}

TEST(Split, GivesThePiecesBetweenSeparators) {
    EXPECT_THAT(Split("Art_12", "_"), ElementsAre("Art", "12"));
    EXPECT_THAT(Split("My_brick_3", "_"), ElementsAre("My", "brick", "3"));
    EXPECT_THAT(Split("Art", "_"), ElementsAre("Art"));
    EXPECT_THAT(Split("_", "_"), ElementsAre("", ""));
    EXPECT_THAT(Split("_a__b_", "_"), ElementsAre("", "a", "", "b", ""));
    EXPECT_THAT(Split("a\r\nb\r\n", "\r\n"), ElementsAre("a", "b", ""));
    EXPECT_THAT(Split("aaa", "aa"), ElementsAre("", "a"));
    EXPECT_THAT(Split("a漢b", "漢"), ElementsAre("a", "b"));
}

TEST(Split, GivesNoPieceOfTheEmptyTextAndOneWithoutSeparator) {
    EXPECT_THAT(Split("", "_"), IsEmpty());
    EXPECT_THAT(Split("", ""), IsEmpty());
    EXPECT_THAT(Split("abc", ""), ElementsAre("abc"));
}

TEST(Replace, ReplacesEveryOccurrenceFromTheLeft) {
    EXPECT_EQ(Replace("c:\\a\\b", "\\", "\\\\"), "c:\\\\a\\\\b");
    EXPECT_EQ(Replace("*.jpg", "*", ""), ".jpg");
    EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(Replace("aa", "a", "aa"), "aaaa") << "what is put in is not looked at again";
    EXPECT_EQ(Replace("abc", "x", "y"), "abc");
    EXPECT_EQ(Replace("abc", "", "y"), "abc");
    EXPECT_EQ(Replace("", "a", "b"), "");
    EXPECT_EQ(Replace("Aa", "a", "b"), "Ab") << "case counts";
    EXPECT_EQ(Replace("\xFF_\xFF", "_", "-"), "\xFF-\xFF");
}

TEST(ContainsAndBefore, FindTheFirstMark) {
    EXPECT_TRUE(Contains("Art_12", "_"));
    EXPECT_FALSE(Contains("Art", "_"));
    EXPECT_FALSE(Contains("", "_"));
    EXPECT_FALSE(Contains("ART", "art"));
    EXPECT_EQ(Before("My_brick_3", "_"), "My");
    EXPECT_EQ(Before("_3", "_"), "");
    EXPECT_EQ(Before("Art", "_"), "Art");
    EXPECT_EQ(Before("", "_"), "");
}

TEST(LowerAndUpperCase, MapLettersAndKeepEverythingElse) {
    EXPECT_EQ(LowerCase(".TIFF"), ".tiff");
    EXPECT_EQ(UpperCase("Größe_12.jpg"), "GRÖßE_12.JPG");
    EXPECT_EQ(LowerCase("\xFF\xC3"
                        "A\xE2\x82"),
              "\xFF\xC3"
              "a\xE2\x82")
        << "malformed bytes stay";
    EXPECT_EQ(LowerCase(std::string_view("A\0B", 3)), std::string("a\0b", 3));
    EXPECT_EQ(LowerCase(""), "");
}

TEST(CompareNoCase, IgnoresCase) {
    EXPECT_EQ(CompareNoCase("Art_12.JPG", "aRT_12.jpg"), 0);
    EXPECT_EQ(CompareNoCase("ÄÖÜ Ÿ", "äöü ÿ"), 0);
    EXPECT_EQ(CompareNoCase("ΣΟΦΟΣ", "σοφος"), 0);
    EXPECT_EQ(CompareNoCase("ΣΟΦΟΣ", "σοφοσ"), 0);
    EXPECT_EQ(CompareNoCase("ЁЖ", "ёж"), 0);
    EXPECT_EQ(CompareNoCase("", ""), 0);
    EXPECT_EQ(CompareNoCase("\xFF", "\xFF"), 0);
}

TEST(CompareNoCase, SortsByTheCodesOfTheSmallLetters) {
    const std::string ordered[] = {"",     " a",        "1.jpg", "10.jpg", "2.jpg", "Art",
                                   "art_", "ART_1.jpg", "artA",  "Artz",   "b",     "Z",
                                   "é",    "Я",         "漢",    "😀",      "\x80",  "\xFF"};
    for (std::size_t i = 0; i < std::size(ordered); ++i) {
        for (std::size_t j = 0; j < std::size(ordered); ++j) {
            const int order = CompareNoCase(ordered[i], ordered[j]);
            EXPECT_EQ(order < 0, i < j) << ordered[i] << " and " << ordered[j];
            EXPECT_EQ(order > 0, i > j) << ordered[i] << " and " << ordered[j];
        }
    }
}

} // namespace
} // namespace mirelle
