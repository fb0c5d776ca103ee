#include "fx/PixelFrame.h"

#include "tests/support/ErrorOf.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

PixelFrame FrameFor(int width, int height) {
    PixelFrame frame;
    frame.SizeFor(width, height);
    return frame;
}

TEST(PixelFrameTest, TheRecordTellsOf32BitsAPixelInOnePlane) {
    const BitmapRecord record = RecordOf(7, 3);
    EXPECT_EQ(record.bmType, 0);
    EXPECT_EQ(record.bmWidth, 7);
    EXPECT_EQ(record.bmHeight, 3);
    EXPECT_EQ(record.bmWidthBytes, 28);
    EXPECT_EQ(record.bmPlanes, 1);
    EXPECT_EQ(record.bmBitsPixel, 32);
    EXPECT_EQ(record.bmBits, 0);
}

TEST(PixelFrameTest, ARecordThatNobodyFilledIsAllZeros) {
    const BitmapRecord record;
    EXPECT_EQ(record.bmType, 0);
    EXPECT_EQ(record.bmWidth, 0);
    EXPECT_EQ(record.bmHeight, 0);
    EXPECT_EQ(record.bmWidthBytes, 0);
    EXPECT_EQ(record.bmPlanes, 0);
    EXPECT_EQ(record.bmBitsPixel, 0);
    EXPECT_EQ(record.bmBits, 0);
}

TEST(PixelFrameTest, SizingMakesAnArrayOfZerosWithTheBoundsOfThePicture) {
    PixelFrame frame = FrameFor(3, 2);
    EXPECT_EQ(frame.bytes.At(3, 2, 1), 0);
    frame.bytes.At(0, 0, 0) = 9;
    frame.SizeFor(2, 3);
    EXPECT_EQ(frame.bytes.At(0, 0, 0), 0);
    EXPECT_EQ(frame.bytes.At(3, 1, 2), 0);
}

TEST(PixelFrameTest, ASubscriptBeyondABoundRaisesError9) {
    const PixelFrame frame = FrameFor(3, 2);
    for (const auto& [channel, x, y] : {std::array{4, 0, 0}, std::array{0, 3, 0}, std::array{0, 0, 2},
                                        std::array{-1, 0, 0}, std::array{0, -1, 0}, std::array{0, 0, -1}}) {
        EXPECT_EQ(ErrorOf([&] { frame.bytes.At(channel, x, y); }), ErrorNumber::SubscriptOutOfRange)
            << channel << ' ' << x << ' ' << y;
    }
}

TEST(PixelFrameTest, AnArrayThatWasNeverSizedHasNoElements) {
    PixelFrame frame;
    Bitmap bitmap(2, 2);
    EXPECT_EQ(ErrorOf([&] { frame.bytes.At(0, 0, 0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { GetBitmapBits(bitmap, frame); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { SetBitmapBits(bitmap, frame); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(PixelFrameTest, APictureOfNoSizeCanNotSizeAnArray) {
    PixelFrame frame = FrameFor(3, 2);
    EXPECT_EQ(ErrorOf([&] { frame.SizeFor(0, 0); }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(ErrorOf([&] { frame.SizeFor(3, 0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(frame.bytes.At(0, 2, 1), 0);
}

TEST(PixelFrameTest, SizingTakesNoMemoryUntilTheBytesAreAskedFor) {
    PixelFrame frame = FrameFor(60000, 60000);
    EXPECT_EQ(frame.ByteCount(), std::int64_t{60000} * 4 * 60000);
    EXPECT_EQ(ErrorOf([&] { frame.bytes.At(0, 0, 0); }), ErrorNumber::OutOfMemory);
    EXPECT_EQ(ErrorOf([&] { frame.bytes.At(0, 0, 60000); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(PixelFrameTest, BitsAreBlueGreenRedFourthFromTheTop) {
    Bitmap bitmap(2, 2);
    bitmap.At(1, 0) = {1, 2, 3, 4};
    bitmap.At(0, 1) = {5, 6, 7, 8};
    PixelFrame frame = FrameFor(2, 2);
    GetBitmapBits(bitmap, frame);
    for (int channel = 0; channel < 4; ++channel) {
        EXPECT_EQ(frame.bytes.At(channel, 1, 0), 1 + channel);
        EXPECT_EQ(frame.bytes.At(channel, 0, 1), 5 + channel);
    }
}

TEST(PixelFrameTest, BitsGoOutAsTheyCameIn) {
    const Bitmap noise = NoiseBitmap(5, 4, 1);
    PixelFrame frame = FrameFor(5, 4);
    GetBitmapBits(noise, frame);
    Bitmap out(5, 4);
    SetBitmapBits(out, frame);
    EXPECT_EQ(out, noise);
}

TEST(PixelFrameTest, BitsOfALargerPictureAreCutWithoutRegardToRows) {
    const Bitmap noise = NoiseBitmap(5, 4, 2);
    PixelFrame frame = FrameFor(3, 2);
    GetBitmapBits(noise, frame);
    EXPECT_EQ(frame.bytes.Row(0)[2], noise.At(2, 0));
    EXPECT_EQ(frame.bytes.Row(1)[0], noise.At(3, 0)); // the frame's second row goes on in the picture's first
    EXPECT_EQ(frame.bytes.Row(1)[2], noise.At(0, 1));
}

TEST(PixelFrameTest, BitsOfASmallerPictureLeaveTheRestOfTheArray) {
    PixelFrame frame = FrameFor(3, 2);
    GetBitmapBits(Bitmap(3, 2, Pixel{9, 9, 9, 9}), frame);
    GetBitmapBits(Bitmap(2, 2, Pixel{1, 1, 1, 1}), frame);
    EXPECT_EQ(frame.bytes.Row(1)[0], (Pixel{1, 1, 1, 1}));
    EXPECT_EQ(frame.bytes.Row(1)[1], (Pixel{9, 9, 9, 9}));
}

TEST(PixelFrameTest, BitsForALargerPictureLeaveItsRest) {
    PixelFrame frame = FrameFor(2, 2);
    Bitmap bitmap(3, 2, Pixel{9, 9, 9, 9});
    SetBitmapBits(bitmap, frame);
    EXPECT_EQ(bitmap.At(2, 0), Pixel{});
    EXPECT_EQ(bitmap.At(0, 1), Pixel{});
    EXPECT_EQ(bitmap.At(1, 1), (Pixel{9, 9, 9, 9}));
}

TEST(PixelFrameTest, BitsForASmallerPictureAreCut) {
    const Bitmap noise = NoiseBitmap(3, 3, 3);
    PixelFrame frame = FrameFor(3, 3);
    GetBitmapBits(noise, frame);
    Bitmap bitmap(2, 1);
    SetBitmapBits(bitmap, frame);
    EXPECT_EQ(bitmap.At(0, 0), noise.At(0, 0));
    EXPECT_EQ(bitmap.At(1, 0), noise.At(1, 0));
}

TEST(PixelFrameTest, BitsOfAPictureOfItsOwnSizeAreSharedUntilTheyAreWritten) {
    const Picture picture(NoiseBitmap(5, 4, 4));
    PixelFrame frame = FrameFor(5, 4);
    frame.bytes.At(0, 0, 0) = 99; // what it held before goes
    GetBitmapBits(picture, frame);
    EXPECT_TRUE(frame.bytes.Share().SharesPixelsWith(picture));
    frame.bytes.At(2, 4, 3) = 77;
    EXPECT_FALSE(frame.bytes.Share().SharesPixelsWith(picture));
    EXPECT_EQ(picture.Pixels(), NoiseBitmap(5, 4, 4));
    Bitmap expected = NoiseBitmap(5, 4, 4);
    expected.At(4, 3).red = 77;
    EXPECT_EQ(frame.bytes.Share().Pixels(), expected);
}

TEST(PixelFrameTest, BitsOfAPictureOfAnotherShapeAreCopied) {
    const Picture picture(NoiseBitmap(4, 5, 5));
    PixelFrame frame = FrameFor(5, 4);
    GetBitmapBits(picture, frame);
    EXPECT_EQ(frame.bytes.Width(), 5);
    EXPECT_EQ(frame.bytes.Row(1)[0], picture.Pixels().At(1, 1));
}

TEST(PixelFrameTest, BitsOfARecordThatTellsFewerAreCopied) {
    PixelFrame frame = FrameFor(2, 2);
    frame.info.bmHeight = 1;
    GetBitmapBits(Picture(Bitmap(2, 2, Pixel{1, 2, 3, 4})), frame);
    EXPECT_EQ(frame.bytes.Row(0)[1], (Pixel{1, 2, 3, 4}));
    EXPECT_EQ(frame.bytes.Row(1)[0], Pixel{});
}

TEST(PixelFrameTest, WhatAnArrayHandsOutIsNotChangedByWritesThatFollow) {
    PixelFrame frame = FrameFor(3, 2);
    frame.bytes.At(1, 2, 0) = 5;
    const Picture handedOut = frame.bytes.Share();
    frame.bytes.At(1, 2, 0) = 6;
    EXPECT_EQ(handedOut.Pixels().At(2, 0).green, 5);
    EXPECT_EQ(frame.bytes.At(1, 2, 0), 6);
    const Picture second = frame.bytes.Share();
    frame.bytes.ForgetElements();
    frame.bytes.Row(0)[2] = {9, 9, 9, 9};
    EXPECT_EQ(second.Pixels().At(2, 0).green, 6);
}

TEST(PixelFrameTest, AnArrayThatNobodyWroteHandsOutZeros) {
    PixelFrame frame = FrameFor(3, 2);
    EXPECT_EQ(frame.bytes.Share().Pixels(), Bitmap(3, 2));
}

TEST(PixelFrameTest, SizingForgetsWhatIsShared) {
    PixelFrame frame = FrameFor(3, 2);
    GetBitmapBits(Picture(Bitmap(3, 2, Pixel{9, 9, 9, 9})), frame);
    frame.SizeFor(3, 2);
    EXPECT_EQ(frame.bytes.At(0, 0, 0), 0);
}

} // namespace
} // namespace mirelle::test
