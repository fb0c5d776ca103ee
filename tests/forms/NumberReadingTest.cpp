#include "forms/Numbers.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>
#include <string>

namespace mirelle {
namespace {

using test::ErrorOf;

struct ValRow {
    const char* text;
    double value;
};

TEST(Val, ReadsTheLeadingNumberOfAText) {
    constexpr ValRow kRows[] = {
        {"12", 12},    {"12.jpg", 12},   {"12b", 12},
        {"4b.jpg", 4}, {"00012", 12},    {"-3", -3},
        {"+3", 3},     {"3.25", 3.25},   {".5", 0.5},
        {"-.5", -0.5}, {"5.", 5},        {"1.2.3", 1.2},
        {"1,234", 1},  {"39.37", 39.37}, {"5-", 5},
        {"(5)", 0},    {"$5", 0},        {"123456789012345678", 123456789012345678.0},
    };
    for (const ValRow& row : kRows)
        EXPECT_EQ(Val(row.text), row.value) << '"' << row.text << '"';
}

TEST(Val, IsZeroWhereNoNumberLeads) {
    for (const char* text : {"",
                             " ",
                             ".",
                             "-",
                             "+",
                             "-.",
                             "abc",
                             "jpg",
                             "--5",
                             "+-5",
                             "e5",
                             ".e5",
                             "&",
                             "&H",
                             "&O",
                             "&G5",
                             "&HG",
                             "&O8",
                             "&5",
                             "x12",
                             "\r5",
                             "-&HFF",
                             "\xC2\xA0"
                             "5"}) {
        EXPECT_EQ(Val(text), 0) << '"' << text << '"';
    }
}

TEST(Val, SkipsBlanksTabsAndLineFeedsAnywhere) {
    EXPECT_EQ(Val("   12"), 12);
    EXPECT_EQ(Val(" 1 615 198th Street"), 1615198);
    EXPECT_EQ(Val("\t-\n1 2 . 5"), -12.5);
    EXPECT_EQ(Val("1 e 2"), 100);
    EXPECT_EQ(Val("& H F F"), 255);
}

TEST(Val, TakesAnExponentOnlyWhenItIsWhole) {
    constexpr ValRow kRows[] = {
        {"1e5", 1e5},
        {"1E5", 1e5},
        {"1d5", 1e5},
        {"1D5", 1e5},
        {"1e+5", 1e5},
        {"1.5e-7", 1.5e-7},
        {"1e", 1},
        {"1e+", 1},
        {"1e-", 1},
        {"1e-x", 1},
        {"2d", 2},
        {"1e5e5", 1e5},
        {"1E2.5", 100},
        {"0e999999999999999999999", 0},
        {"7e0000000000000000000001", 70},
    };
    for (const ValRow& row : kRows)
        EXPECT_EQ(Val(row.text), row.value) << '"' << row.text << '"';
}

TEST(Val, ReadsHexadecimalAsSignedValuesOf16Or32Bits) {
    constexpr ValRow kRows[] = {
        {"&H0", 0},
        {"&HFF", 255},
        {"&hff", 255},
        {"&HaA", 170},
        {"&H1@", 1},
        {"&H1`", 1},
        {"&H1G", 1},
        {"&HFg", 15},
        {"&H7FFF", 32767},
        {"&H8000", -32768},
        {"&HFFFF", -1},
        {"&H0000FFFF", -1},
        {"&H10000", 65536},
        {"&HFFFFF", 1048575},
        {"&H7FFFFFFF", 2147483647},
        {"&H80000000", -2147483648.0},
        {"&HFFFFFFFF", -1},
        {"&HFFFF&", 65535},
        {"&H8000&", 32768},
        {"&HFFFFFFFF&", -1},
    };
    for (const ValRow& row : kRows)
        EXPECT_EQ(Val(row.text), row.value) << row.text;
}

TEST(Val, ReadsEveryFourDigitHexadecimalAsItsSigned16BitValue) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    for (unsigned bits = 0; bits <= 0xFFFF; ++bits) {
        const std::string text = {'&',
                                  'H',
                                  kDigits[bits >> 12],
                                  kDigits[(bits >> 8) & 15],
                                  kDigits[(bits >> 4) & 15],
                                  kDigits[bits & 15]};
        const int expected = bits < 0x8000 ? static_cast<int>(bits) : static_cast<int>(bits) - 0x10000;
        ASSERT_EQ(Val(text), expected) << text;
    }
}

TEST(Val, ReadsOctalInTheSameWay) {
    constexpr ValRow kRows[] = {
        {"&O17", 15},        {"&o17", 15},         {"&O178", 15},
        {"&O77777", 32767},  {"&O100000", -32768}, {"&O177777", -1},
        {"&O200000", 65536}, {"&O177777&", 65535}, {"&O37777777777", -1},
    };
    for (const ValRow& row : kRows)
        EXPECT_EQ(Val(row.text), row.value) << row.text;
}

TEST(Val, RaisesOverflowBeyondTheRangeAndReadsTooSmallNumbersAsZero) {
    const std::string digits(400, '9');
    const std::string zeros(400, '0');
    for (const std::string& text :
         {std::string("1e309"), std::string("-1e309"), std::string("1e99999999999999999999"), digits,
          digits + "e-50", "0." + zeros + "1e800", std::string("&H100000000"),
          std::string("&H1000000000000000000000000"), std::string("&O40000000000")}) {
        EXPECT_EQ(ErrorOf([&] { Val(text); }), ErrorNumber::Overflow) << text;
    }
    for (const std::string& text : {std::string("1e-400"), std::string("1e-99999999999999999999"),
                                    "0." + zeros + "1", "1" + zeros + "e-900"}) {
        EXPECT_EQ(Val(text), 0) << text;
    }
    EXPECT_EQ(Val("1.7976931348623157e308"), 1.7976931348623157e308);
    EXPECT_EQ(Val("4.9406564584124654e-324"), 4.9406564584124654e-324);
    EXPECT_EQ(Val("1" + zeros + "e-400"), 1);
    EXPECT_EQ(Val("0." + zeros + "1e401"), 1);
}

TEST(Val, ReadsEveryIntegerThatItWasWrittenFrom) {
    for (int value = -32768; value <= 32767; ++value)
        ASSERT_EQ(Val(std::to_string(value) + ".jpg"), value);
}

TEST(Val, EndsAtAZeroByte) {
    EXPECT_EQ(Val(std::string_view("12\0"
                                   "34",
                                   5)),
              12);
}

struct NumericRow {
    const char* text;
    double value;
};

constexpr NumericRow kNumeric[] = {
    {"0", 0},           {"12", 12},         {" 12 ", 12},    {"\t12\r\n", 12},
    {"012", 12},        {"-5", -5},         {"+5", 5},       {"- 5", -5},
    {"5-", -5},         {"5+", 5},          {"5 -", -5},     {"(5)", -5},
    {"( 5 )", -5},      {" (5) ", -5},      {"1,234", 1234}, {"1,234,567.5", 1234567.5},
    {"1,2,,3", 123},    {"5,", 5},          {"1.", 1},       {".5", 0.5},
    {"-.5", -0.5},      {"1e5", 1e5},       {"1d5", 1e5},    {"1E+5", 1e5},
    {"1.5D-7", 1.5e-7}, {"$5", 5},          {"-$5", -5},     {"$-5", -5},
    {"($5)", -5},       {"5$", 5},          {"$ 5", 5},      {"&HFF", 255},
    {" &hFFFF ", -1},   {"&HFFFF&", 65535}, {"&O17", 15},    {"1e-400", 0},
};

TEST(IsNumeric, TakesAWholeTextThatIsANumber) {
    for (const NumericRow& row : kNumeric)
        EXPECT_TRUE(IsNumeric(row.text)) << '"' << row.text << '"';
}

TEST(TextToNumber, GivesTheValueOfWhateverIsNumeric) {
    for (const NumericRow& row : kNumeric)
        EXPECT_EQ(TextToNumber(row.text), row.value) << '"' << row.text << '"';
}

constexpr const char* kNotNumeric[] = {
    "",
    " ",
    "abc",
    "12b",
    "b12",
    "1.2.3",
    ".",
    "-",
    "+",
    "$",
    "()",
    "(",
    ",",
    ",5",
    ".,5",
    "1.5,0",
    "1 2",
    "--5",
    "-5-",
    "-(5)",
    "(-5)",
    "(5",
    "5)",
    "(5)-",
    "((5))",
    "$$5",
    "$5$",
    "1e",
    "1e+",
    "e5",
    "1e5.5",
    "1e 5",
    "&H",
    "&HFG",
    "&O8",
    "&",
    "&5",
    "-&HFF",
    "&HFF-",
    "1_2",
    "True",
    "12.jpg",
    "\xC2\xA0"
    "5",
    "5\xFF",
    "&H1 2",
};

TEST(IsNumeric, RefusesWhatIsNoNumberAsAWhole) {
    for (const char* text : kNotNumeric)
        EXPECT_FALSE(IsNumeric(text)) << '"' << text << '"';
}

TEST(TextToNumber, RaisesTypeMismatchForWhatIsNotNumeric) {
    for (const char* text : kNotNumeric) {
        EXPECT_EQ(ErrorOf([=] { TextToNumber(text); }), ErrorNumber::TypeMismatch) << '"' << text << '"';
    }
}

TEST(TextToNumber, RaisesOverflowBeyondTheRange) {
    for (const char* text : {"1e309", "-1e309", " 1e309 ", "(1e309)", "&H100000000"}) {
        EXPECT_EQ(ErrorOf([=] { TextToNumber(text); }), ErrorNumber::Overflow) << text;
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
    EXPECT_EQ(ErrorOf([] { TextToNumber("1e309x"); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { TextToNumber("&H100000000x"); }), ErrorNumber::TypeMismatch);
}

TEST(IsNumeric, SeesZeroBytesAsNoPartOfANumber) {
    EXPECT_FALSE(IsNumeric(std::string_view("12\0", 3)));
    EXPECT_FALSE(IsNumeric(std::string_view("\0"
                                            "12",
                                            3)));
}

// Every text of up to four of the characters that numbers are made of.
TEST(NumberReading, HoldsTogetherForAllShortTexts) {
    constexpr std::string_view kAlphabet = "07.,+-eD$() &HF";
    std::string text;
    std::size_t numeric = 0;
    std::size_t compared = 0;
    const auto visit = [&](const auto& self, int more) -> void {
        const auto error = ErrorOf([&] { TextToNumber(text); });
        if (IsNumeric(text)) {
            ++numeric;
            ASSERT_FALSE(error) << text;
            ASSERT_EQ(TextToNumber(' ' + text + '\t'), TextToNumber(text)) << text;
        } else {
            ASSERT_TRUE(error) << text;
        }
        // The two readings agree on texts without the forms that only one of them knows.
        const std::size_t last = text.find_last_not_of(' ');
        const bool signBehind = last != std::string::npos && (text[last] == '+' || text[last] == '-');
        if (IsNumeric(text) && !signBehind && text.find_first_of(",$()") == std::string::npos) {
            ASSERT_EQ(Val(text), TextToNumber(text)) << text;
            ++compared;
        }
        if (more == 0) return;
        for (const char c : kAlphabet) {
            text.push_back(c);
            self(self, more - 1);
            text.pop_back();
        }
    };
    visit(visit, 4);
    EXPECT_GT(numeric, 1000U);
    EXPECT_GT(compared, 400U);
}

} // namespace
} // namespace mirelle
