#include "forms/Numbers.h"
#include "tests/support/ErrorOf.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace mirelle {
namespace {

using test::ErrorOf;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(RoundHalfEven, PutsEveryTieOnTheEvenNeighbour) {
    for (int whole = -70000; whole <= 70000; ++whole) {
        const int even = whole % 2 == 0 ? whole : whole + 1;
        ASSERT_EQ(RoundHalfEven(whole + 0.5), even) << whole << ".5";
    }
}

TEST(RoundHalfEven, TakesTheNearestBesideATie) {
    for (int whole = -40000; whole <= 40000; ++whole) {
        const double tie = whole + 0.5;
        ASSERT_EQ(RoundHalfEven(whole), whole);
        ASSERT_EQ(RoundHalfEven(std::nextafter(tie, -kInfinity)), whole) << "below " << tie;
        ASSERT_EQ(RoundHalfEven(std::nextafter(tie, kInfinity)), whole + 1) << "above " << tie;
    }
}

TEST(RoundHalfEven, LeavesNumbersThatAreWholeByTheirSize) {
    for (const double large : {4503599627370495.0, 4503599627370497.0, 9007199254740993.0, 1e300}) {
        EXPECT_EQ(RoundHalfEven(large), large);
        EXPECT_EQ(RoundHalfEven(-large), -large);
    }
    EXPECT_EQ(RoundHalfEven(4503599627370494.5), 4503599627370494.0);
    EXPECT_EQ(RoundHalfEven(4503599627370495.5), 4503599627370496.0);
    EXPECT_EQ(RoundHalfEven(kInfinity), kInfinity);
    EXPECT_TRUE(std::isnan(RoundHalfEven(kNaN)));
}

TEST(ToInteger, TakesEveryValueOfItsRange) {
    for (int value = -32768; value <= 32767; ++value)
        ASSERT_EQ(ToInteger(value), value);
}

TEST(ToInteger, RaisesOverflowBeyondItsRangeAfterRounding) {
    EXPECT_EQ(ToInteger(32767.499), 32767);
    EXPECT_EQ(ToInteger(-32768.5), -32768) << "the tie goes to the even neighbour, which fits";
    for (const double beyond :
         {32767.5, 32768.0, -32768.501, -32769.0, 1e10, 1e300, kInfinity, -kInfinity, kNaN}) {
        EXPECT_EQ(ErrorOf([=] { ToInteger(beyond); }), ErrorNumber::Overflow) << beyond;
    }
}

TEST(ToLong, RaisesOverflowBeyondItsRangeAfterRounding) {
    EXPECT_EQ(ToLong(2147483647.499), 2147483647);
    EXPECT_EQ(ToLong(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ToLong(2.5), 2);
    EXPECT_EQ(ToLong(-3.5), -4);
    for (const double beyond :
         {2147483647.5, 2147483648.0, -2147483648.501, -2147483649.0, 1e18, kInfinity, -kInfinity, kNaN}) {
        EXPECT_EQ(ErrorOf([=] { ToLong(beyond); }), ErrorNumber::Overflow) << beyond;
    }
}

TEST(ToSingle, RaisesOverflowBeyondItsRange) {
    constexpr double kMost = std::numeric_limits<float>::max();
    EXPECT_EQ(ToSingle(kMost), std::numeric_limits<float>::max());
    EXPECT_EQ(ToSingle(-kMost), std::numeric_limits<float>::lowest());
    for (const double beyond : {1e39, -1e39, kInfinity})
        EXPECT_EQ(ErrorOf([=] { ToSingle(beyond); }), ErrorNumber::Overflow) << beyond;
}

} // namespace
} // namespace mirelle
