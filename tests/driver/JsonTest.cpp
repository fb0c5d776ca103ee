#include "tests/driver/Json.h"

#include "forms/Utf8.h"
#include "tests/driver/Errors.h"

#include <gtest/gtest.h>

#include <limits>

namespace mirelle::driver {
namespace {

TEST(Json, QuotesAndControlCharactersAreEscaped) {
    EXPECT_EQ(JsonString(R"(wall "+" \brick/)"), R"("wall \"+\" \\brick/")");
    EXPECT_EQ(JsonString("a\rb\nc\td\b\f"), R"("a\rb\nc\td\b\f")");
    EXPECT_EQ(JsonString(std::string("\0\x1f\x7f", 3)), R"("\u0000\u001f\u007f")");
}

TEST(Json, WellFormedUtf8IsWrittenAsItIs) {
    EXPECT_EQ(JsonString("Mauer_\u00fc\u4e2d\U0001F3A8"), "\"Mauer_\u00fc\u4e2d\U0001F3A8\"");
}

TEST(Json, EveryMalformedByteBecomesAReplacementCharacter) {
    EXPECT_EQ(JsonString("a\xff\xc0\x80z"), "\"a\uFFFD\uFFFD\uFFFDz\"");
    EXPECT_EQ(JsonString("\xed\xa0\x80"), "\"\uFFFD\uFFFD\uFFFD\""); // a surrogate
    EXPECT_EQ(JsonString("cut \xe4\xb8"), "\"cut \uFFFD\uFFFD\"");
}

TEST(Json, WholeNumbersHaveNoPoint) {
    EXPECT_EQ(JsonNumber(7), "7");
    EXPECT_EQ(JsonNumber(-3.0), "-3");
    EXPECT_EQ(JsonNumber(15360.0F), "15360");
    EXPECT_EQ(JsonNumber(100000.0F), "100000");
    EXPECT_EQ(JsonNumber(-0.0), "0");
    EXPECT_EQ(JsonNumber(999999999999999.0), "999999999999999");
}

TEST(Json, FractionsAreWrittenInTheirShortestForm) {
    EXPECT_EQ(JsonNumber(0.1F), "0.1");
    EXPECT_EQ(JsonNumber(0.1), "0.1");
    EXPECT_EQ(JsonNumber(1.25), "1.25");
    EXPECT_EQ(JsonNumber(1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(JsonNumber(1e20), "1e+20");
}

TEST(Json, WhatIsNoFiniteNumberIsNull) {
    EXPECT_EQ(JsonNumber(std::numeric_limits<double>::infinity()), "null");
    EXPECT_EQ(JsonNumber(std::numeric_limits<float>::quiet_NaN()), "null");
}

TEST(Json, ListsAndObjectsHoldWhatIsJsonAlready) {
    EXPECT_EQ(JsonList({}), "[]");
    EXPECT_EQ(JsonList({"1", "null", "[]"}), "[1,null,[]]");
    EXPECT_EQ(JsonStrings({"text", "a,b"}), R"(["text","a,b"])");
    EXPECT_EQ(JsonObject({{"kind", JsonString("open")}, {"flags", "2050"}}),
              R"({"kind":"open","flags":2050})");
}

std::string ReadWhole(std::string_view input) {
    std::size_t at = 0;
    const std::string text = ReadJsonString(input, at);
    EXPECT_EQ(at, input.size()) << input;
    return text;
}

TEST(Json, StringsAreReadWithTheirEscapes) {
    EXPECT_EQ(ReadWhole(R"("")"), "");
    EXPECT_EQ(ReadWhole(R"("wall + \"brick\" \\ \/")"), R"(wall + "brick" \ /)");
    EXPECT_EQ(ReadWhole(R"("\b\f\n\r\t")"), "\b\f\n\r\t");
    EXPECT_EQ(ReadWhole(R"("\u0041\u00FC\u4e2D\u0000.")"), std::string("A\u00fc\u4e2d\0.", 8));
    EXPECT_EQ(ReadWhole(R"("\ud83c\udfa8")"), "\U0001F3A8");
    EXPECT_EQ(ReadWhole("\"\xff\""), "\xff");
}

TEST(Json, ReadingStopsBehindTheClosingQuote) {
    std::size_t at = 4;
    EXPECT_EQ(ReadJsonString(R"(set "a b" c)", at), "a b");
    EXPECT_EQ(at, 9U);
}

class MalformedString : public testing::TestWithParam<const char*> {};

TEST_P(MalformedString, IsAUsageError) {
    std::size_t at = 0;
    EXPECT_THROW(ReadJsonString(GetParam(), at), UsageError);
}

INSTANTIATE_TEST_SUITE_P(Json, MalformedString,
                         testing::Values("\"", "\"no end", R"("\)", R"("\")", R"("\x41")", R"("\u12")",
                                         R"("\u12G4")", "\"a tab\there\"", R"("\ud83c")", R"("\ud83cx")",
                                         R"("\ud83c\n")", R"("\ud83c\u0041")", R"("\udfa8")"));

TEST(Json, WhatIsWrittenReadsBack) {
    for (char32_t code = 0; code < 0x3000; ++code) {
        std::string text = "x";
        AppendCharacter(text, code);
        EXPECT_EQ(ReadWhole(JsonString(text)), text) << static_cast<unsigned>(code);
    }
}

} // namespace
} // namespace mirelle::driver
