// The kernels that make each pixel of the same pixel of the source.
#include "tests/fx/KernelTesting.h"
#include "tests/support/TestPictures.h"

#include <cmath>

namespace mirelle::test {
namespace {

class DirectKernelTest : public KernelTest {};
MIRELLE_KERNEL_TESTS(DirectKernelTest);

// What a kernel makes of one grey value, checked to be the same in all channels.
std::uint8_t OfGrey(Pixel painted) {
    EXPECT_EQ(painted, PaintedGrey(painted.red));
    return painted.red;
}

TEST_P(DirectKernelTest, NegateTurnsEveryChannelRound) {
    EXPECT_EQ(RunOne(&KernelSet::FXNegate, {1, 2, 3, 77}), (Pixel{254, 253, 252, 0}));
}

TEST_P(DirectKernelTest, NegateTwiceIsTheFirstPicture) {
    const Bitmap noise = WithoutFourth(NoiseBitmap(37, 23, 1));
    EXPECT_EQ(Run(&KernelSet::FXNegate, Run(&KernelSet::FXNegate, noise)), noise);
}

TEST_P(DirectKernelTest, IncoherenceExchangesRedAndBlue) {
    EXPECT_EQ(RunOne(&KernelSet::FXIncoherence, {1, 2, 3, 77}), (Pixel{3, 2, 1, 0}));
}

TEST_P(DirectKernelTest, NoRedNoGreenAndNoBlueClearOneChannel) {
    EXPECT_EQ(RunOne(&KernelSet::FXNoRed, {1, 2, 3, 77}), (Pixel{1, 2, 0, 0}));
    EXPECT_EQ(RunOne(&KernelSet::FXNoGreen, {1, 2, 3, 77}), (Pixel{1, 0, 3, 0}));
    EXPECT_EQ(RunOne(&KernelSet::FXNoBlue, {1, 2, 3, 77}), (Pixel{0, 2, 3, 0}));
}

TEST_P(DirectKernelTest, LightenAddsAndStopsAt255) {
    EXPECT_EQ(RunOne(&KernelSet::FXLighten, Rgb(0, 205, 206), {{50}}), Rgb(50, 255, 255));
    EXPECT_EQ(RunOne(&KernelSet::FXLighten, Rgb(0, 100, 255), {{0}}), Rgb(0, 100, 255));
}

TEST_P(DirectKernelTest, LightenHasNoLowerLimitSoWhatDropsBelow0IsNotStored) {
    EXPECT_EQ(RunOne(&KernelSet::FXLighten, Rgb(49, 50, 255), {{-50}}), Rgb(0, 0, 205));
}

TEST_P(DirectKernelTest, DarkenSubtractsAndStopsAt0) {
    EXPECT_EQ(RunOne(&KernelSet::FXDarken, Rgb(255, 50, 49), {{50}}), Rgb(205, 0, 0));
}

TEST_P(DirectKernelTest, DarkenHasNoUpperLimitSoWhatRisesAbove255IsNotStored) {
    EXPECT_EQ(RunOne(&KernelSet::FXDarken, Rgb(0, 205, 206), {{-50}}), Rgb(50, 255, 0));
}

TEST_P(DirectKernelTest, AShiftOfOneChannelCopiesTheOthers) {
    EXPECT_EQ(RunOne(&KernelSet::FXShiftRed, Rgb(10, 20, 30), {{50}}), Rgb(60, 20, 30));
    EXPECT_EQ(RunOne(&KernelSet::FXShiftGreen, Rgb(10, 20, 30), {{50}}), Rgb(10, 70, 30));
    EXPECT_EQ(RunOne(&KernelSet::FXShiftBlue, Rgb(10, 20, 30), {{50}}), Rgb(10, 20, 80));
}

TEST_P(DirectKernelTest, AShiftIsLimitedOnBothSides) {
    EXPECT_EQ(RunOne(&KernelSet::FXShiftRed, Rgb(250, 20, 30), {{50}}), Rgb(255, 20, 30));
    EXPECT_EQ(RunOne(&KernelSet::FXShiftGreen, Rgb(250, 20, 30), {{-50}}), Rgb(250, 0, 30));
    EXPECT_EQ(RunOne(&KernelSet::FXShiftBlue, Rgb(250, 20, 60), {{-50}}), Rgb(250, 20, 10));
}

TEST_P(DirectKernelTest, ShiftRGBTakesAnAmountForEachChannel) {
    EXPECT_EQ(RunOne(&KernelSet::FXShiftRGB, Rgb(250, 20, 30), {{50, 100, 50}}), Rgb(255, 120, 80));
    EXPECT_EQ(RunOne(&KernelSet::FXShiftRGB, Rgb(20, 250, 60), {{-50, -100, -50}}), Rgb(0, 150, 10));
}

TEST_P(DirectKernelTest, VividIsDarkestInTheMiddleOfTheLowerHalf) {
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXVivid, Grey(85))), 0);
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXVivid, Grey(0))), 255);
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXVivid, Grey(255))), 255);
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXVivid, Grey(84))), 4);    // 0.6 x 6 = 3.6
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXVivid, Grey(87))), 7);    // 0.6 x 12 = 7.2
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXVivid, Grey(155))), 252); // 0.6 x 420
}

TEST_P(DirectKernelTest, NegateMoreIsBlackFrom102On) {
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNegateMore, Grey(0))), 255);
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNegateMore, Grey(60))), 105);
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNegateMore, Grey(102))), 0);
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNegateMore, Grey(255))), 0);
}

TEST_P(DirectKernelTest, NegateMoreRoundsAHalfToTheEvenSide) {
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNegateMore, Grey(1))), 255 - 2); // 2.5
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNegateMore, Grey(3))), 255 - 8); // 7.5
}

TEST_P(DirectKernelTest, NeonNegateIsBrightestWhereThreeTimesTheChannelIsTheLevel) {
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNeonNegate, Grey(85), {{255}})), 255);
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNeonNegate, Grey(0), {{255}})), 0);
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNeonNegate, Grey(86), {{255}})), 255 - 4); // 3.6
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNeonNegate, Grey(60), {{255}})), 255 - 90);
    EXPECT_EQ(OfGrey(RunOne(&KernelSet::FXNeonNegate, Grey(100), {{300}})), 255);
}

TEST_P(DirectKernelTest, AStepBeyond16BitsKeepsTheValueOfThePixelBefore) {
    // 32767 - 3 x 0 fits, times 1.2 it does not; -32700 - 3 x 100 leaves the range at once.
    const Bitmap source = GreyRows({{100, 0, 85}});
    EXPECT_EQ(Run(&KernelSet::FXNeonNegate, source, {{32767}}), Bitmap(3, 1, PaintedGrey(255)));
    EXPECT_EQ(Run(&KernelSet::FXLighten, GreyRows({{10, 100, 20}}), {{32700}}),
              Bitmap(3, 1, PaintedGrey(255)));
}

TEST_P(DirectKernelTest, TheFourthByteIsNeverWritten) {
    const Bitmap noise = NoiseBitmap(19, 7, 2);
    for (const Kernel kernel :
         {&KernelSet::FXNegate, &KernelSet::FXIncoherence, &KernelSet::FXNoRed, &KernelSet::FXNoGreen,
          &KernelSet::FXNoBlue, &KernelSet::FXLighten, &KernelSet::FXDarken, &KernelSet::FXShiftRed,
          &KernelSet::FXShiftGreen, &KernelSet::FXShiftBlue, &KernelSet::FXShiftRGB, &KernelSet::FXVivid,
          &KernelSet::FXNegateMore, &KernelSet::FXNeonNegate}) {
        const Bitmap painted = Run(kernel, noise, {{50, 60, 70}});
        EXPECT_EQ(painted, WithoutFourth(painted));
    }
}

} // namespace
} // namespace mirelle::test
