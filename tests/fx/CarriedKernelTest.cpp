// The kernels in which an earlier pixel counts: a remembered pixel, or a value kept where a step fails.
#include "tests/fx/KernelTesting.h"
#include "tests/support/TestPictures.h"

namespace mirelle::test {
namespace {

class CarriedKernelTest : public KernelTest {};
MIRELLE_KERNEL_TESTS(CarriedKernelTest);

int RedAt(const Bitmap& bitmap, int x, int y) {
    EXPECT_EQ(bitmap.At(x, y), PaintedGrey(bitmap.At(x, y).red));
    return bitmap.At(x, y).red;
}

TEST_P(CarriedKernelTest, BlurLeavesRow0AsItIs) {
    const Bitmap noise = NoiseBitmap(21, 3, 3);
    const Bitmap painted = Run(&KernelSet::FXBlur, noise);
    for (int x = 0; x < 21; ++x)
        EXPECT_EQ(painted.At(x, 0), WithoutFourth(noise).At(x, 0));
}

TEST_P(CarriedKernelTest, BlurAveragesTheFirstPixelOfARowWithTheLastOfTheRowAbove) {
    const Bitmap painted = Run(&KernelSet::FXBlur, GreyRows({{200, 100, 40}, {60, 70, 81}, {11, 0, 0}}));
    EXPECT_EQ(RedAt(painted, 0, 1), 50);
    EXPECT_EQ(RedAt(painted, 1, 1), 65);
    EXPECT_EQ(RedAt(painted, 0, 2), 46);
}

TEST_P(CarriedKernelTest, BlurRoundsAHalfToTheEvenSide) {
    EXPECT_EQ(RedAt(Run(&KernelSet::FXBlur, GreyRows({{2}, {3}})), 0, 1), 2);
    EXPECT_EQ(RedAt(Run(&KernelSet::FXBlur, GreyRows({{1}, {2}})), 0, 1), 2);
}

TEST_P(CarriedKernelTest, BlurMoreLeavesRow0AsItIs) {
    const Bitmap noise = NoiseBitmap(21, 3, 4);
    const Bitmap painted = Run(&KernelSet::FXBlurMore, noise);
    for (int x = 0; x < 21; ++x)
        EXPECT_EQ(painted.At(x, 0), WithoutFourth(noise).At(x, 0));
}

TEST_P(CarriedKernelTest, BlurMoreRemembersTwoPixelsAcrossRowsButOneOfRow0) {
    const Bitmap painted = Run(&KernelSet::FXBlurMore, GreyRows({{100, 40}, {60, 80}, {0, 0}}));
    EXPECT_EQ(RedAt(painted, 0, 1), 45); // (60 + 40) / 2 + 40, halved: row 0 remembers its last pixel twice
    EXPECT_EQ(RedAt(painted, 1, 1), 55); // (80 + 60) / 2 + 40, halved
    EXPECT_EQ(RedAt(painted, 0, 2), 50); // (0 + 80) / 2 + 60, halved
    EXPECT_EQ(RedAt(painted, 1, 2), 40); // (0 + 0) / 2 + 80, halved
}

TEST_P(CarriedKernelTest, BlurMoreRoundsAHalfToTheEvenSide) {
    const auto second = [&](int first, int c) {
        return RedAt(Run(&KernelSet::FXBlurMore, GreyRows({{first}, {c}})), 0, 1);
    };
    EXPECT_EQ(second(0, 2), 0);  // 0.5
    EXPECT_EQ(second(0, 6), 2);  // 1.5
    EXPECT_EQ(second(0, 1), 0);  // 0.25
    EXPECT_EQ(second(0, 3), 1);  // 0.75
    EXPECT_EQ(second(0, 10), 2); // 2.5
}

TEST_P(CarriedKernelTest, BlurMoreVertStartsAnewInEveryColumn) {
    const Bitmap painted = Run(&KernelSet::FXBlurMoreVert, GreyRows({{100, 8}, {60, 16}, {20, 0}}));
    EXPECT_EQ(RedAt(painted, 0, 0), 100);
    EXPECT_EQ(RedAt(painted, 0, 1), 90); // (60 + 100) / 2 + 100, halved
    EXPECT_EQ(RedAt(painted, 0, 2), 70); // (20 + 60) / 2 + 100, halved
    EXPECT_EQ(RedAt(painted, 1, 0), 8);
    EXPECT_EQ(RedAt(painted, 1, 1), 10); // (16 + 8) / 2 + 8, halved
    EXPECT_EQ(RedAt(painted, 1, 2), 8);  // (0 + 16) / 2 + 8, halved
}

TEST_P(CarriedKernelTest, TheBlursLeaveAFlatPictureFlat) {
    const Bitmap flat(13, 9, Pixel{11, 127, 254, 5});
    for (const Kernel kernel : {&KernelSet::FXBlur, &KernelSet::FXBlurMore, &KernelSet::FXBlurMoreVert}) {
        EXPECT_EQ(Run(kernel, flat), WithoutFourth(flat));
    }
}

TEST_P(CarriedKernelTest, BlurMoreOfOneColumnIsBlurMoreVertOfIt) {
    const Bitmap column = NoiseBitmap(1, 50, 5);
    EXPECT_EQ(Run(&KernelSet::FXBlurMore, column), Run(&KernelSet::FXBlurMoreVert, column));
}

TEST_P(CarriedKernelTest, GlowTurnsDarkBrightAndBrightDark) {
    const KernelArguments once{{}, 1.0F};
    EXPECT_EQ(RunOne(&KernelSet::FXGlow, Rgb(255, 153, 3), once), Rgb(3, 5, 255));
    EXPECT_EQ(RunOne(&KernelSet::FXGlow, Rgb(1, 2, 4), once), Rgb(255, 255, 191)); // 191.25
    EXPECT_EQ(RunOne(&KernelSet::FXGlow, Rgb(6, 10, 18), once), Rgb(128, 76, 42)); // 127.5, 76.5, 42.5
}

TEST_P(CarriedKernelTest, GlowByTenIsBright) {
    const KernelArguments tenfold{{}, 10.0F};
    EXPECT_EQ(RunOne(&KernelSet::FXGlow, Rgb(255, 153, 30), tenfold), Rgb(30, 50, 255));
    EXPECT_EQ(RunOne(&KernelSet::FXGlow, Rgb(31, 100, 200), tenfold),
              Rgb(247, 76, 38)); // 246.77, 76.5, 38.25
}

TEST_P(CarriedKernelTest, GlowRepeatsAChannelWhereItIs0) {
    const KernelArguments once{{}, 1.0F};
    Bitmap source(3, 2);
    source.At(0, 0) = Rgb(0, 153, 0);
    source.At(1, 0) = Rgb(51, 0, 0);
    source.At(2, 0) = Rgb(0, 0, 255);
    source.At(0, 1) = Rgb(0, 255, 0); // the row above goes on here
    source.At(1, 1) = Rgb(1, 0, 0);
    source.At(2, 1) = Rgb(0, 0, 85); // the 255 of before was 765 cut down
    const Bitmap painted = Run(&KernelSet::FXGlow, source, once);
    EXPECT_EQ(painted.At(0, 0), Rgb(0, 5, 0)); // nothing before: 0
    EXPECT_EQ(painted.At(1, 0), Rgb(15, 5, 0));
    EXPECT_EQ(painted.At(2, 0), Rgb(15, 5, 3));
    EXPECT_EQ(painted.At(0, 1), Rgb(15, 3, 3));
    EXPECT_EQ(painted.At(1, 1), Rgb(255, 3, 3));
    EXPECT_EQ(painted.At(2, 1), Rgb(255, 3, 9));
}

TEST_P(CarriedKernelTest, GlowBeyond16BitsKeepsTheValueOfThePixelBefore) {
    // 765 x 50 = 38250 fails, 765 / 255 x 50 = 150 does not.
    EXPECT_EQ(Run(&KernelSet::FXGlow, GreyRows({{1, 255, 1}}), {{}, 50.0F}),
              WithoutFourth(GreyRows({{0, 150, 150}})));
}

TEST_P(CarriedKernelTest, GlowByAFactorBelow0IsBlack) {
    EXPECT_EQ(Run(&KernelSet::FXGlow, GreyRows({{1, 255, 0}}), {{}, -1.0F}), Bitmap(3, 1));
}

TEST_P(CarriedKernelTest, SilkOfTwoEqualPixels) {
    const auto ofRow0 = [&](int value) { return RedAt(Run(&KernelSet::FXSilk, GreyRows({{value}})), 0, 0); };
    EXPECT_EQ(ofRow0(50), 5);
    EXPECT_EQ(ofRow0(181), 255);
    EXPECT_EQ(ofRow0(0), 255);
    EXPECT_EQ(ofRow0(5), 252);  // 252.5
    EXPECT_EQ(ofRow0(15), 232); // 232.5
    EXPECT_EQ(ofRow0(35), 132); // 132.5
    EXPECT_EQ(ofRow0(45), 52);  // 52.5
    EXPECT_EQ(ofRow0(65), 168); // 167.5
}

TEST_P(CarriedKernelTest, SilkKeepsTheValueOfThePixelBeforeWhereTheProductLeaves16Bits) {
    const Bitmap painted = Run(&KernelSet::FXSilk, GreyRows({{182, 50, 182, 255}, {1, 1, 181, 255}}));
    EXPECT_EQ(RedAt(painted, 0, 0), 0); // nothing before: 0
    EXPECT_EQ(RedAt(painted, 1, 0), 5);
    EXPECT_EQ(RedAt(painted, 2, 0), 5);
    EXPECT_EQ(RedAt(painted, 3, 0), 5);
    EXPECT_EQ(RedAt(painted, 0, 1), 230); // 255 - 255 / 10 = 229.5, with the last pixel of the row above
    EXPECT_EQ(RedAt(painted, 1, 1), 255); // 254.9
    EXPECT_EQ(RedAt(painted, 2, 1), 237); // 236.9
    EXPECT_EQ(RedAt(painted, 3, 1), 237); // 181 x 255 fails
}

TEST_P(CarriedKernelTest, SilkKeepsAValueAbove255Whole) {
    const Bitmap painted = Run(&KernelSet::FXSilk, GreyRows({{181, 182, 50}}));
    EXPECT_EQ(painted, WithoutFourth(GreyRows({{255, 255, 5}})));
}

TEST_P(CarriedKernelTest, EachChannelKeepsItsOwnValue) {
    Bitmap source(2, 1);
    source.At(0, 0) = Rgb(50, 60, 0);
    source.At(1, 0) = Rgb(200, 10, 200);
    const Bitmap painted = Run(&KernelSet::FXSilk, source);
    EXPECT_EQ(painted.At(0, 0), Rgb(5, 105, 255));
    EXPECT_EQ(painted.At(1, 0), Rgb(5, 245, 255));
}

TEST_P(CarriedKernelTest, TheFourthByteIsNeverWritten) {
    const Bitmap noise = NoiseBitmap(23, 9, 6);
    for (const Kernel kernel : {&KernelSet::FXBlur, &KernelSet::FXBlurMore, &KernelSet::FXBlurMoreVert,
                                &KernelSet::FXGlow, &KernelSet::FXSilk}) {
        const Bitmap painted = Run(kernel, noise, {{}, 1.0F});
        EXPECT_EQ(painted, WithoutFourth(painted));
    }
}

} // namespace
} // namespace mirelle::test
