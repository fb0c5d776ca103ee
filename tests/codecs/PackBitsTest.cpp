#include "codecs/tiff/PackBits.h"

#include <gmock/gmock.h>

namespace mirelle::tiff {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The bytes of a file that is nothing but the strip.
ByteArray Decoded(const ByteArray& strip, std::int32_t rows, std::int32_t width, int bits = 8,
                  std::int64_t longest = kLongestArray) {
    NoOperations file(strip);
    return DecodePackBits(file, {0, static_cast<std::int64_t>(strip.size())}, bits, rows, width, longest);
}

TEST(PackBits, CopiesLiteralsAndRepeatsRuns) {
    EXPECT_THAT(Decoded({2, 7, 8, 9, 254, 5, 0, 6}, 1, 7), ElementsAre(7, 8, 9, 5, 5, 5, 6));
}

TEST(PackBits, GivesOneByteForEachPixelWhateverTheStripHolds) {
    EXPECT_THAT(Decoded({0, 7}, 2, 3), ElementsAre(7, 0, 0, 0, 0, 0));
    EXPECT_THAT(Decoded({251, 7, 251, 8}, 2, 3), ElementsAre(7, 7, 7, 7, 7, 7));
}

TEST(PackBits, CutsARunAndALiteralAtTheEndOfTheOutput) {
    EXPECT_THAT(Decoded({1, 1, 2, 129, 9}, 1, 4), ElementsAre(1, 2, 9, 9));
    EXPECT_THAT(Decoded({4, 1, 2, 3, 4, 5}, 1, 3), ElementsAre(1, 2, 3));
}

TEST(PackBits, CopiesWhatThereIsOfALiteralThatTheStripCutsOff) {
    EXPECT_THAT(Decoded({4, 1, 2}, 1, 6), ElementsAre(1, 2, 0, 0, 0, 0));
}

TEST(PackBits, MovesOnOverARunWhoseByteIsMissing) {
    EXPECT_THAT(Decoded({0, 3, 254}, 1, 5), ElementsAre(3, 0, 0, 0, 0));
}

TEST(PackBits, PassesOverANoOperationAtTheStart) {
    EXPECT_THAT(Decoded({128, 128, 0, 7}, 1, 1), ElementsAre(7));
}

TEST(PackBits, SkipsTheByteBehindANoOperationThatFollowsARun) {
    // The 99 is never looked at.
    EXPECT_THAT(Decoded({255, 4, 128, 99, 1, 5, 6}, 1, 4), ElementsAre(4, 4, 5, 6));
    // Nor are those behind a second one.
    EXPECT_THAT(Decoded({255, 4, 128, 99, 128, 98, 1, 5, 6}, 1, 4), ElementsAre(4, 4, 5, 6));
}

TEST(PackBits, SkipsTwiceTheLiteralBehindANoOperationThatFollowsIt) {
    // A literal of 3 leaves 6 behind: the code at 4 moves on by 7.
    EXPECT_THAT(Decoded({2, 1, 2, 3, 128, 9, 9, 9, 9, 9, 9, 0, 7}, 1, 4), ElementsAre(1, 2, 3, 7));
    // A second one moves on by 7 again.
    EXPECT_THAT(Decoded({2, 1, 2, 3, 128, 9, 9, 9, 9, 9, 9, 128, 9, 9, 9, 9, 9, 9, 0, 7}, 1, 4),
                ElementsAre(1, 2, 3, 7));
}

TEST(PackBits, CountsAgainFromTheNextCodeBehindANoOperation) {
    // Run of 2, no-op, literal of 1, no-op over 3 bytes.
    EXPECT_THAT(Decoded({255, 4, 128, 99, 0, 5, 128, 9, 9, 0, 6}, 1, 4), ElementsAre(4, 4, 5, 6));
}

TEST(PackBits, TakesTheLongestRunAndTheLongestLiteral) {
    ByteArray strip = {129, 3, 127};
    for (int i = 0; i < 128; ++i)
        strip.push_back(static_cast<std::uint8_t>(i));
    const ByteArray decoded = Decoded(strip, 2, 128);
    ASSERT_EQ(decoded.size(), 256U);
    EXPECT_EQ(decoded[127], 3);
    EXPECT_EQ(decoded[128], 0);
    EXPECT_EQ(decoded[255], 127);
}

TEST(PackBits, OfUnitsOfTwoBytesMovesByUnits) {
    EXPECT_THAT(Decoded({254, 1, 2, 0, 3, 4}, 1, 4, 16), ElementsAre(1, 2, 1, 2, 1, 2, 3, 4));
    // A no-op moves on by 3 behind a run, by 2 * (2 + 4) + 1 behind a literal of two units.
    EXPECT_THAT(Decoded({255, 1, 2, 128, 9, 9, 0, 3, 4}, 1, 3, 16), ElementsAre(1, 2, 1, 2, 3, 4));
    EXPECT_THAT(Decoded({1, 1, 2, 3, 4, 128, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 0, 5, 6}, 1, 3, 16),
                ElementsAre(1, 2, 3, 4, 5, 6));
}

TEST(PackBits, TakesTheBytesOfItsStripAlone) {
    const ByteArray bytes = {0, 1, 0, 2, 0, 3, 0, 4};
    NoOperations file(bytes);
    EXPECT_THAT(DecodePackBits(file, {2, 4}, 8, 1, 4), ElementsAre(2, 3, 0, 0));
    EXPECT_THAT(DecodePackBits(file, {3, 3}, 8, 1, 4),
                ElementsAre(0, 3, 0, 0)); // a literal of three, cut off
}

TEST(PackBits, ReadsZerosBehindTheFile) {
    const ByteArray bytes = {0, 1, 2, 2};
    NoOperations file(bytes);
    EXPECT_THAT(DecodePackBits(file, {0, kLongestArray}, 8, 1, 6), ElementsAre(1, 2, 0, 0, 0, 0));
    EXPECT_THAT(DecodePackBits(file, {0x7FFFFFFD, kLongestArray}, 8, 1, 2), ElementsAre(0, 0));
}

TEST(PackBits, LeavesASingleByteForAnEmptyPicture) {
    EXPECT_THAT(Decoded({0, 7}, 0, 5), ElementsAre(0));
    // A size beyond 32 bits is a statement that fails, and the size stays 0.
    EXPECT_THAT(Decoded({0, 7}, 65536, 65536), ElementsAre(0));
}

TEST(PackBits, LeavesNothingForASizeThatCannotBe) {
    EXPECT_THAT(Decoded({0, 7}, -1, 5), IsEmpty());
    EXPECT_THAT(Decoded({0, 7}, 10, 10, 8, 99), IsEmpty());
}

} // namespace
} // namespace mirelle::tiff
