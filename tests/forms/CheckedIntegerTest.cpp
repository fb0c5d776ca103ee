#include "forms/Numbers.h"
#include "tests/support/ErrorOf.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <type_traits>
#include <vector>

namespace mirelle {
namespace {

using test::ErrorOf;

template <class Checked>
class CheckedIntegerTest : public testing::Test {
public:
    using Rep = std::decay_t<decltype(Checked().Value())>;
    static constexpr std::int64_t kMin = std::numeric_limits<Rep>::min();
    static constexpr std::int64_t kMax = std::numeric_limits<Rep>::max();

    // The range's ends, its middle, and where products leave it, each with its neighbours.
    static std::vector<std::int64_t> Borders() {
        const std::int64_t root = sizeof(Rep) == 2 ? 181 : 46340;
        std::vector<std::int64_t> borders;
        for (const std::int64_t around : {kMin, kMin / 2, -root, std::int64_t{0}, root, kMax / 2, kMax}) {
            for (std::int64_t offset = -30; offset <= 30; ++offset) {
                const std::int64_t value = around + offset;
                if (value >= kMin && value <= kMax) borders.push_back(value);
            }
        }
        return borders;
    }

    // The plain twin: the exact result in 64 bits if the range holds it, nothing where it overflows.
    static std::optional<std::int64_t> Limited(std::int64_t exact) {
        if (exact < kMin || exact > kMax) return std::nullopt;
        return exact;
    }

    template <class Step>
    static std::optional<std::int64_t> Run(Step step) {
        std::optional<std::int64_t> result;
        const auto error = ErrorOf([&] { result = step().Value(); });
        EXPECT_EQ(error.value_or(ErrorNumber::Overflow), ErrorNumber::Overflow);
        return result;
    }
};

using Widths = testing::Types<Integer, Long>;
TYPED_TEST_SUITE(CheckedIntegerTest, Widths);

TYPED_TEST(CheckedIntegerTest, StartsAtZero) {
    EXPECT_EQ(TypeParam().Value(), 0);
}

TYPED_TEST(CheckedIntegerTest, ArithmeticIsExactOrRaisesOverflowForAllPairsOfBorders) {
    using Number = typename TestFixture::Rep;
    const auto borders = TestFixture::Borders();
    for (const std::int64_t left : borders) {
        const TypeParam a(static_cast<Number>(left));
        for (const std::int64_t right : borders) {
            const TypeParam b(static_cast<Number>(right));
            ASSERT_EQ(TestFixture::Run([&] { return a + b; }), TestFixture::Limited(left + right))
                << left << '+' << right;
            ASSERT_EQ(TestFixture::Run([&] { return a - b; }), TestFixture::Limited(left - right))
                << left << '-' << right;
            ASSERT_EQ(TestFixture::Run([&] { return a * b; }), TestFixture::Limited(left * right))
                << left << '*' << right;
            if (right != 0) {
                ASSERT_EQ(TestFixture::Run([&] { return a / b; }), TestFixture::Limited(left / right))
                    << left << '/' << right;
            }
        }
    }
}

TYPED_TEST(CheckedIntegerTest, DivisionByZeroRaisesItsOwnError) {
    using Number = typename TestFixture::Rep;
    for (const std::int64_t value : TestFixture::Borders()) {
        const TypeParam a(static_cast<Number>(value));
        ASSERT_EQ(ErrorOf([&] { a / TypeParam(); }), ErrorNumber::DivisionByZero) << value;
    }
}

TYPED_TEST(CheckedIntegerTest, TheLeastValueDividedByMinusOneOverflows) {
    using Number = typename TestFixture::Rep;
    const TypeParam least(std::numeric_limits<Number>::min());
    EXPECT_EQ(ErrorOf([&] { least / TypeParam(Number{-1}); }), ErrorNumber::Overflow);
}

TYPED_TEST(CheckedIntegerTest, FromTakesTheRangeAndNothingBeyond) {
    using Number = typename TestFixture::Rep;
    EXPECT_EQ(TypeParam::From(TestFixture::kMin).Value(), std::numeric_limits<Number>::min());
    EXPECT_EQ(TypeParam::From(TestFixture::kMax).Value(), std::numeric_limits<Number>::max());
    for (const std::int64_t beyond :
         {TestFixture::kMin - 1, TestFixture::kMax + 1, std::numeric_limits<std::int64_t>::min(),
          std::numeric_limits<std::int64_t>::max()}) {
        EXPECT_EQ(ErrorOf([=] { TypeParam::From(beyond); }), ErrorNumber::Overflow) << beyond;
    }
}

TYPED_TEST(CheckedIntegerTest, AFailedStepLeavesItsTarget) {
    using Number = typename TestFixture::Rep;
    TypeParam value(std::numeric_limits<Number>::max());
    EXPECT_FALSE(ResumeNext([&] { value += TypeParam(Number{1}); }));
    EXPECT_EQ(value.Value(), std::numeric_limits<Number>::max());
    value -= TypeParam(Number{7});
    EXPECT_EQ(value.Value(), std::numeric_limits<Number>::max() - 7);
    value = std::numeric_limits<Number>::min();
    EXPECT_FALSE(ResumeNext([&] { value -= TypeParam(Number{1}); }));
    EXPECT_EQ(value.Value(), std::numeric_limits<Number>::min());
}

TEST(CheckedInteger, DivisionCutsTowardZero) {
    EXPECT_EQ((Long(-3850) / Long(100)).Value(), -38);
    EXPECT_EQ((Long(3850) / Long(-100)).Value(), -38);
    EXPECT_EQ((Integer(7) / Integer(2)).Value(), 3);
    EXPECT_EQ((Integer(-7) / Integer(2)).Value(), -3);
    EXPECT_EQ((Integer(-1) / Integer(2)).Value(), 0);
}

TEST(CheckedInteger, AnIntegerBesideALongIsCheckedAsALong) {
    const Long largest(std::numeric_limits<std::int32_t>::max());
    const Integer one(1);
    EXPECT_EQ((Long(32767) + one).Value(), 32768);
    EXPECT_EQ((one + Long(32767)).Value(), 32768);
    EXPECT_EQ((Integer(-32768) - Long(1)).Value(), -32769);
    EXPECT_EQ((Long(-32768) - one).Value(), -32769);
    EXPECT_EQ((Integer(300) * Long(300)).Value(), 90000);
    EXPECT_EQ((Long(300) * Integer(300)).Value(), 90000);
    EXPECT_EQ((Long(90000) / Integer(-7)).Value(), -12857);
    EXPECT_EQ((Integer(9) / Long(-2)).Value(), -4);
    EXPECT_EQ(ErrorOf([&] { largest + one; }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { one + largest; }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { Integer(-2) - largest; }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { largest - Integer(-1); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { largest* Integer(2); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { Integer(2) * largest; }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { largest / Integer(0); }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(ErrorOf([&] { one / Long(0); }), ErrorNumber::DivisionByZero);
}

} // namespace
} // namespace mirelle
