// The two layers of a surface: when it changes its size, and when it is painted or looked at.
#include "forms/Surface.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

constexpr Pixel kRed{0, 0, 255, 0};
constexpr Pixel kGreen{0, 255, 0, 0};
constexpr Color kGrey = 0x808080;

Surface SurfaceWithPicture(int width, int height) {
    Surface surface;
    surface.SetBackground(kGrey);
    surface.Resize(width, height);
    surface.Assign(Picture(Bitmap(20, 20, kRed)));
    return surface;
}

TEST(SurfaceSize, GrowingShowsThePartOfThePictureThatWasCutAlsoWhenTheImageWasLookedAt) {
    Surface surface = SurfaceWithPicture(10, 10);
    ASSERT_EQ(surface.Image().Width(), 10);
    surface.Resize(20, 20);
    EXPECT_EQ(surface.Image().Pixels().At(15, 15), kRed);
    surface.Resize(24, 24);
    EXPECT_EQ(surface.Image().Pixels().At(15, 15), kRed);
    EXPECT_EQ(surface.Image().Pixels().At(22, 22), PixelOf(kGrey));
}

TEST(SurfaceSize, WhatWasPaintedStaysFromTheCornerAndNewAreaShowsTheBackground) {
    Surface surface = SurfaceWithPicture(10, 10);
    surface.Paint().At(3, 3) = kGreen;
    surface.Resize(20, 20);
    EXPECT_EQ(surface.Image().Pixels().At(3, 3), kGreen);
    EXPECT_EQ(surface.Image().Pixels().At(4, 4), kRed);
    EXPECT_EQ(surface.Image().Pixels().At(15, 15), PixelOf(kGrey));
}

TEST(SurfaceSize, AnAssignedPictureTakesThePlaceOfWhatWasPainted) {
    Surface surface = SurfaceWithPicture(10, 10);
    surface.Paint().At(3, 3) = kGreen;
    surface.Assign(Picture(Bitmap(20, 20, kRed)));
    ASSERT_EQ(surface.Image().Pixels().At(3, 3), kRed);
    surface.Resize(20, 20);
    EXPECT_EQ(surface.Image().Pixels().At(15, 15), kRed);
}

TEST(SurfaceCopy, OfAllOfItLeavesWhatOthersHoldAndNothingOfWhatWasThere) {
    Surface surface = SurfaceWithPicture(10, 10);
    surface.Paint().At(3, 3) = kGreen;
    const Picture held = surface.Image();
    const Bitmap source(30, 30, {1, 2, 3, 0});
    surface.Copy(source, {5, 5, 10, 10}, 0, 0);
    EXPECT_EQ(held.Pixels().At(3, 3), kGreen);
    EXPECT_EQ(surface.Image().Pixels(), Bitmap(10, 10, {1, 2, 3, 0}));
    // What lies beyond the source is not copied.
    surface.Clear();
    surface.Copy(source, {25, 0, 10, 10}, 0, 0);
    EXPECT_EQ(surface.Image().Pixels().At(4, 4), (Pixel{1, 2, 3, 0}));
    EXPECT_EQ(surface.Image().Pixels().At(5, 4), kRed);
}

// Every second pixel green; the others as they were.
void PaintStripes(Surface& surface) {
    surface.PaintRows([](int, std::span<const Pixel> was, std::span<Pixel> row) {
        for (std::size_t x = 0; x < row.size(); ++x)
            row[x] = x % 2 == 0 ? kGreen : was[x];
    });
}

TEST(SurfaceRows, ArePaintedOverThePictureAndTheBackgroundBesideIt) {
    Surface surface = SurfaceWithPicture(24, 24);
    PaintStripes(surface);
    const Picture painted = surface.Image();
    EXPECT_EQ(painted.Pixels().At(2, 19), kGreen);
    EXPECT_EQ(painted.Pixels().At(19, 19), kRed);
    EXPECT_EQ(painted.Pixels().At(21, 19), PixelOf(kGrey));
    EXPECT_EQ(painted.Pixels().At(19, 21), PixelOf(kGrey));
    EXPECT_EQ(surface.Assigned().Pixels().At(2, 2), kRed);
}

TEST(SurfaceRows, ArePaintedOverWhatWasPaintedBefore) {
    Surface surface = SurfaceWithPicture(10, 10);
    surface.Paint().At(3, 3) = {1, 2, 3, 0};
    PaintStripes(surface);
    EXPECT_EQ(surface.Image().Pixels().At(3, 3), (Pixel{1, 2, 3, 0}));
    EXPECT_EQ(surface.Image().Pixels().At(2, 3), kGreen);
}

TEST(SurfaceRows, LeaveAnImageThatSomebodyHolds) {
    Surface surface = SurfaceWithPicture(10, 10);
    surface.Paint().At(3, 3) = {1, 2, 3, 0};
    const Picture held = surface.Image();
    PaintStripes(surface);
    EXPECT_EQ(held.Pixels().At(2, 3), kRed);
    EXPECT_EQ(surface.Image().Pixels().At(2, 3), kGreen);
    EXPECT_EQ(surface.Image().Pixels().At(3, 3), (Pixel{1, 2, 3, 0}));
}

TEST(SurfaceSeen, IsThePictureItselfWhateverItsSizeUntilSomethingIsPainted) {
    Surface surface = SurfaceWithPicture(10, 10);
    EXPECT_TRUE(surface.Seen().SharesPixelsWith(surface.Assigned()));
    surface.Paint().At(3, 3) = kGreen;
    EXPECT_TRUE(surface.Seen().SharesPixelsWith(surface.Image()));
    surface.Clear();
    EXPECT_TRUE(surface.Seen().SharesPixelsWith(surface.Assigned()));
}

} // namespace
} // namespace mirelle
