// How large the planes are, and which pixels they show.
#include "codecs/jpeg/DataPlanes.h"
#include "codecs/jpeg/SurfacePlanes.h"
#include "tests/codecs/JpegFile.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>

namespace mirelle {
namespace {

using jpeg::PlaneSize;
using test::NoiseBitmap;
using test::RaisedBy;

using Rgb = std::array<int, 3>;
using Grid = std::vector<std::vector<Rgb>>;

jpeg::Frame FrameOf(const std::array<int, 6>& f) {
    jpeg::Frame frame;
    jpeg::SetSamplingFrequencies(frame, f[0], f[1], f[2], f[3], f[4], f[5]);
    return frame;
}

std::vector<PlaneSize> SizesOf(const jpeg::Frame& frame, int w8, int h8) {
    std::vector<PlaneSize> sizes;
    for (const auto& component : frame.Components)
        sizes.push_back(jpeg::PlaneSizeOf(component, frame, w8, h8));
    return sizes;
}

Grid Seen(const jpeg::PlaneView& view, const PlaneSize& size) {
    Grid grid;
    std::vector<std::uint8_t> scratch(static_cast<std::size_t>(size.xa) * view.pixelBytes);
    for (int y = 0; y < size.ya; ++y) {
        const std::uint8_t* bytes = view.Row(y, size.xa, scratch);
        std::vector<Rgb> row;
        for (int x = 0; x < size.xa; ++x, bytes += view.pixelBytes)
            row.push_back({bytes[0], bytes[1], bytes[2]});
        grid.push_back(row);
    }
    return grid;
}

Rgb At(const Bitmap& bitmap, int x, int y) {
    const Pixel& pixel =
        bitmap.At(std::clamp(x, 0, bitmap.Width() - 1), std::clamp(y, 0, bitmap.Height() - 1));
    return {pixel.blue, pixel.green, pixel.red};
}

Rgb MeanOfFour(const Bitmap& bitmap, int x, int y) {
    Rgb mean{};
    for (std::size_t k = 0; k < 3; ++k) {
        mean[k] = (At(bitmap, x, y)[k] + At(bitmap, x + 1, y)[k] + At(bitmap, x, y + 1)[k] +
                   At(bitmap, x + 1, y + 1)[k] + 2) /
                  4;
    }
    return mean;
}

// All planes of a surface's picture.
std::vector<Grid> PlanesOf(const Bitmap& surface, const std::array<int, 6>& factors,
                           const PixelArea& picture) {
    const jpeg::Frame frame = FrameOf(factors);
    const int w8 = jpeg::RoundedUpTo8(picture.width);
    const int h8 = jpeg::RoundedUpTo8(picture.height);
    const auto sizes = SizesOf(frame, w8, h8);
    jpeg::SurfacePlanes planes(surface, picture, w8, h8, sizes);
    std::vector<Grid> grids;
    for (const PlaneSize& size : sizes)
        grids.push_back(Seen(planes.Next(), size));
    return grids;
}

TEST(JpegGeometry, PlanesAreSharesOfTheFrameInWholeBlocks) {
    struct Row {
        std::array<int, 6> factors;
        int width, height;
        std::vector<PlaneSize> planes;
    };
    const Row rows[] = {
        {{2, 2, 1, 1, 1, 1}, 1, 1, {{8, 8, 8, 8}, {4, 4, 8, 8}, {4, 4, 8, 8}}},
        {{2, 2, 1, 1, 1, 1}, 17, 9, {{24, 16, 24, 16}, {12, 8, 16, 8}, {12, 8, 16, 8}}},
        {{3, 3, 2, 2, 1, 1}, 8, 16, {{8, 16, 8, 16}, {6, 11, 8, 16}, {3, 6, 8, 8}}},
        {{1, 2, 4, 1, 2, 4}, 32, 32, {{8, 16, 8, 16}, {32, 8, 32, 8}, {16, 32, 16, 32}}},
        {{4, 3, 0, 0, 0, 0}, 20, 20, {{24, 24, 24, 24}}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(
            SizesOf(FrameOf(row.factors), jpeg::RoundedUpTo8(row.width), jpeg::RoundedUpTo8(row.height)),
            row.planes);
    }
}

TEST(JpegGeometry, WhatLeaves32BitsRaisesOverflow) {
    EXPECT_EQ(RaisedBy([] { jpeg::RoundedUpTo8(2147483641); }).number, 6);
    EXPECT_EQ(jpeg::RoundedUpTo8(2147483640), 2147483640);
    const jpeg::Frame frame = FrameOf({4, 4, 1, 1, 1, 1});
    EXPECT_EQ(RaisedBy([&] { jpeg::PlaneSizeOf(frame.Components[0], frame, 1 << 29, 8); }).number, 6);
}

TEST(JpegGeometry, FactorsOutsideOfOneToFourAreInvalid) {
    for (std::size_t place = 0; place < 6; ++place) {
        for (const int factor : {-1, 0, 5}) {
            jpeg::Frame frame = FrameOf({3, 1, 1, 1, 1, 2});
            std::array<int, 6> f = {2, 2, 2, 2, 2, 2};
            f[place] = factor;
            const auto raised =
                RaisedBy([&] { jpeg::SetSamplingFrequencies(frame, f[0], f[1], f[2], f[3], f[4], f[5]); });
            EXPECT_EQ(raised.number, 1);
            EXPECT_EQ(raised.description, "Invalid Sampling Value");
            EXPECT_EQ(frame.Hmax, 3) << "the frame stays as it was";
        }
    }
    jpeg::Frame frame;
    EXPECT_EQ(RaisedBy([&] { jpeg::SetSamplingFrequencies(frame, 5, 1, 0, 0, 0, 0); }).number, 1)
        << "a grey picture's factors are looked at too";
}

TEST(JpegGeometry, AGreyPictureHasOneComponentOfFactorsOne) {
    const jpeg::Frame frame = FrameOf({4, 3, 0, 0, 0, 0});
    ASSERT_EQ(frame.Nf(), 1);
    EXPECT_EQ(frame.Components[0].Hi, 1);
    EXPECT_EQ(frame.Components[0].Vi, 1);
    EXPECT_EQ(frame.Components[0].Tqi, 0);
    EXPECT_EQ(frame.Hmax, 1);
    EXPECT_EQ(frame.Vmax, 1);
}

TEST(JpegSurfacePlanes, AFullPlaneIsTheSurfaceWithItsEdgePixelsBeyond) {
    const Bitmap surface = NoiseBitmap(11, 9, 1);
    for (const PixelArea& picture :
         {PixelArea{0, 0, 11, 9}, PixelArea{-3, 2, 16, 8}, PixelArea{5, -6, 3, 30}}) {
        for (const Grid& grid : PlanesOf(surface, {1, 1, 1, 1, 1, 1}, picture)) {
            for (int y = 0; y < static_cast<int>(grid.size()); ++y) {
                for (int x = 0; x < static_cast<int>(grid[0].size()); ++x) {
                    ASSERT_EQ(grid[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)],
                              At(surface, picture.x + x, picture.y + y));
                }
            }
        }
    }
}

TEST(JpegSurfacePlanes, AHalvedPlaneTakesMeansOfTheFrameInWholeBlocks) {
    const Bitmap surface = NoiseBitmap(32, 16, 2);
    const auto planes = PlanesOf(surface, {2, 2, 1, 1, 1, 1}, {0, 0, 32, 16});
    for (std::size_t p = 1; p < 3; ++p) {
        ASSERT_EQ(planes[p].size(), 8U);
        ASSERT_EQ(planes[p][0].size(), 16U);
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 16; ++x) {
                ASSERT_EQ(planes[p][static_cast<std::size_t>(y)][static_cast<std::size_t>(x)],
                          MeanOfFour(surface, 2 * x, 2 * y));
            }
        }
    }
}

// 17 x 9: the frame is 24 x 16, the halved plane 12 x 8 in 16 x 8. Column 12 is what the full plane left
// there.
TEST(JpegSurfacePlanes, TheColumnBesideThePictureKeepsWhatTheBufferHeldAndIsSpread) {
    const Bitmap surface = NoiseBitmap(40, 40, 3);
    const auto planes = PlanesOf(surface, {2, 2, 1, 1, 1, 1}, {4, 5, 17, 9});
    for (std::size_t p = 1; p < 3; ++p) {
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 16; ++x) {
                const Rgb expected =
                    x < 12 ? MeanOfFour(surface, 4 + 2 * x, 5 + 2 * y) : At(surface, 4 + 12, 5 + y);
                ASSERT_EQ(planes[p][static_cast<std::size_t>(y)][static_cast<std::size_t>(x)], expected)
                    << p << ": " << x << ' ' << y;
            }
        }
    }
}

TEST(JpegSurfacePlanes, TheRowBelowThePictureIsSpreadOverTheWholeWidth) {
    const Bitmap surface = NoiseBitmap(40, 40, 4);
    const auto planes = PlanesOf(surface, {2, 2, 1, 1, 1, 1}, {0, 0, 24, 24});
    for (std::size_t p = 1; p < 3; ++p) {
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                const Rgb expected = y >= 12   ? At(surface, x, 12)
                                     : x >= 12 ? At(surface, 12, y)
                                               : MeanOfFour(surface, 2 * x, 2 * y);
                ASSERT_EQ(planes[p][static_cast<std::size_t>(y)][static_cast<std::size_t>(x)], expected)
                    << p << ": " << x << ' ' << y;
            }
        }
    }
}

// The new size in whole blocks, 8 x 8, is the size in samples of the plane before, so the first halved plane
// is the full one once more; the second finds 4 x 4 before it.
TEST(JpegSurfacePlanes, APlaneAsLargeInBlocksAsTheOneBeforeInSamplesIsNotFetchedAnew) {
    const Bitmap surface = NoiseBitmap(8, 8, 5);
    const auto planes = PlanesOf(surface, {2, 2, 1, 1, 1, 1}, {0, 0, 8, 8});
    EXPECT_EQ(planes[1], planes[0]);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const Rgb expected = y >= 4   ? At(surface, x, 4)
                                 : x >= 4 ? At(surface, 4, y)
                                          : MeanOfFour(surface, 2 * x, 2 * y);
            ASSERT_EQ(planes[2][static_cast<std::size_t>(y)][static_cast<std::size_t>(x)], expected);
        }
    }
}

TEST(JpegSurfacePlanes, TheBufferIsBlackAtFirst) {
    const Bitmap surface(8, 8, {200, 150, 100, 50});
    const auto planes = PlanesOf(surface, {1, 1, 2, 2, 2, 2}, {0, 0, 8, 8});
    for (std::size_t y = 0; y < 8; ++y) {
        for (std::size_t x = 0; x < 8; ++x) {
            const bool inside = x < 4 && y < 4;
            EXPECT_EQ(planes[0][y][x], inside ? (Rgb{200, 150, 100}) : (Rgb{0, 0, 0})) << x << ' ' << y;
            EXPECT_EQ(planes[1][y][x], (Rgb{200, 150, 100}));
        }
    }
}

// 12 of 16 samples are three quarters: the plane is as large as the picture itself, and is copied, not
// shrunk.
TEST(JpegSurfacePlanes, APlaneOfThePicturesOwnSizeIsCopied) {
    const Bitmap surface = NoiseBitmap(16, 16, 6);
    const auto copied = PlanesOf(surface, {4, 4, 3, 3, 3, 3}, {0, 0, 12, 12});
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 12; ++x) {
            ASSERT_EQ(copied[2][static_cast<std::size_t>(y)][static_cast<std::size_t>(x)], At(surface, x, y));
        }
    }
    const auto shrunk = PlanesOf(surface, {4, 4, 3, 3, 3, 3}, {0, 0, 12, 16});
    EXPECT_NE(shrunk[2][0][1], At(surface, 1, 0));
    // A pixel and a third of the next one, in both directions.
    const auto weighted = [&](std::size_t k) {
        return (9 * At(surface, 0, 0)[k] + 3 * At(surface, 1, 0)[k] + 3 * At(surface, 0, 1)[k] +
                At(surface, 1, 1)[k] + 8) /
               16;
    };
    EXPECT_EQ(shrunk[2][0][0], (Rgb{weighted(0), weighted(1), weighted(2)}));
}

// Data whose bytes tell their place: blue the column, green the row, red 7.
std::vector<std::uint8_t> PlaceData(int columns, int rows) {
    std::vector<std::uint8_t> data;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            data.insert(data.end(), {static_cast<std::uint8_t>(column), static_cast<std::uint8_t>(row), 7});
        }
    }
    return data;
}

std::vector<Grid> DataPlanesOf(const jpeg::PixelData& data, const std::array<int, 6>& factors,
                               const PixelArea& picture) {
    const jpeg::Frame frame = FrameOf(factors);
    const int w8 = jpeg::RoundedUpTo8(picture.width);
    const int h8 = jpeg::RoundedUpTo8(picture.height);
    const auto sizes = SizesOf(frame, w8, h8);
    jpeg::DataPlanes planes(data, picture, w8, h8, sizes);
    std::vector<Grid> grids;
    for (const PlaneSize& size : sizes)
        grids.push_back(Seen(planes.Next(), size));
    return grids;
}

TEST(JpegDataPlanes, StartAtTheHighestRowAndLeaveTheRestBlack) {
    const auto bytes = PlaceData(20, 20);
    const auto planes = DataPlanesOf({bytes, 20, 20}, {2, 2, 1, 1, 1, 1}, {3, 2, 11, 6});
    for (std::size_t y = 0; y < 8; ++y) {
        for (std::size_t x = 0; x < 16; ++x) {
            const Rgb expected =
                x < 11 && y < 6 ? Rgb{3 + static_cast<int>(x), 7 - static_cast<int>(y), 7} : Rgb{};
            EXPECT_EQ(planes[0][y][x], expected) << x << ' ' << y;
        }
        for (std::size_t x = 0; x < 8; ++x) {
            const Rgb expected =
                x < 6 && y < 3 ? Rgb{3 + 2 * static_cast<int>(x), 7 - 2 * static_cast<int>(y), 7} : Rgb{};
            EXPECT_EQ(planes[1][y][x], expected) << x << ' ' << y;
            EXPECT_EQ(planes[2][y][x], expected) << x << ' ' << y;
        }
    }
}

// Three quarters: 16 samples to 12 are a step of one, so a row's last four run into the next row, which
// overwrites them. The last row has no next one.
TEST(JpegDataPlanes, ASampleWithoutAPlaceInThePlaneRaisesSubscriptOutOfRange) {
    const auto bytes = PlaceData(32, 32);
    const jpeg::PixelData data = {bytes, 32, 32};
    EXPECT_EQ(RaisedBy([&] { DataPlanesOf(data, {4, 4, 3, 3, 3, 3}, {0, 0, 32, 32}); }).number, 9);
    const auto planes = DataPlanesOf(data, {4, 4, 3, 4, 3, 4}, {0, 0, 28, 23});
    for (std::size_t y = 0; y < 23; ++y) {
        for (std::size_t x = 0; x < 24; ++x) {
            EXPECT_EQ(planes[1][y][x], (Rgb{static_cast<int>(x), 22 - static_cast<int>(y), 7}));
        }
    }
    for (std::size_t x = 0; x < 24; ++x) {
        EXPECT_EQ(planes[1][23][x], x < 4 ? (Rgb{24 + static_cast<int>(x), 0, 7}) : (Rgb{0, 0, 0}));
    }
}

TEST(JpegDataPlanes, ASampleOutsideOfTheDataRaisesSubscriptOutOfRange) {
    const auto bytes = PlaceData(10, 10);
    const std::array<int, 6> factors = {1, 1, 0, 0, 0, 0};
    const auto number = [&](const jpeg::PixelData& data, const PixelArea& picture) {
        return RaisedBy([&] { DataPlanesOf(data, factors, picture); }).number;
    };
    EXPECT_EQ(number({bytes, 10, 10}, {0, 0, 10, 10}), 0);
    EXPECT_EQ(number({bytes, 10, 10}, {1, 0, 10, 10}), 9);
    EXPECT_EQ(number({bytes, 10, 10}, {0, 1, 10, 10}), 9);
    EXPECT_EQ(number({bytes, 10, 10}, {-1, 0, 4, 4}), 9);
    EXPECT_EQ(number({bytes, 10, 10}, {0, -1, 4, 4}), 9);
    EXPECT_EQ(number({bytes, 10, 11}, {0, 0, 10, 11}), 9) << "dimensions that the bytes don't have";
    EXPECT_EQ(number({bytes, 2147483647, 2147483647}, {2147483600, 2147483600, 8, 8}), 9);
}

} // namespace
} // namespace mirelle
