// The kernels that look at the pixels around, and what their edges are like.
#include "tests/fx/KernelTesting.h"
#include "tests/support/TestPictures.h"

namespace mirelle::test {
namespace {

class NeighbourKernelTest : public KernelTest {};
MIRELLE_KERNEL_TESTS(NeighbourKernelTest);

Bitmap GreyColumn(std::initializer_list<int> values) {
    Bitmap bitmap(1, static_cast<int>(values.size()));
    int y = 0;
    for (const int value : values)
        bitmap.At(0, y++) = Grey(static_cast<std::uint8_t>(value));
    return bitmap;
}

TEST_P(NeighbourKernelTest, FlattenOfFewerThanFiveRowsIsBlack) {
    for (int height = 1; height <= 4; ++height) {
        EXPECT_EQ(Run(&KernelSet::FXFlatten, NoiseBitmap(9, height, 7)), Bitmap(9, height));
    }
}

TEST_P(NeighbourKernelTest, FlattenTakesEachRowLessTheRowTwoBelow) {
    const Bitmap source = GreyColumn({255, 40, 90, 30, 89, 33, 0, 0, 0, 0});
    const Bitmap painted = Run(&KernelSet::FXFlatten, source);
    // Row 0 is never written. (40 - 30) x 2.5 = 25, (90 - 89) x 2.5 = 2.5, (30 - 33) x 2.5 cut to 0,
    // 89 x 2.5 = 222.5, 33 x 2.5 = 82.5; the row third from below is 0, then the last pass, then 0.
    EXPECT_EQ(painted, WithoutFourth(GreyColumn({0, 25, 2, 0, 222, 82, 0, 0, 0, 0})));
}

TEST_P(NeighbourKernelTest, FlattenEndsWithTheThirdValueOfTheLastPass) {
    // Rows 1 and 3 of five: a = (40 - 60) x 2.5 = -50, c = (60 - -50) x 2.5 = 275.
    EXPECT_EQ(Run(&KernelSet::FXFlatten, GreyColumn({9, 40, 9, 60, 9})),
              WithoutFourth(GreyColumn({0, 0, 0, 255, 0})));
    // a = (60 - 40) x 2.5 = 50, c = (40 - 50) x 2.5 = -25.
    EXPECT_EQ(Run(&KernelSet::FXFlatten, GreyColumn({9, 60, 9, 40, 9})),
              WithoutFourth(GreyColumn({0, 50, 0, 0, 0})));
    // a = (41 - 40) x 2.5 = 2, c = (40 - 2) x 2.5 = 95: the value is rounded before it goes on.
    EXPECT_EQ(Run(&KernelSet::FXFlatten, GreyColumn({9, 41, 9, 40, 9})),
              WithoutFourth(GreyColumn({0, 2, 0, 95, 0})));
}

TEST_P(NeighbourKernelTest, Flatten2IsTheHalvedDifferenceToTheLowerRightNeighbourAbove100) {
    const Bitmap painted = Run(&KernelSet::FXFlatten2, GreyRows({{10, 20}, {30, 61}}));
    EXPECT_EQ(painted.At(0, 0), PaintedGrey(126)); // 25.5 + 100 = 125.5, to the even one
    EXPECT_EQ(Run(&KernelSet::FXFlatten2, GreyRows({{10, 20}, {30, 59}})).At(0, 0),
              PaintedGrey(124)); // 124.5
    EXPECT_EQ(Run(&KernelSet::FXFlatten2, GreyRows({{255, 20}, {30, 0}})).At(0, 0),
              PaintedGrey(228)); // 227.5
}

TEST_P(NeighbourKernelTest, Flatten2UsesTheNeighbourOfThePixelBeforeInTheLastColumnAndRow) {
    const Bitmap painted = Run(&KernelSet::FXFlatten2, GreyRows({{10, 20, 30}, {40, 50, 60}, {0, 100, 200}}));
    EXPECT_EQ(painted.At(2, 0), PaintedGrey(115)); // 30 and 60, as at (1, 0)
    EXPECT_EQ(painted.At(2, 1), PaintedGrey(170)); // 60 and 200, as at (1, 1)
    EXPECT_EQ(painted.At(0, 2), PaintedGrey(200)); // the whole last row goes on with the 200
    EXPECT_EQ(painted.At(1, 2), PaintedGrey(150));
    EXPECT_EQ(painted.At(2, 2), PaintedGrey(100));
}

TEST_P(NeighbourKernelTest, WithoutAnyNeighbourFlatten2AndEmbossGoOnFrom0) {
    EXPECT_EQ(Run(&KernelSet::FXFlatten2, GreyRows({{10, 20, 31}})),
              WithoutFourth(GreyRows({{105, 110, 116}}))); // 115.5 to the even one
    EXPECT_EQ(Run(&KernelSet::FXFlatten2, GreyColumn({10, 20})), WithoutFourth(GreyColumn({105, 110})));
    EXPECT_EQ(Run(&KernelSet::FXEmboss, GreyRows({{10, 20, 255}}), {{100}}),
              WithoutFourth(GreyRows({{90, 80, 155}})));
}

TEST_P(NeighbourKernelTest, EmbossOfEqualNeighboursIsTheOffset) {
    const Bitmap flat(7, 5, Pixel{3, 90, 255, 1});
    EXPECT_EQ(Run(&KernelSet::FXEmboss, flat, {{100}}), Bitmap(7, 5, PaintedGrey(100)));
    EXPECT_EQ(Run(&KernelSet::FXEmboss, flat, {{255}}), Bitmap(7, 5, PaintedGrey(255)));
}

TEST_P(NeighbourKernelTest, EmbossIsTheDifferenceToTheLowerRightNeighbourLessTheOffset) {
    const auto emboss = [&](int c, int n) {
        return Run(&KernelSet::FXEmboss, GreyRows({{c, 0}, {0, n}}), {{100}}).At(0, 0);
    };
    EXPECT_EQ(emboss(255, 0), PaintedGrey(155));
    EXPECT_EQ(emboss(200, 150), PaintedGrey(50));
    EXPECT_EQ(emboss(100, 255), PaintedGrey(255)); // -155 - 100
    EXPECT_EQ(emboss(99, 255), PaintedGrey(0));    // 256 does not fit the byte
    EXPECT_EQ(emboss(0, 255), PaintedGrey(0));     // 355
}

TEST_P(NeighbourKernelTest, EmbossUsesTheNeighbourOfThePixelBeforeInTheLastColumnAndRow) {
    const Bitmap painted =
        Run(&KernelSet::FXEmboss, GreyRows({{10, 20, 30}, {40, 50, 60}, {0, 100, 200}}), {{100}});
    EXPECT_EQ(painted.At(2, 0), PaintedGrey(130)); // 30 - 60 - 100
    EXPECT_EQ(painted.At(2, 1), PaintedGrey(240)); // 60 - 200 - 100
    EXPECT_EQ(painted.At(0, 2), PaintedGrey(0));   // 0 - 200 - 100 does not fit
    EXPECT_EQ(painted.At(1, 2), PaintedGrey(200));
    EXPECT_EQ(painted.At(2, 2), PaintedGrey(100));
}

TEST_P(NeighbourKernelTest, PixelatedKeepsThePixelsAtEvenPlaces) {
    const Bitmap noise = NoiseBitmap(9, 7, 8);
    const Bitmap painted = Run(&KernelSet::FXPixelated, noise);
    for (int y = 0; y < 7; y += 2) {
        for (int x = 0; x < 9; x += 2)
            EXPECT_EQ(painted.At(x, y), WithoutFourth(noise).At(x, y));
    }
}

TEST_P(NeighbourKernelTest, PixelatedLeavesTheLastRowOfAnEvenHeightBlack) {
    const Bitmap painted = Run(&KernelSet::FXPixelated, Bitmap(6, 4, Grey(200)));
    for (int x = 0; x < 6; ++x) {
        EXPECT_EQ(painted.At(x, 2), PaintedGrey(200));
        EXPECT_EQ(painted.At(x, 3), Pixel{});
    }
}

TEST_P(NeighbourKernelTest, PixelatedAveragesOddRowsWithTheRowBelow) {
    const Bitmap source = GreyRows({{0, 0, 0, 0}, {10, 20, 30, 40}, {100, 0, 51, 0}});
    const Bitmap painted = Run(&KernelSet::FXPixelated, source);
    EXPECT_EQ(painted.At(0, 1), PaintedGrey(55));
    EXPECT_EQ(painted.At(1, 1), PaintedGrey(36)); // with (2, 2): 35.5 to the even one
    EXPECT_EQ(painted.At(2, 1), PaintedGrey(40)); // 40.5 to the even one
    EXPECT_EQ(painted.At(3, 1), PaintedGrey(46)); // no step right of it: with (2, 2), 45.5 to the even one
}

TEST_P(NeighbourKernelTest, PixelatedAveragesOddColumnsOfEvenRowsWithTheRightNeighbourGreenWithItsRed) {
    Bitmap source(3, 1);
    source.At(1, 0) = Rgb(10, 20, 30);
    source.At(2, 0) = Rgb(100, 0, 200);
    EXPECT_EQ(Run(&KernelSet::FXPixelated, source).At(1, 0), Rgb(55, 60, 115));
}

TEST_P(NeighbourKernelTest, PixelatedAveragesALastOddColumnWithItsLeftNeighbour) {
    Bitmap source(2, 1);
    source.At(0, 0) = Rgb(10, 20, 30);
    source.At(1, 0) = Rgb(100, 0, 201);
    EXPECT_EQ(Run(&KernelSet::FXPixelated, source).At(1, 0), Rgb(55, 10, 116)); // 115.5 to the even one
}

TEST_P(NeighbourKernelTest, TheFourthByteIsNeverWritten) {
    const Bitmap noise = NoiseBitmap(24, 11, 9);
    for (const Kernel kernel :
         {&KernelSet::FXFlatten, &KernelSet::FXFlatten2, &KernelSet::FXEmboss, &KernelSet::FXPixelated}) {
        const Bitmap painted = Run(kernel, noise, {{100}});
        EXPECT_EQ(painted, WithoutFourth(painted));
    }
}

} // namespace
} // namespace mirelle::test
