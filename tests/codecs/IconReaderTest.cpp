#include "codecs/IconReader.h"

#include "codecs/OverWhite.h"
#include "forms/RunTimeError.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TestDib.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

using test::DibBytes;
using test::ErrorOf;
using test::FileBytes;
using test::IconBytes;
using test::TestDib;

using Colours = std::vector<Color>;
constexpr Color kWhite = 0xFFFFFF;

Bitmap NoPng(std::span<const std::uint8_t>) {
    throw RunTimeError(ErrorNumber::InvalidPicture);
}

Colours Read(const FileBytes& file, const PngDecoder& readPng = NoPng) {
    const Bitmap bitmap = ReadIcon(file, readPng);
    Colours colours;
    for (const Pixel& pixel : bitmap.Pixels()) {
        EXPECT_EQ(pixel.fourth, 0);
        colours.push_back(ColorOf(pixel));
    }
    return colours;
}

// Two by two pixels; the mask that follows clears the first of the lower row.
FileBytes Triples() {
    return DibBytes({.width = 2, .height = 4, .pixels = {1,  2,  3, 4, 5,    6, 0, 0, 7, 8, 9, 10,
                                                         11, 12, 0, 0, 0x80, 0, 0, 0, 0, 0, 0, 0}});
}

// Four pixels in a row: three solid to different degrees, the last clear.
FileBytes Quadruples(std::uint8_t first, std::uint8_t second, std::uint8_t third, std::uint8_t mask) {
    return DibBytes({.width = 3,
                     .height = 2,
                     .bitCount = 32,
                     .pixels = {0, 0, 200, first, 0, 0, 200, second, 0, 0, 200, third, mask, 0, 0, 0}});
}

TEST(IconReader, ShowsWhatTheMaskClearsWhite) {
    EXPECT_EQ(Read(IconBytes({{2, 2, 24, Triples()}})), (Colours{0x070809, 0x0A0B0C, kWhite, 0x040506}));
}

TEST(IconReader, ReadsCursors) {
    EXPECT_EQ(Read(IconBytes({{2, 2, 300, Triples()}}, 2)), (Colours{0x070809, 0x0A0B0C, kWhite, 0x040506}));
}

TEST(IconReader, ReadsPalettes) {
    const FileBytes dib = DibBytes({.width = 2,
                                    .height = 2,
                                    .bitCount = 1,
                                    .palette = {0x010203, 0x040506},
                                    .pixels = {0x80, 0, 0, 0, 0x40, 0, 0, 0}});
    EXPECT_EQ(Read(IconBytes({{2, 1, 1, dib}})), (Colours{0x060504, kWhite}));
}

TEST(IconReader, LaysAnAlphaChannelOverWhiteAndLeavesTheMaskAlone) {
    EXPECT_EQ(Read(IconBytes({{3, 1, 32, Quadruples(255, 128, 0, 0xFF)}})),
              (Colours{RGB(200, 0, 0), RGB(227, 127, 127), kWhite}));
}

TEST(IconReader, TakesTheMaskWhereAnAlphaChannelIsAllZero) {
    EXPECT_EQ(Read(IconBytes({{3, 1, 32, Quadruples(0, 0, 0, 0x40)}})),
              (Colours{RGB(200, 0, 0), kWhite, RGB(200, 0, 0)}));
}

TEST(IconReader, ReadsAPictureWithoutAMask) {
    FileBytes dib = Triples();
    dib.resize(dib.size() - 8);
    EXPECT_EQ(Read(IconBytes({{2, 2, 24, dib}})), (Colours{0x070809, 0x0A0B0C, 0x010203, 0x040506}));
}

TEST(IconReader, TakesTheLargestThenTheDeepestPicture) {
    const FileBytes small = DibBytes({.width = 1, .height = 2, .pixels = {1, 1, 1, 0}});
    const FileBytes other = DibBytes({.width = 1, .height = 2, .pixels = {2, 2, 2, 0}});
    EXPECT_EQ(Read(IconBytes({{1, 1, 24, small}, {2, 2, 24, Triples()}})).size(), 4u);
    EXPECT_EQ(Read(IconBytes({{2, 2, 24, Triples()}, {1, 1, 24, small}})).size(), 4u);
    EXPECT_EQ(Read(IconBytes({{255, 255, 24, Triples()}, {0, 0, 24, small}})),
              (Colours{0x010101})); // 0 is 256
    EXPECT_EQ(Read(IconBytes({{20, 20, 24, Triples()}, {0, 2, 24, small}})), (Colours{0x010101}));
    EXPECT_EQ(Read(IconBytes({{20, 20, 24, Triples()}, {2, 0, 24, small}})), (Colours{0x010101}));
    EXPECT_EQ(Read(IconBytes({{1, 1, 8, small}, {1, 1, 24, other}})), (Colours{0x020202}));
}

TEST(IconReader, TakesTheNextPictureWhereTheLargestCannotBeRead) {
    EXPECT_EQ(Read(IconBytes({{9, 9, 24, FileBytes(3)}, {2, 2, 24, Triples()}})).size(), 4u);
}

TEST(IconReader, HandsPngPicturesOn) {
    const FileBytes png = {0x89, 'P', 'N', 'G', 1, 2, 3};
    const auto readPng = [&](std::span<const std::uint8_t> bytes) {
        EXPECT_EQ(FileBytes(bytes.begin(), bytes.end()), png);
        return Bitmap(1, 1, {5, 6, 7, 0});
    };
    EXPECT_EQ(Read(IconBytes({{0, 0, 32, png}}), readPng), (Colours{0x050607}));
}

TEST(IconReader, RefusesWhatHoldsNoPicture) {
    const auto errorOf = [](const FileBytes& file) { return ErrorOf([&] { ReadIcon(file, NoPng); }); };
    EXPECT_EQ(errorOf(IconBytes({})), ErrorNumber::InvalidPicture);
    EXPECT_EQ(errorOf(IconBytes({{2, 2, 24, Triples()}}, 3)), ErrorNumber::InvalidPicture);
    EXPECT_EQ(errorOf(IconBytes({{2, 2, 24, FileBytes{0x89, 'P', 'N', 'G'}}})), ErrorNumber::InvalidPicture);
    // A huge claim is refused like any other picture that can't be read.
    EXPECT_EQ(errorOf(IconBytes({{2, 2, 24, DibBytes({.width = 30'000, .height = 60'000})}})),
              ErrorNumber::InvalidPicture);

    FileBytes file = IconBytes({{2, 2, 24, Triples()}});
    file.resize(file.size() - 8); // the mask may be missing, pixels may not
    for (std::size_t size = 0; size < file.size(); ++size)
        EXPECT_EQ(errorOf(FileBytes(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size))),
                  ErrorNumber::InvalidPicture)
            << size;
}

TEST(IconReader, IsNotMisledByOffsetsOutOfTheFile) {
    FileBytes file = IconBytes({{2, 2, 24, Triples()}});
    for (int i = 0; i < 4; ++i)
        file[static_cast<std::size_t>(18 + i)] = 0xFF;
    EXPECT_EQ(ErrorOf([&] { ReadIcon(file, NoPng); }), ErrorNumber::InvalidPicture);
}

TEST(OverWhitePixel, RoundsToTheNearest) {
    EXPECT_EQ(OverWhite({10, 20, 30, 255}), (Pixel{10, 20, 30, 0}));
    EXPECT_EQ(OverWhite({10, 20, 30, 0}), (Pixel{255, 255, 255, 0}));
    EXPECT_EQ(OverWhite({0, 100, 255, 51}), (Pixel{204, 224, 255, 0}));
}

} // namespace
} // namespace mirelle
