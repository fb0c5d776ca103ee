// The arrays and the file of the TIFF reader, and the way of rows into a device-independent bitmap.
#include "codecs/tiff/BinaryFile.h"
#include "codecs/tiff/LongArray.h"
#include "codecs/tiff/PadAndFlipRows.h"
#include "codecs/tiff/SwapBytes.h"
#include "tests/support/ErrorOf.h"

#include <gmock/gmock.h>

#include <array>
#include <limits>

namespace mirelle::tiff {
namespace {

using test::ErrorOf;
using testing::ElementsAre;

TEST(BinaryFile, CountsPositionsFromOneAndReadsTheLowByteFirst) {
    const ByteArray bytes = {1, 2, 3, 4, 5, 0xFF, 0x80};
    BinaryFile file(bytes);
    EXPECT_EQ(file.Int16(), 0x0201);
    file.Seek(2);
    EXPECT_EQ(file.Int32(), 0x05040302);
    EXPECT_EQ(file.Int16(), std::int16_t(0x80FF - 0x10000));
    file.Seek(1);
    EXPECT_EQ(file.Byte(), 1);
    EXPECT_THAT(file.Rest(), ElementsAre(2, 3, 4, 5, 0xFF, 0x80));
    EXPECT_EQ(file.Bytes().size(), 7U);
}

TEST(BinaryFile, ReadsZerosBeyondItsEnd) {
    const ByteArray bytes = {1, 2, 3};
    BinaryFile file(bytes);
    EXPECT_EQ(file.Int32(), 0x030201);
    EXPECT_EQ(file.Int32(), 0);
    EXPECT_TRUE(file.Rest().empty());
    file.Seek(std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(file.Int32(), 0);
    std::array<std::uint8_t, 4> filled = {9, 9, 9, 9};
    file.Seek(2);
    file.Fill(filled);
    EXPECT_THAT(filled, ElementsAre(2, 3, 0, 0));
}

TEST(BinaryFile, RefusesPositionsAheadOfItsStartAndBeyondTheNumbers) {
    BinaryFile file({});
    EXPECT_EQ(ErrorOf([&] { file.Seek(0); }), ErrorNumber::BadRecordNumber);
    EXPECT_EQ(ErrorOf([&] { file.Seek(-5); }), ErrorNumber::BadRecordNumber);
    EXPECT_EQ(ErrorOf([&] { file.Seek(std::int64_t{1} << 31); }), ErrorNumber::Overflow);
}

TEST(LongArray, StandsInTheFileElementByElement) {
    const ByteArray bytes = {9, 1, 0, 0, 0, 2, 0, 0, 0x80};
    BinaryFile file(bytes);
    const LongArray array = LongArray::From(file, 2, 2, false);
    EXPECT_EQ(array.UpperBound(), 1);
    EXPECT_EQ(array[0], 1);
    EXPECT_EQ(array[1], std::numeric_limits<std::int32_t>::min() + 2);
    const LongArray swapped = LongArray::From(file, 2, 2, true);
    EXPECT_EQ(swapped[0], 0x01000000);
    EXPECT_EQ(swapped[1], 0x02000080);
}

TEST(LongArray, HoldsZerosWhereTheFileEnds) {
    const ByteArray bytes = {1, 0, 0, 0, 2, 1};
    BinaryFile file(bytes);
    const LongArray array = LongArray::From(file, 1, 1 << 20, false);
    EXPECT_EQ(array.UpperBound(), (1 << 20) - 1);
    EXPECT_EQ(array[1], 0x0102);
    EXPECT_EQ(array[2], 0);
    EXPECT_EQ(array[(1 << 20) - 1], 0);
}

TEST(LongArray, HasBoundsOnlyOnceItIsSized) {
    BinaryFile file({});
    EXPECT_EQ(LongArray::Of(7)[0], 7);
    EXPECT_EQ(LongArray::Of(7).UpperBound(), 0);
    EXPECT_EQ(ErrorOf([] { (void)LongArray().UpperBound(); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { LongArray::From(file, 1, 0, false); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { LongArray::From(file, 1, -2, false); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { LongArray::From(file, 1, (1 << 28) + 1, false); }), ErrorNumber::OutOfMemory);
    EXPECT_EQ(ErrorOf([&] { LongArray::From(file, 1, 1 << 28, false); }), std::nullopt);
    EXPECT_EQ(ErrorOf([&] { LongArray::From(file, 0, 2, false); }), ErrorNumber::BadRecordNumber);
}

TEST(LongArray, TakesNoMoreMemoryForMoreElements) {
    const ByteArray bytes(1 << 20, 1);
    BinaryFile file(bytes);
    // As often as a directory can tell one.
    LongArray array;
    for (int i = 0; i < 32767; ++i)
        array = LongArray::From(file, 1, 1 << 28, false);
    EXPECT_EQ(array[(1 << 18) - 1], 0x01010101);
}

TEST(ByteArrays, HaveBoundsOnlyOnceTheyAreSized) {
    ByteArray array;
    EXPECT_EQ(ErrorOf([&] { UpperBound(array); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { Resize(array, 0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { Resize(array, 6, 5); }), ErrorNumber::OutOfMemory);
    EXPECT_EQ(ErrorOf([&] { Resize(array, kLongestArray + 1); }), ErrorNumber::OutOfMemory);
    Resize(array, 2, 5);
    array[1] = 3;
    Resize(array, 5, 5);
    EXPECT_THAT(array, ElementsAre(0, 3, 0, 0, 0));
    EXPECT_EQ(UpperBound(array), 4);
}

TEST(SwapBytes, ReversesTwoAndFourBytes) {
    std::int16_t number = 0x1234;
    SwapBytesInt(number);
    EXPECT_EQ(number, 0x3412);
    number = 0x00FF;
    SwapBytesInt(number);
    EXPECT_EQ(number, std::int16_t(-256));
    std::int32_t wide = 0x12345678;
    SwapBytesLong(wide);
    EXPECT_EQ(wide, 0x78563412);
    wide = 0x000000FE;
    SwapBytesLong(wide);
    EXPECT_EQ(wide, -0x02000000);
}

TEST(PadAndFlipRows, FillsRowsUpToFourBytesAndTurnsThemRound) {
    ByteArray image = {1, 2, 3, 4, 5, 6};
    PadAndFlipRows(image, 2, 3);
    EXPECT_THAT(image, ElementsAre(4, 5, 6, 0, 1, 2, 3, 0));
    image = {1, 2, 3, 4, 5, 6, 7, 8};
    PadAndFlipRows(image, 2, 4);
    EXPECT_THAT(image, ElementsAre(5, 6, 7, 8, 1, 2, 3, 4));
    image = {1, 2, 3, 4, 5};
    PadAndFlipRows(image, 1, 5);
    EXPECT_THAT(image, ElementsAre(1, 2, 3, 4, 5, 0, 0, 0));
}

TEST(PadAndFlipRows, DropsWhatStandsBehindTheLastRow) {
    ByteArray image = {1, 2, 3, 4, 9, 9, 9};
    PadAndFlipRows(image, 2, 2);
    EXPECT_THAT(image, ElementsAre(3, 4, 0, 0, 1, 2, 0, 0));
}

TEST(PadAndFlipRows, RunsOffAnImageThatIsTooShort) {
    ByteArray image = {1, 2, 3, 4, 5};
    EXPECT_EQ(ErrorOf([&] { PadAndFlipRows(image, 2, 3); }), ErrorNumber::SubscriptOutOfRange);
    image.clear();
    EXPECT_EQ(ErrorOf([&] { PadAndFlipRows(image, 1, 1); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(PadAndFlipRows, MakesZerosOfTheProductOfNegativeSizes) {
    ByteArray image = {1, 2, 3};
    PadAndFlipRows(image, -2, -4);
    EXPECT_EQ(image, ByteArray(8));
    image = {1};
    PadAndFlipRows(image, -3, -7); // -4 is the next multiple of four
    EXPECT_EQ(image, ByteArray(12));
}

TEST(PadAndFlipRows, RefusesSizesThatAreNone) {
    ByteArray image = {1};
    for (const int wrong : {0, -1, -4, -5}) {
        EXPECT_EQ(ErrorOf([&] { PadAndFlipRows(image, wrong, 1); }), ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(ErrorOf([&] { PadAndFlipRows(image, 1, wrong); }), ErrorNumber::SubscriptOutOfRange);
    }
    for (const int tooFew : {0, -1, -2, -3}) // the next multiple of four is 0
        EXPECT_EQ(ErrorOf([&] { PadAndFlipRows(image, -9, tooFew); }), ErrorNumber::SubscriptOutOfRange);
    constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(ErrorOf([&] { PadAndFlipRows(image, kLowest, kLowest); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { PadAndFlipRows(image, -2, -4, 7); }), ErrorNumber::OutOfMemory);
    EXPECT_EQ(ErrorOf([&] { PadAndFlipRows(image, 65536, 65536); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { PadAndFlipRows(image, 1, std::numeric_limits<std::int32_t>::max()); }),
              ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { PadAndFlipRows(image, 2, 4, 7); }), ErrorNumber::OutOfMemory);
}

} // namespace
} // namespace mirelle::tiff
