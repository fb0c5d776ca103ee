#include "forms/Picture.h"
#include "tests/support/ErrorOf.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

namespace mirelle {
namespace {

using test::ErrorOf;

constexpr Pixel kInk{1, 2, 3, 4};

TEST(Color, HasBlueHighAndRedLow) {
    EXPECT_EQ(RGB(0x12, 0x34, 0x56), 0x563412);
    EXPECT_EQ(ColorOf({0x56, 0x34, 0x12, 0xFF}), 0x563412) << "the fourth byte does not count";
    EXPECT_EQ(PixelOf(0x563412), (Pixel{0x56, 0x34, 0x12, 0}));
    for (int value = 0; value <= 255; ++value) {
        EXPECT_EQ(RGB(value, 0, 0), value);
        EXPECT_EQ(RGB(0, value, 0), value * 256);
        EXPECT_EQ(RGB(0, 0, value), value * 65536);
        EXPECT_EQ(ColorOf(PixelOf(RGB(value, 255 - value, value / 2))), RGB(value, 255 - value, value / 2));
    }
}

TEST(Color, LimitsComponentsToAByte) {
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr int kMost = std::numeric_limits<int>::max();
    EXPECT_EQ(RGB(256, 0, 0), 255);
    EXPECT_EQ(RGB(0, 999, 0), 0xFF00);
    EXPECT_EQ(RGB(0, 0, kMost), 0xFF0000);
    EXPECT_EQ(RGB(-1, kLeast, -255), 0);
    EXPECT_NE(RGB(kMost, kMost, kMost), kOffPicture) << "white is on the picture";
}

TEST(Pixel, LiesInMemoryAsBlueGreenRedFourth) {
    const Pixel pixel{10, 20, 30, 40};
    unsigned char bytes[4];
    std::memcpy(bytes, &pixel, sizeof bytes);
    EXPECT_EQ(bytes[0], 10);
    EXPECT_EQ(bytes[1], 20);
    EXPECT_EQ(bytes[2], 30);
    EXPECT_EQ(bytes[3], 40);
}

TEST(Bitmap, HasNoPixelsAtFirst) {
    const Bitmap none;
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_EQ(none.Width(), 0);
    EXPECT_EQ(none.Height(), 0);
    EXPECT_EQ(none.ByteCount(), 0U);
    EXPECT_FALSE(none.Contains(0, 0));
}

TEST(Bitmap, IsFilledWithTheGivenPixel) {
    const Bitmap bitmap(3, 2, kInk);
    EXPECT_EQ(bitmap.ByteCount(), 24U);
    EXPECT_TRUE(
        std::all_of(bitmap.Pixels().begin(), bitmap.Pixels().end(), [](Pixel p) { return p == kInk; }));
    EXPECT_EQ(Bitmap(1, 1).At(0, 0), Pixel{});
}

TEST(Bitmap, HoldsRowsFromTheTopWithoutPadding) {
    Bitmap bitmap(3, 2);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x)
            bitmap.At(x, y).blue = static_cast<std::uint8_t>(10 * y + x);
    }
    const std::uint8_t expected[] = {0, 1, 2, 10, 11, 12};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(bitmap.Pixels()[i].blue, expected[i]);
    EXPECT_EQ(bitmap.Row(1).size(), 3U);
    EXPECT_EQ(bitmap.Row(1)[2].blue, 12);
    bitmap.Row(0)[1].red = 9;
    EXPECT_EQ(bitmap.At(1, 0).red, 9);
}

TEST(Bitmap, ContainsItsOwnPlacesOnly) {
    const Bitmap bitmap(3, 2);
    for (int y = -2; y <= 4; ++y) {
        for (int x = -2; x <= 4; ++x) {
            EXPECT_EQ(bitmap.Contains(x, y), x >= 0 && x <= 2 && y >= 0 && y <= 1) << x << ' ' << y;
        }
    }
    EXPECT_FALSE(bitmap.Contains(std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

TEST(Bitmap, MayHaveNoArea) {
    for (const auto& [width, height] : {std::pair(0, 0), std::pair(0, 5), std::pair(5, 0)}) {
        const Bitmap bitmap(width, height);
        EXPECT_TRUE(bitmap.IsEmpty());
        EXPECT_EQ(bitmap.Width(), width);
        EXPECT_EQ(bitmap.Height(), height);
    }
}

TEST(Bitmap, RaisesAnErrorForANegativeSize) {
    EXPECT_EQ(ErrorOf([] { Bitmap(-1, 1); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { Bitmap(1, -1); }), ErrorNumber::InvalidProcedureCall);
}

TEST(Bitmap, UnwrittenHasItsSizeAndRaisesWhatASizeRaises) {
    Bitmap bitmap = Bitmap::Unwritten(3, 2);
    EXPECT_EQ(bitmap.Width(), 3);
    EXPECT_EQ(bitmap.Height(), 2);
    EXPECT_EQ(bitmap.Pixels().size(), 6U);
    std::ranges::fill(bitmap.Pixels(), Pixel{1, 2, 3, 4});
    EXPECT_EQ(bitmap, Bitmap(3, 2, {1, 2, 3, 4}));
    constexpr int kMost = std::numeric_limits<int>::max();
    EXPECT_EQ(ErrorOf([] { Bitmap::Unwritten(kMost, kMost); }), ErrorNumber::OutOfMemory);
    EXPECT_EQ(ErrorOf([] { Bitmap::Unwritten(-1, 1); }), ErrorNumber::InvalidProcedureCall);
}

TEST(Bitmap, RaisesOutOfMemoryForASizeThatNoMemoryHolds) {
    constexpr int kMost = std::numeric_limits<int>::max();
    EXPECT_EQ(ErrorOf([] { Bitmap(kMost, kMost); }), ErrorNumber::OutOfMemory);
}

TEST(Bitmap, EqualsABitmapOfTheSameSizeAndPixels) {
    Bitmap bitmap(2, 3, kInk);
    EXPECT_EQ(bitmap, Bitmap(2, 3, kInk));
    EXPECT_NE(bitmap, Bitmap(3, 2, kInk));
    bitmap.At(1, 2).fourth = 99;
    EXPECT_NE(bitmap, Bitmap(2, 3, kInk));
}

TEST(Picture, IsEmptyWithoutABitmap) {
    const Picture nothing;
    EXPECT_TRUE(nothing.IsEmpty());
    EXPECT_EQ(nothing.Width(), 0);
    EXPECT_EQ(nothing.Height(), 0);
    EXPECT_TRUE(nothing.Pixels().IsEmpty());
    EXPECT_TRUE(nothing.CopyBitmap().IsEmpty());
}

TEST(Picture, SharesItsPixelsWithItsCopies) {
    const Picture picture(Bitmap(4, 3, kInk));
    const Picture copy = picture; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_FALSE(picture.IsEmpty());
    EXPECT_EQ(picture.Width(), 4);
    EXPECT_EQ(picture.Height(), 3);
    EXPECT_TRUE(copy.SharesPixelsWith(picture));
    EXPECT_EQ(&copy.Pixels(), &picture.Pixels());
    EXPECT_FALSE(Picture(Bitmap(4, 3, kInk)).SharesPixelsWith(picture)) << "equal pixels are not shared ones";
}

TEST(Picture, StaysAsItWasWhenACopyOfItsBitmapIsWritten) {
    const Picture picture(Bitmap(2, 2, kInk));
    Bitmap bitmap = picture.CopyBitmap();
    bitmap.At(0, 0) = Pixel{9, 9, 9, 9};
    EXPECT_EQ(picture.Pixels(), Bitmap(2, 2, kInk));
}

TEST(Picture, OutlivesTheHolderThatItCameFrom) {
    Picture kept;
    {
        const Picture first(Bitmap(2, 2, kInk));
        kept = first;
    }
    EXPECT_EQ(kept.Pixels(), Bitmap(2, 2, kInk));
}

TEST(Bitmap, HasNoSizeOnceItIsMovedAway) {
    Bitmap from(3, 2, Pixel{1, 2, 3, 4});
    Bitmap to(std::move(from));
    EXPECT_EQ(from, Bitmap()); // NOLINT(bugprone-use-after-move)
    from = std::move(to);
    EXPECT_EQ(from, Bitmap(3, 2, Pixel{1, 2, 3, 4}));
    EXPECT_EQ(to, Bitmap()); // NOLINT(bugprone-use-after-move)
}

} // namespace
} // namespace mirelle
