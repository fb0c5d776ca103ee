#include "forms/Variant.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <string>

namespace mirelle {

// How a failing comparison shows a variant: the place of its kind in the list of kinds, and its text.
void PrintTo(const Variant& value, std::ostream* out) {
    *out << "kind " << value.Get().index() << " \"" << value.Text() << '"';
}

namespace {

using test::ErrorOf;

const Variant kNothing;
const Variant kTrue(true);
const Variant kFalse(false);

Variant Whole(int value) {
    return Integer(static_cast<std::int16_t>(value));
}

Variant LongOf(std::int32_t value) {
    return Long(value);
}

constexpr std::int32_t kLongMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLongMin = std::numeric_limits<std::int32_t>::min();

TEST(Variant, StartsAsNothingWhichReadsAsZeroAndAsTheEmptyText) {
    EXPECT_TRUE(kNothing.IsEmpty());
    EXPECT_EQ(kNothing.Number(), 0);
    EXPECT_EQ(kNothing.Text(), "");
    EXPECT_FALSE(kNothing.IsTrue());
    EXPECT_FALSE(Variant("").IsEmpty());
    EXPECT_FALSE(Whole(0).IsEmpty());
}

TEST(Variant, ReadsAsANumber) {
    EXPECT_EQ(kTrue.Number(), -1);
    EXPECT_EQ(kFalse.Number(), 0);
    EXPECT_EQ(Whole(-32768).Number(), -32768);
    EXPECT_EQ(LongOf(kLongMax).Number(), 2147483647);
    EXPECT_EQ(Variant(0.5F).Number(), 0.5);
    EXPECT_EQ(Variant(39.37).Number(), 39.37);
    EXPECT_EQ(Variant(" 12.5 ").Number(), 12.5);
    EXPECT_EQ(Variant("1e5").Number(), 1e5);
}

TEST(Variant, RaisesTypeMismatchForATextThatIsNoNumber) {
    for (const char* text : {"", "abc", "12b"}) {
        EXPECT_EQ(ErrorOf([=] { Variant(text).Number(); }), ErrorNumber::TypeMismatch) << text;
        EXPECT_EQ(ErrorOf([=] { Variant(text).IsTrue(); }), ErrorNumber::TypeMismatch) << text;
    }
}

TEST(Variant, ReadsAsText) {
    EXPECT_EQ(kTrue.Text(), "True");
    EXPECT_EQ(kFalse.Text(), "False");
    EXPECT_EQ(Whole(-3).Text(), "-3");
    EXPECT_EQ(LongOf(100000).Text(), "100000");
    EXPECT_EQ(Variant(0.1F).Text(), "0.1") << "seven digits";
    EXPECT_EQ(Variant(16777216.0F).Text(), "1.677722E+07");
    EXPECT_EQ(Variant(39.37).Text(), "39.37");
    EXPECT_EQ(Variant(" as it stands ").Text(), " as it stands ");
}

TEST(Variant, IsTrueUnlessItsNumberIsZero) {
    EXPECT_TRUE(kTrue.IsTrue());
    EXPECT_TRUE(Whole(2).IsTrue());
    EXPECT_TRUE(Variant(0.1).IsTrue());
    EXPECT_TRUE(Variant("-1").IsTrue());
    EXPECT_FALSE(kFalse.IsTrue());
    EXPECT_FALSE(Variant("0").IsTrue());
    EXPECT_FALSE(Variant(0.0F).IsTrue());
}

TEST(Variant, EqualsOnlyTheSameKindAndValue) {
    EXPECT_EQ(Whole(1), Whole(1));
    EXPECT_NE(Whole(1), Whole(2));
    EXPECT_NE(Whole(1), LongOf(1));
    EXPECT_NE(Variant(1.0F), Variant(1.0));
    EXPECT_NE(Variant("1"), Whole(1));
    EXPECT_EQ(kNothing, Variant());
    EXPECT_NE(kNothing, Variant(""));
}

struct SumRow {
    const char* name;
    Variant a;
    Variant b;
    Variant sum;
};

TEST(VariantSum, HasTheKindAndValueOfTheTable) {
    const float largest = std::numeric_limits<float>::max();
    const SumRow rows[] = {
        {"nothing and nothing", kNothing, kNothing, Whole(0)},
        {"nothing and Integer", kNothing, Whole(1), Whole(1)},
        {"nothing and Long", kNothing, LongOf(1), LongOf(1)},
        {"nothing and Single", kNothing, 1.5F, 1.5F},
        {"nothing and Double", kNothing, 1.5, 1.5},
        {"nothing and text", kNothing, "abc", "abc"},
        {"nothing and empty text", kNothing, "", ""},
        {"nothing and Boolean", kNothing, kTrue, Whole(-1)},
        {"two Booleans", kTrue, kTrue, Whole(-2)},
        {"Boolean and Integer", kTrue, Whole(10), Whole(9)},
        {"Boolean and Single", kTrue, 1.5F, 0.5F},
        {"Boolean and text", kTrue, "12", 11.0},
        {"Integers", Whole(2), Whole(3), Whole(5)},
        {"Integers up to the border", Whole(32766), Whole(1), Whole(32767)},
        {"Integers over the border", Whole(32767), Whole(1), LongOf(32768)},
        {"Integers down to the border", Whole(-32767), Whole(-1), Whole(-32768)},
        {"Integers under the border", Whole(-32768), Whole(-1), LongOf(-32769)},
        {"Integer extremes", Whole(-32768), Whole(-32768), LongOf(-65536)},
        {"Integer and Boolean under the border", Whole(-32768), kTrue, LongOf(-32769)},
        {"Integer and Long", Whole(1), LongOf(2), LongOf(3)},
        {"Longs", LongOf(1), LongOf(2), LongOf(3)},
        {"Longs up to the border", LongOf(kLongMax - 1), LongOf(1), LongOf(kLongMax)},
        {"Longs over the border", LongOf(kLongMax), LongOf(1), 2147483648.0},
        {"Long and Integer over the border", LongOf(kLongMax), Whole(1), 2147483648.0},
        {"Longs down to the border", LongOf(kLongMin + 1), LongOf(-1), LongOf(kLongMin)},
        {"Longs under the border", LongOf(kLongMin), LongOf(-1), -2147483649.0},
        {"Singles", 1.5F, 2.0F, 3.5F},
        {"Singles round to a Single", 16777216.0F, 1.0F, 16777216.0F},
        {"Single and Integer", 1.5F, Whole(1), 2.5F},
        {"Integer and Single", Whole(1), 1.5F, 2.5F},
        {"Single and Long", 1.5F, LongOf(1), 2.5},
        {"Long and Single", LongOf(1), 1.5F, 2.5},
        {"Single and Double", 1.5F, 1.0, 2.5},
        {"Singles over the range", largest, largest, 2.0 * static_cast<double>(largest)},
        {"Double and Integer", 1.5, Whole(1), 2.5},
        {"Double and Long", 1.5, LongOf(1), 2.5},
        {"Doubles", 0.5, 0.25, 0.75},
        {"numeric text and Integer", "12", Whole(1), 13.0},
        {"Integer and numeric text", Whole(1), " 12 ", 13.0},
        {"numeric text and Single", "12", 0.5F, 12.5},
        {"numeric text and Double", "12", 0.5, 12.5},
        {"two texts", "abc", "def", "abcdef"},
        {"two numeric texts", "12", "1", "121"},
        {"two empty texts", "", "", ""},
    };
    for (const SumRow& row : rows) {
        EXPECT_EQ(row.a + row.b, row.sum) << row.name;
        if (row.a.Get().index() != row.b.Get().index()) {
            EXPECT_EQ(row.b + row.a, row.sum) << row.name << ", turned";
        }
    }
}

TEST(VariantSum, RaisesTypeMismatchForATextThatIsNoNumberBesideANumber) {
    for (const Variant& number : {Whole(1), LongOf(1), Variant(1.0F), Variant(1.0), kTrue}) {
        for (const char* text : {"abc", "", "12b"}) {
            EXPECT_EQ(ErrorOf([&] { Variant(text) + number; }), ErrorNumber::TypeMismatch) << text;
            EXPECT_EQ(ErrorOf([&] { number + Variant(text); }), ErrorNumber::TypeMismatch) << text;
        }
    }
}

TEST(VariantSum, RaisesOverflowBeyondADoublesRange) {
    const double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(ErrorOf([=] { Variant(largest) + Variant(largest); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([=] { Variant(-largest) + Variant(-largest); }), ErrorNumber::Overflow);
}

TEST(VariantSum, CountsPastTheIntegerBorderOneByOne) {
    Variant counter;
    for (int i = 1; i <= 40000; ++i) {
        counter = counter + Whole(1);
        ASSERT_EQ(counter, i <= 32767 ? Whole(i) : LongOf(i));
    }
}

} // namespace
} // namespace mirelle
