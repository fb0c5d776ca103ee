#include "forms/AlphaBlend.h"

#include "forms/Stretch.h"
#include "tests/support/Patterns.h"

#include <gtest/gtest.h>

#include <random>

namespace mirelle::test {
namespace {

Bitmap Noise(std::mt19937& random, int width, int height) {
    Bitmap bitmap(width, height);
    for (Pixel& pixel : bitmap.Pixels()) {
        const auto bits = random();
        pixel = {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
                 static_cast<std::uint8_t>(bits >> 16), static_cast<std::uint8_t>(bits >> 24)};
    }
    return bitmap;
}

TEST(AlphaBlend, EveryBlendIsTheNearestToTheDivisionBy255) {
    int wrong = 0;
    for (int alpha = 0; alpha < 256; ++alpha) {
        for (int source = 0; source < 256; ++source) {
            for (int destination = 0; destination < 256; ++destination) {
                // 255 is odd, so no quotient lies halfway.
                const int nearest = (2 * (source * alpha + destination * (255 - alpha)) + 255) / 510;
                wrong += Blended(static_cast<std::uint8_t>(source), static_cast<std::uint8_t>(destination),
                                 static_cast<std::uint8_t>(alpha)) != nearest;
            }
        }
    }
    EXPECT_EQ(wrong, 0);
}

TEST(AlphaBlend, ARowOfAnyLengthBlendsEachByte) {
    std::mt19937 random(1);
    for (std::size_t length = 0; length < 140; ++length) {
        std::vector<std::uint8_t> source(length), destination(length);
        for (auto& byte : source)
            byte = static_cast<std::uint8_t>(random());
        for (auto& byte : destination)
            byte = static_cast<std::uint8_t>(random());
        const auto before = destination;
        const auto alpha = static_cast<std::uint8_t>(random());
        BlendRow(destination, source, alpha);
        for (std::size_t i = 0; i < length; ++i) {
            ASSERT_EQ(destination[i], Blended(source[i], before[i], alpha)) << length << " at " << i;
        }
    }
}

TEST(AlphaBlend, EqualAreasAreClippedToBothSurfaces) {
    std::mt19937 random(2);
    for (int round = 0; round < 400; ++round) {
        const auto pick = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
        const Bitmap source = Noise(random, pick(1, 20), pick(1, 20));
        Bitmap drawn = Noise(random, pick(1, 20), pick(1, 20));
        Bitmap expected = drawn;
        const PixelArea to{pick(-8, 20), pick(-8, 20), pick(0, 24), pick(0, 24)};
        const PixelArea from{pick(-8, 20), pick(-8, 20), to.width, to.height};
        const int alpha = pick(0, 255);
        for (int y = 0; y < to.height; ++y) {
            for (int x = 0; x < to.width; ++x) {
                if (!expected.Contains(to.x + x, to.y + y) || !source.Contains(from.x + x, from.y + y))
                    continue;
                Pixel& d = expected.At(to.x + x, to.y + y);
                const Pixel s = source.At(from.x + x, from.y + y);
                const auto a = static_cast<std::uint8_t>(alpha);
                d = {Blended(s.blue, d.blue, a), Blended(s.green, d.green, a), Blended(s.red, d.red, a),
                     Blended(s.fourth, d.fourth, a)};
            }
        }
        AlphaBlend(drawn, to, source, from, alpha);
        ASSERT_EQ(drawn, expected) << "round " << round;
    }
}

TEST(AlphaBlend, UnequalAreasAreStretchedFirst) {
    const Bitmap source = Chart(6, 4, 90);
    Bitmap drawn(20, 20, Pixel{1, 2, 3, 0});
    AlphaBlend(drawn, {4, 5, 12, 12}, source, {0, 0, 6, 4}, 255);
    Bitmap expected(20, 20, Pixel{1, 2, 3, 0});
    StretchHalftone(source, {0, 0, 6, 4}, expected, {4, 5, 12, 12});
    EXPECT_EQ(drawn, expected);
}

TEST(AlphaBlend, AStretchFromBeyondTheSourceDrawsOnlyWhatHasSourceUnderIt) {
    const Bitmap source(4, 4, Pixel{200, 200, 200, 0});
    Bitmap drawn(20, 8, Pixel{1, 2, 3, 0});
    // Columns 0 to 9 come from source columns 2 to 6: the source ends under column 5.
    AlphaBlend(drawn, {0, 0, 10, 8}, source, {2, 0, 4, 4}, 255);
    EXPECT_EQ(drawn.At(4, 0), (Pixel{200, 200, 200, 0}));
    EXPECT_EQ(drawn.At(5, 0), (Pixel{1, 2, 3, 0}));
    EXPECT_EQ(drawn.At(9, 7), (Pixel{1, 2, 3, 0}));
}

TEST(AlphaBlend, WhatHoldsNoPixelDrawsNothing) {
    const Bitmap source = Chart(4, 4, 90);
    const Bitmap before = Chart(6, 6, 1);
    Bitmap drawn = before;
    AlphaBlend(drawn, {0, 0, 0, 4}, source, {0, 0, 0, 4}, 255);
    AlphaBlend(drawn, {0, 0, 4, 4}, source, {0, 0, 4, -1}, 255);
    AlphaBlend(drawn, {0, 0, 4, 4}, Bitmap(), {0, 0, 4, 4}, 255);
    AlphaBlend(drawn, {0, 0, 4, 4}, source, {0, 0, 4, 4}, -1);
    AlphaBlend(drawn, {0, 0, 4, 4}, source, {0, 0, 4, 4}, 0);
    AlphaBlend(drawn, {100, 100, 4, 4}, source, {0, 0, 2, 2}, 255);
    EXPECT_EQ(drawn, before);
    AlphaBlend(drawn, {0, 0, 4, 4}, source, {0, 0, 4, 4}, 300);
    EXPECT_EQ(drawn.At(3, 3), source.At(3, 3));
}

TEST(AlphaBlend, AStretchedAreaLeavesWhatLiesBesideTheSource) {
    Bitmap source(4, 1, Pixel{10, 20, 30, 0});
    const Pixel before{1, 2, 3, 0};
    Bitmap drawn(24, 1, before);
    AlphaBlend(drawn, {0, 0, 24, 1}, source, {-4, 0, 12, 1}, 255);
    for (int x = 0; x < 24; ++x)
        EXPECT_EQ(drawn.At(x, 0), x >= 8 && x < 16 ? source.At(0, 0) : before) << x;
}

} // namespace
} // namespace mirelle::test
