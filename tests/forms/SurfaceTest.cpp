// The two layers of a surface when it changes its size.
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

} // namespace
} // namespace mirelle
