#include "gradient/GradientBands.h"

#include "tests/support/Patterns.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace mirelle::test {
namespace {

// Ties to the even number, by the library's own rounding.
int Even(double value) {
    return static_cast<int>(std::nearbyint(value));
}

Bitmap Noise(std::mt19937& random, int width, int height) {
    Bitmap bitmap(width, height);
    for (Pixel& pixel : bitmap.Pixels()) {
        const auto bits = random();
        pixel = {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
                 static_cast<std::uint8_t>(bits >> 16), 0};
    }
    return bitmap;
}

TEST(BandsOf, A256PixelDistanceHasOneBandAPixelFromAlpha0To255) {
    const auto bands = BandsOf({256, 100, 256, 100}, 0, 256, kHorizontal);
    ASSERT_EQ(bands.size(), 257U);
    for (int i = 1; i <= 256; ++i) {
        const Band expected{{i, 0, 1, 100}, {i, 0, 1, 100}, i - 1};
        EXPECT_EQ(bands[static_cast<std::size_t>(i - 1)], expected) << i;
    }
    EXPECT_EQ(bands.back(), (Band{{256, 0, 0, 100}, {256, 0, 0, 100}, 255}));
}

TEST(BandsOf, DownABandIsOnePixelHigherThanA256th) {
    const auto bands = BandsOf({300, 200, 300, 200}, 10, 138, kVertical);
    ASSERT_EQ(bands.size(), 129U); // a step of 2
    EXPECT_EQ(bands[0], (Band{{0, Even(10.5), 300, Even(200 / 256.0 + 1)}, {0, Even(10.5), 300, 2}, 0}));
    EXPECT_EQ(bands[1], (Band{{0, Even(11.5), 300, 2}, {0, 12, 300, 2}, 2}));
    EXPECT_EQ(bands[127].alpha, 254);
    EXPECT_EQ(bands.back(), (Band{{0, 138, 300, 62}, {0, 138, 300, 62}, 255}));
}

TEST(BandsOf, FollowsItsFormulaForManySizesAndSliders) {
    for (const int direction : {kHorizontal, kVertical}) {
        for (const double length : {1.0, 127.0, 128.0, 255.0, 257.0, 600.0, 1080.0, 1920.0}) {
            for (const auto& [from, to] : {std::pair{0.0, length},
                                           {length / 3, length},
                                           {length / 2, length / 4},
                                           {length / 2, length / 2},
                                           {0.0, length / 2}}) {
                const double start = std::floor(from), end = std::floor(to);
                const BandSizes sizes{length, length, length + 5, length - 1};
                std::vector<Band> expected;
                const double distance = end - start;
                if (distance > 0) {
                    const double step = 256 / distance;
                    for (double i = 1; i <= 256; i += step) {
                        const int at = Even(distance / 256 * i + start);
                        const int thin = Even(length / 256), high = Even(length / 256 + 1);
                        const int l = static_cast<int>(length);
                        if (direction == kHorizontal) {
                            expected.push_back({{at, 0, thin, l}, {at, 0, thin, l - 1}, Even(i - 1)});
                        } else {
                            expected.push_back({{0, at, l, high},
                                                {0, at, l + 5, Even((length - 1) / 256 + 1)},
                                                Even(i - 1)});
                        }
                    }
                } else if (distance == 0) {
                    const int at = Even(start);
                    const int thin = Even(length / 256), high = Even(length / 256 + 1);
                    const int l = static_cast<int>(length);
                    if (direction == kHorizontal) {
                        expected.push_back({{at, 0, thin, l}, {at, 0, thin, l - 1}, 0});
                    } else {
                        expected.push_back(
                            {{0, at, l, high}, {0, at, l + 5, Even((length - 1) / 256 + 1)}, 0});
                    }
                }
                const int at = Even(end), l = static_cast<int>(length), rest = Even(length - end);
                if (direction == kHorizontal) {
                    expected.push_back({{at, 0, rest, l}, {at, 0, rest + 5, l}, 255});
                } else {
                    expected.push_back({{0, at, l, rest}, {0, at, l + 5, rest}, 255});
                }
                EXPECT_EQ(BandsOf(sizes, start, end, direction), expected)
                    << direction << " " << length << " " << start << " " << end;
            }
        }
    }
}

TEST(BandsOf, ANegativeDistanceHasTheSolidRestAlone) {
    const auto bands = BandsOf({256, 100, 256, 100}, 200, 50, kHorizontal);
    ASSERT_EQ(bands.size(), 1U);
    EXPECT_EQ(bands[0], (Band{{50, 0, 206, 100}, {50, 0, 206, 100}, 255}));
}

TEST(BandsOf, NoDistanceHasOneBandThatChangesNothing) {
    const auto bands = BandsOf({256, 100, 256, 100}, 70, 70, kVertical);
    ASSERT_EQ(bands.size(), 2U);
    EXPECT_EQ(bands[0].alpha, 0);
}

TEST(BandsOf, ANarrowPictureHasBandsWithoutWidthAcross) {
    for (const Band& band : BandsOf({127, 50, 127, 50}, 0, 127, kHorizontal)) {
        if (band.alpha < 255) {
            EXPECT_EQ(band.to.width, 0);
        }
    }
    EXPECT_EQ(BandsOf({129, 50, 129, 50}, 0, 129, kHorizontal)[0].to.width, 1);
}

TEST(BandsOf, AnotherDirectionHasNone) {
    EXPECT_TRUE(BandsOf({256, 100, 256, 100}, 0, 256, -1).empty());
    EXPECT_TRUE(BandsOf({256, 100, 256, 100}, 0, 256, 2).empty());
}

TEST(DrawBands, GivesTheBytesOfTheBandsDrawnOneByOne) {
    std::mt19937 random(3);
    for (int round = 0; round < 300; ++round) {
        const auto pick = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
        const int width = pick(1, 700), height = pick(1, 60);
        const bool turned = round % 2 == 0;
        const bool otherSize = round % 5 == 0;
        const Bitmap canvas = turned ? Noise(random, height, width) : Noise(random, width, height);
        const Bitmap source = otherSize ? Noise(random, pick(1, 80), pick(1, 80))
                                        : Noise(random, canvas.Width(), canvas.Height());
        const int direction = turned ? kVertical : kHorizontal;
        const BandSizes sizes{double(canvas.Width()), double(canvas.Height()), double(source.Width()),
                              double(source.Height())};
        const int start = pick(0, width), end = pick(0, width);
        const auto bands = BandsOf(sizes, start, end, round % 7 == 0 ? 1 - direction : direction);
        Bitmap plain = canvas, fast = canvas;
        DrawBandsPlain(plain, source, bands);
        DrawBands(fast, source, bands);
        ASSERT_EQ(fast, plain) << "round " << round << ": " << canvas.Width() << "x" << canvas.Height()
                               << " from " << start << " to " << end;
    }
}

TEST(DrawBands, GivesThemToWhereManyFaintBandsLieOverOneAnother) {
    std::mt19937 random(4);
    const Bitmap canvas = Noise(random, 40, 30);
    const Bitmap source = Noise(random, 40, 30);
    // A blend of alpha 1 moves a byte by one where 128 and more are missing, and stops there.
    for (const PixelArea area : {PixelArea{5, 0, 20, 30}, PixelArea{0, 5, 40, 20}}) {
        const std::vector<Band> bands(130, Band{area, area, 1});
        Bitmap plain = canvas, fast = canvas;
        DrawBandsPlain(plain, source, bands);
        DrawBands(fast, source, bands);
        ASSERT_NE(plain, canvas);
        EXPECT_EQ(fast, plain);
    }
}

TEST(DrawBands, AFadeOf256ColumnsEndsInTheForeground) {
    const Bitmap source(256, 2, Pixel{200, 100, 0, 0});
    Bitmap drawn(256, 2, Pixel{0, 0, 100, 0});
    DrawBands(drawn, source, BandsOf({256, 2, 256, 2}, 0, 256, kHorizontal));
    EXPECT_EQ(drawn.At(0, 0), (Pixel{0, 0, 100, 0})); // band 1 lies at column 1
    EXPECT_EQ(drawn.At(1, 0), (Pixel{0, 0, 100, 0})); // and its alpha is 0
    for (int x = 1; x < 256; ++x) {
        const int alpha = x - 1;
        EXPECT_EQ(drawn.At(x, 1).blue, Even(200.0 * alpha / 255)) << x;
        EXPECT_EQ(drawn.At(x, 1).red, Even(100.0 * (255 - alpha) / 255)) << x;
    }
}

} // namespace
} // namespace mirelle::test
