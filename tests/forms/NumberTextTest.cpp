#include "forms/Numbers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace mirelle {
namespace {

struct DoubleRow {
    double value;
    const char* text;
};

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(CStrOfDouble, WritesTheShortFormOfFifteenDigits) {
    constexpr DoubleRow kRows[] = {
        {0, "0"},
        {-0.0, "0"},
        {1, "1"},
        {-1, "-1"},
        {12, "12"},
        {100, "100"},
        {120.5, "120.5"},
        {39.37, "39.37"},
        {0.5, "0.5"},
        {-0.5, "-0.5"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3, "0.333333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {10.0 / 3, "3.33333333333333"},
        {100000.0 / 3, "33333.3333333333"},
        {0.99999999999999999, "1"},
        {3.14159265358979312, "3.14159265358979"},
        {39.37 * 12, "472.44"},
    };
    for (const DoubleRow& row : kRows)
        EXPECT_EQ(CStr(row.value), row.text);
}

TEST(CStrOfDouble, TakesTheExponentFormFromTenToTheFifteenth) {
    constexpr DoubleRow kRows[] = {
        {1e14, "100000000000000"},
        {123456789012345, "123456789012345"},
        {-123456789012345, "-123456789012345"},
        {99999999999999.9, "99999999999999.9"},
        {999999999999999, "999999999999999"},
        {999999999999999.4, "999999999999999"},
        {999999999999999.9, "1E+15"},
        {1e15, "1E+15"},
        {-1e15, "-1E+15"},
        {1234567890123456, "1.23456789012346E+15"},
        {1e20, "1E+20"},
        {1.5e20, "1.5E+20"},
        {1e99, "1E+99"},
        {1e100, "1E+100"},
        {1.7976931348623157e308, "1.79769313486232E+308"},
    };
    for (const DoubleRow& row : kRows)
        EXPECT_EQ(CStr(row.value), row.text);
}

TEST(CStrOfDouble, TakesTheExponentFormForSmallNumbersThatFifteenDecimalsCannotHold) {
    constexpr DoubleRow kRows[] = {
        {0.1, "0.1"},
        {0.05, "0.05"},
        {0.0001, "0.0001"},
        {0.00012, "0.00012"},
        {0.00001, "0.00001"},
        {0.000012345, "0.000012345"},
        {-0.00001, "-0.00001"},
        {0.0000123456789012, "1.23456789012E-05"},
        {0.00001234567890, "0.0000123456789"},
        {0.12345678901234, "0.12345678901234"},
        {0.012345678901234, "0.012345678901234"},
        {0.0123456789012345, "1.23456789012345E-02"},
        {1.0 / 30, "3.33333333333333E-02"},
        {0.00000999, "9.99E-06"},
        {0.000001, "1E-06"},
        {0.000000123, "1.23E-07"},
        {0.00000015, "1.5E-07"},
        {-0.00000015, "-1.5E-07"},
        {1e-100, "1E-100"},
        {4.9406564584124654e-324, "4.94065645841247E-324"},
    };
    for (const DoubleRow& row : kRows)
        EXPECT_EQ(CStr(row.value), row.text);
}

TEST(CStrOfDouble, NamesWhatIsNoNumber) {
    EXPECT_EQ(CStr(kInfinity), "1.#INF");
    EXPECT_EQ(CStr(-kInfinity), "-1.#INF");
    EXPECT_EQ(CStr(std::numeric_limits<double>::quiet_NaN()), "-1.#IND");
    EXPECT_EQ(CStr(std::numeric_limits<float>::infinity()), "1.#INF");
}

TEST(CStrOfDouble, WritesEveryHundredthAsItsPlainDecimal) {
    for (int hundredths = 1; hundredths <= 200000; ++hundredths) {
        std::string expected = std::to_string(hundredths / 100);
        const int rest = hundredths % 100;
        if (rest != 0) expected += '.' + std::to_string(rest / 10);
        if (rest % 10 != 0) expected += std::to_string(rest % 10);
        ASSERT_EQ(CStr(hundredths / 100.0), expected);
        ASSERT_EQ(CStr(-hundredths / 100.0), '-' + expected);
    }
}

TEST(CStrOfDouble, IsReadBackToFifteenDigits) {
    std::mt19937_64 random(20);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-300, 300);
    for (int i = 0; i < 20000; ++i) {
        const double value = mantissa(random) * std::pow(10.0, exponent(random));
        const std::string text = CStr(value);
        ASSERT_NEAR(Val(text) / value, 1.0, 5.1e-15) << text;
        ASSERT_EQ(TextToNumber(text), Val(text)) << text;
        ASSERT_EQ(CStr(Val(text)), text);
    }
}

TEST(CStrOfSingle, WritesTheShortFormOfSevenDigits) {
    struct Row {
        float value;
        const char* text;
    };
    constexpr Row kRows[] = {
        {0.0F, "0"},
        {-0.0F, "0"},
        {1.0F, "1"},
        {0.1F, "0.1"},
        {-0.5F, "-0.5"},
        {39.37F, "39.37"},
        {1.0F / 3, "0.3333333"},
        {1.0F / 30, "3.333334E-02"},
        {86399.99F, "86399.99"},
        {999999.9F, "999999.9"},
        {9999999.0F, "9999999"},
        {1e7F, "1E+07"},
        {16777216.0F, "1.677722E+07"},
        {-16777216.0F, "-1.677722E+07"},
        {0.015625F, "0.015625"},
        {0.0078125F, "0.0078125"},
        {0.00390625F, "3.90625E-03"},
        {0.00001F, "0.00001"},
        {0.0000123F, "0.0000123"},
        {0.00001234F, "1.234E-05"},
        {0.000001F, "1E-06"},
        {1.23e-7F, "1.23E-07"},
        {3.4028235e38F, "3.402823E+38"},
        {1.4e-45F, "1.401298E-45"},
    };
    for (const Row& row : kRows)
        EXPECT_EQ(CStr(row.value), row.text);
}

TEST(CStrOfIntegers, WritesPlainDigits) {
    EXPECT_EQ(CStr(Integer(0)), "0");
    EXPECT_EQ(CStr(Integer(-32768)), "-32768");
    EXPECT_EQ(CStr(Integer(32767)), "32767");
    EXPECT_EQ(CStr(Long(2147483647)), "2147483647");
    EXPECT_EQ(CStr(Long(std::numeric_limits<std::int32_t>::min())), "-2147483648");
    for (int value = -32768; value <= 32767; ++value) {
        ASSERT_EQ(CStr(static_cast<std::int16_t>(value)), std::to_string(value));
        ASSERT_EQ(CStr(std::int32_t{value}), std::to_string(value));
        ASSERT_EQ(CStr(double{static_cast<double>(value)}), std::to_string(value));
    }
}

TEST(Str, KeepsThePlaceOfTheSignAndDropsTheZeroAheadOfThePoint) {
    constexpr DoubleRow kRows[] = {
        {0, " 0"},         {-0.0, " 0"},   {12, " 12"},          {-12, "-12"},
        {0.5, " .5"},      {-0.5, "-.5"},  {10.5, " 10.5"},      {-10.5, "-10.5"},
        {100, " 100"},     {0.05, " .05"}, {1.5e-7, " 1.5E-07"}, {1e20, " 1E+20"},
        {-1e20, "-1E+20"},
    };
    for (const DoubleRow& row : kRows)
        EXPECT_EQ(Str(row.value), row.text);
}

} // namespace
} // namespace mirelle
