#include "codecs/tiff/NoOperations.h"

#include <gtest/gtest.h>

#include <random>

namespace mirelle::tiff {
namespace {

using Bytes = std::vector<std::uint8_t>;

// By the plain way: step after step.
std::int64_t PlainEnd(const Bytes& bytes, std::int64_t position, std::int64_t stride) {
    while (position < std::ssize(bytes) && bytes[static_cast<std::size_t>(position)] == kNoOperation)
        position += stride;
    return position;
}

// No-ops, but for about one byte in `spacing`.
Bytes Rows(std::size_t length, unsigned spacing, unsigned seed) {
    std::mt19937 random(seed);
    Bytes bytes(length, kNoOperation);
    for (std::uint8_t& byte : bytes)
        if (random() % spacing == 0) byte = static_cast<std::uint8_t>(random());
    return bytes;
}

TEST(NoOperations, EndAtTheFirstOtherByteOfTheirStride) {
    const Bytes bytes = {128, 128, 1, 128, 2, 128, 128};
    NoOperations rows(bytes);
    EXPECT_EQ(rows.EndOf(0, 1), 2);
    EXPECT_EQ(rows.EndOf(1, 2), 7);
    EXPECT_EQ(rows.EndOf(0, 3), 9);
    EXPECT_EQ(rows.EndOf(2, 1), 2);
    EXPECT_EQ(rows.EndOf(6, 257), 263);
    EXPECT_EQ(rows.EndOf(9, 1), 9);
}

TEST(NoOperations, EndWhereThePlainWayEndsHoweverOftenTheyAreAskedFor) {
    for (const unsigned spacing : {2U, 300U, 20000U, 1000000U}) {
        for (const std::size_t length :
             {std::size_t{1}, std::size_t{64}, std::size_t{16448}, std::size_t{60001}}) {
            const Bytes bytes = Rows(length, spacing, spacing);
            NoOperations rows(bytes);
            std::mt19937 random(1);
            for (const std::int64_t stride : {1, 2, 3, 5, 64, 255, 257}) {
                for (int i = 0; i < 200; ++i) {
                    const auto position = static_cast<std::int64_t>(random() % (length / 4 + 1));
                    ASSERT_EQ(rows.EndOf(position, stride), PlainEnd(bytes, position, stride))
                        << position << " by " << stride << " of " << length << ", one in " << spacing;
                }
            }
        }
    }
}

// By the plain way four million steps for each place.
TEST(NoOperations, CostNextToNothingOnceTheyAreKnown) {
    const Bytes bytes(std::size_t{1} << 22, kNoOperation);
    NoOperations rows(bytes);
    for (std::int64_t i = 0; i < 100'000; ++i)
        ASSERT_EQ(rows.EndOf(i, 1), std::ssize(bytes));
}

} // namespace
} // namespace mirelle::tiff
