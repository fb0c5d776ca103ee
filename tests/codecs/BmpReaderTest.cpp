#include "codecs/BmpReader.h"

#include "tests/support/ErrorOf.h"
#include "tests/support/TestDib.h"

#include <gtest/gtest.h>

#include <string>

namespace mirelle {

void PrintTo(const Pixel& pixel, std::ostream* out) {
    *out << "blue " << int{pixel.blue} << " green " << int{pixel.green} << " red " << int{pixel.red}
         << " fourth " << int{pixel.fourth};
}

namespace {

using test::BmpBytes;
using test::DibBytes;
using test::ErrorOf;
using test::FileBytes;
using test::TestDib;

using Colours = std::vector<Color>;

// Row by row from the top, as 0xBBGGRR.
Colours ColoursOf(const Bitmap& bitmap) {
    Colours colours;
    for (const Pixel& pixel : bitmap.Pixels())
        colours.push_back(ColorOf(pixel));
    return colours;
}

Colours Read(const TestDib& dib) {
    return ColoursOf(ReadBmp(BmpBytes(dib)));
}

auto ErrorOfReading(const FileBytes& file) {
    return ErrorOf([&] { ReadBmp(file); });
}
auto ErrorOfReading(const TestDib& dib) {
    return ErrorOfReading(BmpBytes(dib));
}

// Sixteen colours, 0xRRGGBB: red i, green 2i, blue 3i.
std::vector<std::uint32_t> Ramp(std::uint32_t count = 16) {
    std::vector<std::uint32_t> palette;
    for (std::uint32_t i = 0; i < count; ++i)
        palette.push_back(i << 16 | (2 * i) << 8 | 3 * i);
    return palette;
}
Color RampColour(int i) {
    return RGB(i, 2 * i, 3 * i);
}

TEST(BmpReader, ReadsTriplesFromTheBottomUp) {
    EXPECT_EQ(Read({.width = 1, .height = 2, .pixels = {1, 2, 3, 0, 4, 5, 6, 0}}),
              (Colours{0x040506, 0x010203}));
}

TEST(BmpReader, ReadsRowsFromTheTopWhereTheHeightIsNegative) {
    EXPECT_EQ(
        Read({.width = 1, .height = static_cast<std::uint32_t>(-2), .pixels = {1, 2, 3, 0, 4, 5, 6, 0}}),
        (Colours{0x010203, 0x040506}));
}

TEST(BmpReader, DoesNotMissTheLastRowsPadding) {
    EXPECT_EQ(Read({.width = 1, .height = 2, .pixels = {1, 2, 3, 0, 4, 5, 6}}),
              (Colours{0x040506, 0x010203}));
}

TEST(BmpReader, ReadsOneBitPixels) {
    EXPECT_EQ(Read({.width = 9,
                    .height = 1,
                    .bitCount = 1,
                    .palette = {0x000000, 0xFFFFFF},
                    .pixels = {0xA0, 0x80, 0, 0}}),
              (Colours{0xFFFFFF, 0, 0xFFFFFF, 0, 0, 0, 0, 0, 0xFFFFFF}));
}

TEST(BmpReader, ReadsTwoBitPixels) {
    EXPECT_EQ(Read({.width = 5, .bitCount = 2, .palette = Ramp(4), .pixels = {0x1B, 0x80, 0, 0}}),
              (Colours{RampColour(0), RampColour(1), RampColour(2), RampColour(3), RampColour(2)}));
}

TEST(BmpReader, ReadsFourBitPixels) {
    EXPECT_EQ(Read({.width = 3, .bitCount = 4, .palette = Ramp(), .pixels = {0x1F, 0x30, 0, 0}}),
              (Colours{RampColour(1), RampColour(15), RampColour(3)}));
}

TEST(BmpReader, ReadsEightBitPixels) {
    EXPECT_EQ(Read({.width = 2, .bitCount = 8, .coloursUsed = 16, .palette = Ramp(), .pixels = {7, 2, 0, 0}}),
              (Colours{RampColour(7), RampColour(2)}));
}

TEST(BmpReader, ShowsNumbersBeyondThePaletteBlack) {
    EXPECT_EQ(
        Read({.width = 2, .bitCount = 8, .coloursUsed = 16, .palette = Ramp(), .pixels = {1, 200, 0, 0}}),
        (Colours{RampColour(1), 0}));
}

// A header that tells no count has the full palette, but the pixels begin earlier.
TEST(BmpReader, TakesNoPixelsForPalette) {
    EXPECT_EQ(Read({.width = 2, .bitCount = 8, .palette = {0x010203}, .pixels = {0, 1, 9, 9}}),
              (Colours{0x030201, 0}));
}

TEST(BmpReader, BringsFiveBitsToTheWholeRange) {
    // white, red, green, blue; the highest bit says nothing
    EXPECT_EQ(Read({.width = 4, .bitCount = 16, .pixels = {0xFF, 0x7F, 0x00, 0xFC, 0xE0, 0x03, 0x1F, 0x00}}),
              (Colours{0xFFFFFF, 0x0000FF, 0x00FF00, 0xFF0000}));
    // 1, 16 and 30 of 31
    EXPECT_EQ(Read({.width = 1, .bitCount = 16, .pixels = {0x1E, 0x06, 0, 0}}), (Colours{RGB(8, 132, 247)}));
}

TEST(BmpReader, ReadsPixelsByTheirMasks) {
    EXPECT_EQ(Read({.width = 2,
                    .bitCount = 16,
                    .compression = 3,
                    .masks = {0xF800, 0x07E0, 0x001F},
                    .pixels = {0xFF, 0xFF, 0x00, 0x04}}),
              (Colours{0xFFFFFF, RGB(0, 130, 0)}));
    // ten bits each, of which the upper eight count
    EXPECT_EQ(Read({.width = 1,
                    .bitCount = 32,
                    .compression = 3,
                    .masks = {0x3FF00000, 0x000FFC00, 0x000003FF},
                    .pixels = {0xFF, 0x03, 0x08, 0x20}}),
              (Colours{RGB(128, 128, 255)}));
    EXPECT_EQ(
        Read({.width = 1, .bitCount = 32, .compression = 3, .masks = {0, 0, 0}, .pixels = {1, 2, 3, 4}}),
        (Colours{0}));
}

TEST(BmpReader, DropsTheFourthByteOfA32BitFile) {
    const Bitmap bitmap =
        ReadBmp(BmpBytes({.width = 2, .bitCount = 32, .pixels = {1, 2, 3, 4, 5, 6, 7, 255}}));
    EXPECT_EQ(bitmap.At(0, 0), (Pixel{1, 2, 3, 0}));
    EXPECT_EQ(bitmap.At(1, 0), (Pixel{5, 6, 7, 0}));
}

TEST(BmpReader, KeepsADeclaredAlphaChannelOnlyWhereItIsAskedFor) {
    const TestDib dib = {.width = 1,
                         .bitCount = 32,
                         .compression = 3,
                         .headerSize = 108,
                         .masks = {0x00FF0000, 0x0000FF00, 0x000000FF, 0xFF000000},
                         .pixels = {1, 2, 3, 4}};
    EXPECT_EQ(ReadBmp(BmpBytes(dib)).At(0, 0), (Pixel{1, 2, 3, 0}));
    EXPECT_EQ(ReadBmp(BmpBytes(dib), DibAlpha::Kept).At(0, 0), (Pixel{1, 2, 3, 4}));
    TestDib undeclared = dib;
    undeclared.compression = 0;
    EXPECT_EQ(ReadBmp(BmpBytes(undeclared), DibAlpha::Kept).At(0, 0), (Pixel{1, 2, 3, 0}));
}

TEST(BmpReader, ReadsAlphaMasksBehindAShortHeader) {
    const TestDib dib = {.width = 1,
                         .bitCount = 32,
                         .compression = 6,
                         .masks = {0x000000FF, 0x0000FF00, 0x00FF0000, 0xFF000000},
                         .pixels = {1, 2, 3, 4}};
    EXPECT_EQ(ReadBmp(BmpBytes(dib), DibAlpha::Kept).At(0, 0), (Pixel{3, 2, 1, 4}));
}

TEST(BmpReader, ReadsFilesOfTheOldestKind) {
    EXPECT_EQ(Read({.headerSize = 12, .pixels = {9, 8, 7, 0}}), (Colours{0x090807}));
    EXPECT_EQ(
        Read({.width = 2, .bitCount = 4, .headerSize = 12, .palette = Ramp(), .pixels = {0x21, 0, 0, 0}}),
        (Colours{RampColour(2), RampColour(1)}));
}

TEST(BmpReader, ReadsShorterAndLongerHeaders) {
    for (const std::uint32_t size : {16u, 40u, 52u, 56u, 64u, 108u, 124u})
        EXPECT_EQ(Read({.width = 2,
                        .bitCount = 8,
                        .headerSize = size,
                        .palette = Ramp(256),
                        .pixels = {3, 4, 0, 0}}),
                  (Colours{RampColour(3), RampColour(4)}))
            << size;
}

TEST(BmpReader, FindsThePixelsWhereTheFileDoesNotSay) {
    FileBytes file = BmpBytes({.width = 1, .height = 1, .pixels = {1, 2, 3, 0}});
    file[10] = 0;
    EXPECT_EQ(ColoursOf(ReadBmp(file)), (Colours{0x010203}));
}

TEST(BmpReader, PassesOverThePaletteOfADeepPicture) {
    const TestDib dib = {.coloursUsed = 2, .palette = {0x010101, 0x020202}, .pixels = {1, 2, 3, 0}};
    EXPECT_EQ(Read(dib), (Colours{0x010203}));
    EXPECT_EQ(ColoursOf(ReadDib(DibBytes(dib))), (Colours{0x010203}));
}

TEST(BmpReader, ReadsABitmapWithoutAFileHeader) {
    EXPECT_EQ(ColoursOf(ReadDib(
                  DibBytes({.width = 2, .bitCount = 4, .palette = Ramp(), .pixels = {0x21, 0, 0, 0}}))),
              (Colours{RampColour(2), RampColour(1)}));
    EXPECT_EQ(ColoursOf(ReadDib(DibBytes({.width = 1,
                                          .bitCount = 16,
                                          .compression = 3,
                                          .masks = {0xF800, 0x07E0, 0x001F},
                                          .pixels = {0, 0xF8, 0, 0}}))),
              (Colours{0x0000FF}));
}

TEST(BmpReader, ReadsRunsOfBytes) {
    // three of 5, one of 6; next row: four one by one
    const TestDib dib = {.width = 4,
                         .height = 2,
                         .bitCount = 8,
                         .compression = 1,
                         .palette = Ramp(256),
                         .pixels = {3, 5, 1, 6, 0, 0, 0, 3, 1, 2, 3, 0, 1, 4, 0, 1}};
    EXPECT_EQ(Read(dib), (Colours{RampColour(1), RampColour(2), RampColour(3), RampColour(4), RampColour(5),
                                  RampColour(5), RampColour(5), RampColour(6)}));
}

TEST(BmpReader, ReadsRunsOfHalfBytes) {
    const TestDib dib = {.width = 8,
                         .bitCount = 4,
                         .compression = 2,
                         .palette = Ramp(),
                         .pixels = {3, 0x12, 0, 5, 0x34, 0x56, 0x70, 0, 0, 1}};
    EXPECT_EQ(Read(dib), (Colours{RampColour(1), RampColour(2), RampColour(1), RampColour(3), RampColour(4),
                                  RampColour(5), RampColour(6), RampColour(7)}));
}

TEST(BmpReader, LeavesWhatRunsPassOverInTheFirstColour) {
    // one right and one row up, then two of 7
    const TestDib dib = {.width = 3,
                         .height = 2,
                         .bitCount = 8,
                         .compression = 1,
                         .palette = Ramp(256),
                         .pixels = {0, 2, 1, 1, 2, 7, 0, 1}};
    EXPECT_EQ(Read(dib), (Colours{RampColour(0), RampColour(7), RampColour(7), RampColour(0), RampColour(0),
                                  RampColour(0)}));
}

TEST(BmpReader, CutsRunsAtTheRowsEnd) {
    const TestDib dib = {
        .width = 2,
        .height = 2,
        .bitCount = 8,
        .compression = 1,
        .palette = Ramp(256),
        .pixels = {255, 5, 0, 2, 255, 0, 9, 9, 0, 0, 0, 4, 1, 2, 3, 4, 0, 0, 255, 8, 0, 2, 0, 255, 1, 1}};
    EXPECT_EQ(Read(dib), (Colours{RampColour(1), RampColour(2), RampColour(5), RampColour(5)}));
}

TEST(BmpReader, ShowsWhatRunsThatEndEarlyHold) {
    TestDib dib = {
        .width = 2, .height = 1, .bitCount = 8, .compression = 1, .palette = Ramp(256), .pixels = {1, 5}};
    EXPECT_EQ(Read(dib), (Colours{RampColour(5), RampColour(0)}));
    for (const FileBytes& pixels :
         {FileBytes{1, 5, 3}, FileBytes{1, 5, 0, 2, 1}, FileBytes{1, 5, 0, 9, 1, 2}}) {
        dib.pixels = pixels;
        EXPECT_EQ(Read(dib), (Colours{RampColour(5), RampColour(0)}));
    }
}

TEST(BmpReader, RefusesFilesThatEndEarly) {
    const FileBytes file = BmpBytes(
        {.width = 2, .height = 2, .bitCount = 8, .palette = Ramp(256), .pixels = {1, 2, 0, 0, 3, 4}});
    EXPECT_EQ(ErrorOfReading(file), std::nullopt);
    for (std::size_t size = 0; size < file.size(); ++size)
        EXPECT_EQ(ErrorOfReading(FileBytes(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size))),
                  ErrorNumber::InvalidPicture)
            << size;
}

struct BadDib {
    const char* name;
    TestDib dib;
};

class BadBmp : public testing::TestWithParam<BadDib> {};

TEST_P(BadBmp, IsRefused) {
    EXPECT_EQ(ErrorOfReading(GetParam().dib), ErrorNumber::InvalidPicture);
}

const FileBytes kSomePixels(64);

INSTANTIATE_TEST_SUITE_P(
    BmpReader, BadBmp,
    testing::Values(
        BadDib{"NoWidth", {.width = 0, .pixels = kSomePixels}},
        BadDib{"NoHeight", {.height = 0, .pixels = kSomePixels}},
        BadDib{"NegativeWidth", {.width = 0xFFFFFFFF, .pixels = kSomePixels}},
        BadDib{"HeightWithoutNegative", {.height = 0x80000000, .pixels = kSomePixels}},
        BadDib{"TwoPlanes", {.pixels = kSomePixels, .planes = 2}},
        BadDib{"NoBits", {.bitCount = 0, .pixels = kSomePixels}},
        BadDib{"ThreeBits", {.bitCount = 3, .pixels = kSomePixels}},
        BadDib{"SixtyFourBits", {.bitCount = 64, .pixels = kSomePixels}},
        BadDib{"RunsOf24Bits", {.compression = 1, .pixels = kSomePixels}},
        BadDib{"MasksOf24Bits", {.compression = 3, .masks = {255, 255, 255}, .pixels = kSomePixels}},
        BadDib{"PackedAsJpeg", {.compression = 4, .pixels = kSomePixels}},
        BadDib{"PackedAsPng", {.compression = 5, .pixels = kSomePixels}},
        BadDib{"HuffmanCoded", {.bitCount = 1, .compression = 3, .headerSize = 64, .pixels = kSomePixels}},
        BadDib{"HeaderTooShort", {.headerSize = 15, .pixels = kSomePixels}},
        BadDib{"HeaderTooLong", {.headerSize = 125, .pixels = kSomePixels}},
        BadDib{"PaletteOutOfTheFile", {.bitCount = 24, .coloursUsed = 0xFFFFFFFF}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(BmpReader, MakesNoPictureOfTheSizeThatAFewBytesClaim) {
    EXPECT_EQ(ErrorOfReading(
                  {.width = 60'000, .height = 60'000, .bitCount = 8, .compression = 1, .palette = Ramp(256)}),
              ErrorNumber::OutOfMemory);
    EXPECT_EQ(ErrorOfReading({.width = 0x7FFFFFFF, .height = 0x7FFFFFFF, .bitCount = 32}),
              ErrorNumber::OutOfMemory);
    EXPECT_EQ(ErrorOfReading({.width = 16'384, .height = 16'384, .bitCount = 24}),
              ErrorNumber::InvalidPicture);
}

} // namespace
} // namespace mirelle
