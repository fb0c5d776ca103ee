#include "desktop/encoders/IndexedBitmap.h"

#include "desktop/encoders/NearestColour.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace mirelle {
namespace {

Bitmap Painted(const IndexedBitmap& indexed) {
    Bitmap bitmap(indexed.width, indexed.height);
    for (std::size_t i = 0; i < indexed.numbers.size(); ++i)
        bitmap.Pixels()[i] = indexed.palette.at(indexed.numbers[i]);
    return bitmap;
}

Bitmap Opaque(Bitmap bitmap) {
    for (Pixel& pixel : bitmap.Pixels())
        pixel.fourth = 0;
    return bitmap;
}

// `count` colours in a row, no two the same.
Bitmap ManyColours(int count) {
    Bitmap bitmap(count, 1);
    for (int x = 0; x < count; ++x)
        bitmap.At(x, 0) = {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(x / 256), 77, 9};
    return bitmap;
}

// The greatest difference between the mean colours of two pictures in any square of that side: what an eye
// sees that is too far away to tell the pixels apart.
double DifferenceFromAfar(const Bitmap& a, const Bitmap& b, int side) {
    double total = 0;
    int squares = 0;
    for (int top = 0; top + side <= a.Height(); top += side) {
        for (int left = 0; left + side <= a.Width(); left += side) {
            double blue = 0;
            double green = 0;
            double red = 0;
            for (int y = top; y < top + side; ++y) {
                for (int x = left; x < left + side; ++x) {
                    blue += a.At(x, y).blue - b.At(x, y).blue;
                    green += a.At(x, y).green - b.At(x, y).green;
                    red += a.At(x, y).red - b.At(x, y).red;
                }
            }
            total += std::max({std::abs(blue), std::abs(green), std::abs(red)}) / (side * side);
            ++squares;
        }
    }
    return total / squares;
}

Bitmap WithoutDithering(const Bitmap& bitmap, const std::vector<Pixel>& palette) {
    const NearestColour nearest(palette);
    Bitmap plain(bitmap.Width(), bitmap.Height());
    for (std::size_t i = 0; i < bitmap.Pixels().size(); ++i)
        plain.Pixels()[i] = palette[nearest.Of(bitmap.Pixels()[i])];
    return plain;
}

double NoiseRatio(const Bitmap& a, const Bitmap& b) {
    double squares = 0;
    for (std::size_t i = 0; i < a.Pixels().size(); ++i) {
        const Pixel& p = a.Pixels()[i];
        const Pixel& q = b.Pixels()[i];
        for (const int difference : {p.blue - q.blue, p.green - q.green, p.red - q.red})
            squares += difference * difference;
    }
    return 10.0 * std::log10(255.0 * 255.0 * 3.0 * static_cast<double>(a.Pixels().size()) / squares);
}

TEST(IndexExactly, KeepsTheColoursOfAPictureOf256) {
    for (const int count : {1, 2, 3, 16, 17, 255, 256}) {
        const Bitmap bitmap = ManyColours(count);
        const auto indexed = IndexExactly(bitmap);
        ASSERT_TRUE(indexed) << count;
        EXPECT_EQ(indexed->palette.size(), static_cast<std::size_t>(count));
        EXPECT_EQ(Painted(*indexed), Opaque(bitmap));
    }
}

TEST(IndexExactly, GivesUpAtThe257thColour) {
    EXPECT_FALSE(IndexExactly(ManyColours(257)));
}

TEST(IndexExactly, CountsColoursAndNotFourthBytes) {
    Bitmap bitmap(300, 1, {1, 2, 3, 0});
    for (int x = 0; x < 256; ++x)
        bitmap.At(x, 0).fourth = static_cast<std::uint8_t>(x);
    const auto indexed = IndexExactly(bitmap);
    ASSERT_TRUE(indexed);
    EXPECT_EQ(indexed->palette, (std::vector<Pixel>{{1, 2, 3, 0}}));
}

TEST(IndexByDithering, UsesAtMost256Colours) {
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 500}, {500, 1}, {97, 101}}) {
        const IndexedBitmap indexed = IndexByDithering(test::NoiseBitmap(width, height, 3));
        EXPECT_GE(indexed.palette.size(), 1u);
        EXPECT_LE(indexed.palette.size(), 256u);
        EXPECT_EQ(indexed.numbers.size(), static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
        EXPECT_LT(*std::max_element(indexed.numbers.begin(), indexed.numbers.end()), indexed.palette.size());
    }
}

TEST(IndexByDithering, ShowsNoBandsWhereColoursRunIntoOneAnother) {
    const Bitmap bitmap = test::SmoothBitmap(512, 512, 700.0);
    const IndexedBitmap indexed = IndexByDithering(bitmap);
    const double dithered = DifferenceFromAfar(Painted(indexed), bitmap, 8);
    const double plain = DifferenceFromAfar(WithoutDithering(bitmap, indexed.palette), bitmap, 8);
    EXPECT_LE(dithered, 2.0);
    EXPECT_GE(plain, 2 * dithered);
}

TEST(IndexByDithering, ChoosesAPaletteForTheColoursThatAreThere) {
    const Bitmap smooth = test::SmoothBitmap(256, 256, 300.0);
    EXPECT_GE(NoiseRatio(Painted(IndexByDithering(smooth)), smooth), 30.0);
    // Few colours close together get the whole palette: a sky of some forty blues.
    Bitmap sky(256, 256);
    for (int y = 0; y < 256; ++y) {
        for (int x = 0; x < 256; ++x)
            sky.At(x, y) = {static_cast<std::uint8_t>(200 + y / 8), static_cast<std::uint8_t>(150 + x / 8),
                            static_cast<std::uint8_t>(100 + (x + y) / 16), 0};
    }
    EXPECT_GE(NoiseRatio(Painted(IndexByDithering(sky)), sky), 44.0);
}

// A sky over dark ground: where the palette has no mixture for a part of the sky, the ground's colours are no
// help.
TEST(IndexByDithering, SetsNoSpeckles) {
    Bitmap bitmap(800, 400);
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 800; ++x) {
            const double u = x / 800.0;
            const double v = y / 400.0;
            const int grain = (x * 7919 + y * 104'729) % 23;
            const auto byte = [](double value) { return static_cast<std::uint8_t>(value); };
            bitmap.At(x, y) = y < 200 ? Pixel{byte(255 - 40 * v - 20 * u), byte(190 + 50 * v * u + 10 * u),
                                              byte(110 + 110 * v), 0}
                                      : Pixel{byte(40 + 60 * u + grain), byte(90 + 100 * u * v + grain),
                                              byte(50 + 150 * (1 - u) + grain), 0};
        }
    }
    const Bitmap painted = Painted(IndexByDithering(bitmap));
    int greatest = 0;
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 800; ++x) {
            const Pixel& p = painted.At(x, y);
            const Pixel& q = bitmap.At(x, y);
            for (const int difference : {p.blue - q.blue, p.green - q.green, p.red - q.red})
                greatest = std::max(greatest, std::abs(difference));
        }
    }
    EXPECT_LE(greatest, 40);
}

// One pixel of a colour of its own among many others: the eye of a fish.
TEST(IndexByDithering, KeepsASmallDetailThatSticksOut) {
    Bitmap bitmap = test::SmoothBitmap(128, 128, 300.0);
    bitmap.At(64, 64) = {255, 0, 0, 0};
    EXPECT_EQ(Painted(IndexByDithering(bitmap)).At(64, 64), (Pixel{255, 0, 0, 0}));
}

TEST(IndexByDithering, LeavesALargeFlatAreaFlat) {
    Bitmap bitmap = test::NoiseBitmap(200, 200, 11);
    for (int y = 0; y < 150; ++y)
        for (int x = 0; x < 200; ++x)
            bitmap.At(x, y) = {255, 255, 255, 0};
    const Bitmap painted = Painted(IndexByDithering(bitmap));
    for (int y = 0; y < 150; ++y)
        for (int x = 0; x < 200; ++x)
            ASSERT_EQ(painted.At(x, y), (Pixel{255, 255, 255, 0})) << x << ", " << y;
}

TEST(IndexByDithering, GivesTheSameTwice) {
    const Bitmap bitmap = test::NoiseBitmap(64, 64, 5);
    const IndexedBitmap first = IndexByDithering(bitmap);
    const IndexedBitmap second = IndexByDithering(bitmap);
    EXPECT_EQ(first.palette, second.palette);
    EXPECT_EQ(first.numbers, second.numbers);
}

} // namespace
} // namespace mirelle
