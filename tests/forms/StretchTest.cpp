#include "forms/Stretch.h"

#include "forms/RunTimeError.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <ostream>
#include <string>

namespace mirelle {

void PrintTo(const Pixel& pixel, std::ostream* out) {
    *out << '(' << int{pixel.blue} << ' ' << int{pixel.green} << ' ' << int{pixel.red} << ' '
         << int{pixel.fourth} << ')';
}

namespace {

using test::NoiseBitmap;

const Pixel& Nearest(const Bitmap& bitmap, int x, int y) {
    return bitmap.At(std::clamp(x, 0, bitmap.Width() - 1), std::clamp(y, 0, bitmap.Height() - 1));
}

// The box average on a grid so fine that both source and destination pixels are made of whole cells.
Pixel MeanByCells(const Bitmap& source, const PixelArea& from, const PixelArea& to, int column, int row) {
    std::array<long, 4> sum{};
    for (int cellY = row * from.height; cellY < (row + 1) * from.height; ++cellY) {
        for (int cellX = column * from.width; cellX < (column + 1) * from.width; ++cellX) {
            const Pixel& pixel = Nearest(source, from.x + cellX / to.width, from.y + cellY / to.height);
            sum[0] += pixel.blue;
            sum[1] += pixel.green;
            sum[2] += pixel.red;
            sum[3] += pixel.fourth;
        }
    }
    const long cells = static_cast<long>(from.width) * from.height;
    const auto rounded = [cells](long total) {
        const long below = total / cells;
        return static_cast<std::uint8_t>(2 * (total - below * cells) >= cells ? below + 1 : below);
    };
    return {rounded(sum[0]), rounded(sum[1]), rounded(sum[2]), rounded(sum[3])};
}

Bitmap StretchedByCells(const Bitmap& source, const PixelArea& from, Bitmap target, const PixelArea& to) {
    for (int row = 0; row < to.height; ++row) {
        for (int column = 0; column < to.width; ++column) {
            if (!target.Contains(to.x + column, to.y + row)) continue;
            target.At(to.x + column, to.y + row) = MeanByCells(source, from, to, column, row);
        }
    }
    return target;
}

void ExpectBoxAverage(const Bitmap& source, const PixelArea& from, const PixelArea& to) {
    Bitmap target = NoiseBitmap(24, 21, 7);
    const Bitmap expected = StretchedByCells(source, from, target, to);
    StretchHalftone(source, from, target, to);
    EXPECT_EQ(target, expected) << "from " << from.x << ',' << from.y << ' ' << from.width << 'x'
                                << from.height << " to " << to.x << ',' << to.y << ' ' << to.width << 'x'
                                << to.height;
}

TEST(Stretch, OfTheSameSizeCopiesAllFourBytes) {
    const Bitmap source = NoiseBitmap(9, 6, 1);
    Bitmap target(9, 6);
    StretchHalftone(source, {0, 0, 9, 6}, target, {0, 0, 9, 6});
    EXPECT_EQ(target, source);
}

TEST(Stretch, TakesTheMeanOfTheSourceAreaUnderEachPixel) {
    Bitmap source(3, 1);
    source.At(0, 0) = {30, 0, 0, 0};
    source.At(1, 0) = {60, 0, 0, 0};
    source.At(2, 0) = {120, 0, 0, 0};
    Bitmap target(2, 1);
    StretchHalftone(source, {0, 0, 3, 1}, target, {0, 0, 2, 1});
    EXPECT_EQ(target.At(0, 0), (Pixel{40, 0, 0, 0})); // (30 + 60/2) / 1.5
    EXPECT_EQ(target.At(1, 0), (Pixel{100, 0, 0, 0}));
}

TEST(Stretch, RoundsToTheNearestAndATieUp) {
    struct Row {
        std::array<std::uint8_t, 4> values;
        std::uint8_t mean;
    };
    for (const Row& row :
         {Row{{0, 0, 0, 1}, 0}, Row{{0, 0, 1, 1}, 1}, Row{{0, 1, 1, 1}, 1}, Row{{2, 1, 2, 1}, 2},
          Row{{255, 255, 255, 254}, 255}, Row{{255, 254, 254, 255}, 255}, Row{{254, 254, 254, 255}, 254}}) {
        Bitmap source(2, 2);
        for (int i = 0; i < 4; ++i) {
            const std::uint8_t value = row.values[static_cast<std::size_t>(i)];
            source.At(i % 2, i / 2) = {value, value, value, value};
        }
        Bitmap halved(1, 1);
        StretchHalftone(source, {0, 0, 2, 2}, halved, {0, 0, 1, 1});
        EXPECT_EQ(halved.At(0, 0), (Pixel{row.mean, row.mean, row.mean, row.mean}));
    }
    // Where source pixels are parted: 4 to 3 has shares of 1 and 1/3, 2/3 and 2/3, 1/3 and 1, and the middle
    // one is a tie.
    Bitmap four(4, 1);
    four.At(2, 0).red = 1;
    Bitmap three(3, 1);
    StretchHalftone(four, {0, 0, 4, 1}, three, {0, 0, 3, 1});
    EXPECT_EQ(three.At(0, 0).red, 0);
    EXPECT_EQ(three.At(1, 0).red, 1);
    EXPECT_EQ(three.At(2, 0).red, 0);
}

TEST(Stretch, IsTheBoxAverageForEverySmallPairOfSizes) {
    const Bitmap source = NoiseBitmap(13, 11, 2);
    for (int from = 1; from <= 11; ++from) {
        for (int to = 1; to <= 11; ++to) {
            ExpectBoxAverage(source, {1, 0, from, 12 - from}, {2, 3, to, to});
            ExpectBoxAverage(source, {1, 0, from, 6}, {2, 3, to, 3});
        }
    }
}

TEST(Stretch, GivesTheNearestEdgePixelBeyondTheSource) {
    const Bitmap source = NoiseBitmap(5, 4, 3);
    for (const PixelArea& from : {PixelArea{-3, -2, 12, 9}, PixelArea{2, 2, 9, 6}, PixelArea{-9, -9, 6, 6},
                                  PixelArea{7, 1, 4, 4}, PixelArea{0, 9, 3, 3}, PixelArea{-1, -1, 6, 6}}) {
        ExpectBoxAverage(source, from, {0, 0, 6, 6});
        ExpectBoxAverage(source, from, {1, 1, 3, 3});
        ExpectBoxAverage(source, from, {1, 1, 5, 7});
        ExpectBoxAverage(source, from, {0, 0, from.width, from.height});
    }
}

TEST(Stretch, OfWholeFactorsIsTheBoxAverageToo) {
    const Bitmap source = NoiseBitmap(17, 19, 4);
    for (int kx = 1; kx <= 5; ++kx) {
        for (int ky = 1; ky <= 5; ++ky) {
            for (int origin = -7; origin <= 7; origin += 2) {
                ExpectBoxAverage(source, {origin, -origin, 5 * kx, 4 * ky}, {1, 2, 5, 4});
            }
        }
    }
}

TEST(Stretch, DrawsNothingOutsideOfTheTarget) {
    const Bitmap source = NoiseBitmap(8, 8, 5);
    for (const PixelArea& to : {PixelArea{-2, -3, 6, 6}, PixelArea{20, 18, 8, 8}, PixelArea{-9, 0, 4, 4},
                                PixelArea{24, 0, 4, 4}, PixelArea{3, 21, 4, 4}, PixelArea{-5, -5, 40, 40}}) {
        ExpectBoxAverage(source, {0, 0, 8, 8}, to);
        ExpectBoxAverage(source, {0, 0, to.width, to.height}, to);
        ExpectBoxAverage(source, {1, 1, 2 * to.width, 2 * to.height}, to);
    }
}

TEST(Stretch, DrawsNothingOutsideOfTheClip) {
    const Bitmap source = NoiseBitmap(20, 18, 5);
    const PixelArea from = {1, 2, 18, 14};
    for (const PixelArea& to : {PixelArea{3, 4, 9, 7}, PixelArea{3, 4, 18, 14}, PixelArea{-2, 4, 11, 13}}) {
        for (const PixelArea& clip : {PixelArea{5, 6, 3, 4}, PixelArea{-4, -4, 9, 30}, PixelArea{6, 0, 0, 9},
                                      PixelArea{30, 30, 4, 4}, PixelArea{0, 0, INT_MAX, INT_MAX}}) {
            const Bitmap before = NoiseBitmap(24, 21, 7);
            Bitmap whole = before;
            StretchHalftone(source, from, whole, to);
            Bitmap clipped = before;
            StretchHalftone(source, from, clipped, to, clip);
            for (int y = 0; y < 21; ++y) {
                for (int x = 0; x < 24; ++x) {
                    const bool inside =
                        x >= clip.x && x - clip.x < clip.width && y >= clip.y && y - clip.y < clip.height;
                    ASSERT_EQ(clipped.At(x, y), inside ? whole.At(x, y) : before.At(x, y));
                }
            }
        }
    }
}

TEST(Stretch, SpreadsOnePixelColumnInsideOneBitmap) {
    Bitmap bitmap = NoiseBitmap(10, 4, 6);
    const Bitmap before = bitmap;
    StretchHalftone(bitmap, {4, 0, 1, 3}, bitmap, {5, 0, 7, 3});
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 10; ++x) {
            EXPECT_EQ(bitmap.At(x, y), x > 4 && y < 3 ? before.At(4, y) : before.At(x, y));
        }
    }
}

TEST(Stretch, WithoutPixelsDrawsNothing) {
    const Bitmap source = NoiseBitmap(4, 4, 8);
    Bitmap target = NoiseBitmap(4, 4, 9);
    const Bitmap before = target;
    StretchHalftone(source, {0, 0, 0, 4}, target, {0, 0, 4, 4});
    StretchHalftone(source, {0, 0, 4, 4}, target, {0, 0, 4, 0});
    StretchHalftone(source, {0, 0, 4, -4}, target, {0, 0, 4, 4});
    StretchHalftone(Bitmap(), {0, 0, 4, 4}, target, {0, 0, 4, 4});
    EXPECT_EQ(target, before);
    Bitmap none;
    StretchHalftone(source, {0, 0, 4, 4}, none, {0, 0, 4, 4});
    EXPECT_TRUE(none.IsEmpty());
}

TEST(Stretch, KeepsToMemoryAtTheEndsOfTheNumberRange) {
    const Bitmap source(3, 3, {1, 2, 3, 4});
    Bitmap target(3, 3);
    StretchHalftone(source, {INT_MAX, INT_MIN, 2, 2}, target, {0, 0, 1, 1});
    EXPECT_EQ(target.At(0, 0), (Pixel{1, 2, 3, 4}));
    StretchHalftone(source, {INT_MIN, INT_MAX, 3, 3}, target, {-1, -1, 3, 3});
    EXPECT_EQ(target.At(1, 1), (Pixel{1, 2, 3, 4}));
    const Bitmap before = target;
    StretchHalftone(source, {0, 0, 3, 3}, target, {INT_MAX, INT_MIN, 3, 3});
    EXPECT_EQ(target, before);
}

TEST(Stretch, SumsOfALongAreaAreExact) {
    const Bitmap source(1, 1, {255, 254, 1, 0});
    Bitmap target(1, 1);
    StretchHalftone(source, {0, 0, kLongestStretch / 64, 1}, target, {0, 0, 1, 1});
    EXPECT_EQ(target.At(0, 0), (Pixel{255, 254, 1, 0}));
}

TEST(Stretch, OfAnAreaBeyondTheLongestRaisesInvalidProcedureCall) {
    const Bitmap source(1, 1);
    Bitmap target(1, 1);
    try {
        StretchHalftone(source, {0, 0, kLongestStretch + 1, 1}, target, {0, 0, 1, 1});
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::InvalidProcedureCall);
    }
}

} // namespace
} // namespace mirelle
