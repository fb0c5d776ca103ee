#include "tests/fx/handlers/FxProgram.h"

#include <algorithm>

namespace mirelle::test {
namespace {

using PointEffectsTest = FxProgramTest;

TEST_F(PointEffectsTest, EachButtonChangesTheCanvasAndRetainsTheResult) {
    const struct {
        CommandButton& button;
        Pixel expected;
    } rows[] = {
        {form.cmdNegativeX, {225, 235, 245, 0}},
        {form.cmdGreyScale, {18, 18, 18, 0}}, // 2.22 + 14.14 + 2.13 = 18.49
        {form.cmdRGB2BGR, {10, 20, 30, 0}},
        {form.cmdRGB2BRG, {20, 10, 30, 0}},
        {form.cmdRGB2GBR, {10, 30, 20, 0}},
        {form.cmdRGB2GRB, {30, 10, 20, 0}},
        {form.cmdRGB2RBG, {20, 30, 10, 0}},
        {form.cmdFlipVert, {30, 20, 10, 0}},
        {form.cmdFlipHoriz, {30, 20, 10, 0}},
    };
    for (const auto& row : rows) {
        Paste(Flat(10, 20, 30));
        row.button.UserClick();
        const Bitmap expected(6, 5, row.expected);
        EXPECT_EQ(Canvas(), expected) << row.button.Name();
        for (const Picture& shown : {form.Picture1.Picture(), form.Picture3.Picture(), form.Picture()}) {
            EXPECT_EQ(shown.Pixels(), expected) << row.button.Name();
        }
        EXPECT_EQ(form.MousePointer, kPointerDefault) << row.button.Name();
    }
}

TEST_F(PointEffectsTest, FlipsTurnThePictureAndTwiceGiveItBack) {
    const Picture chart = ChartPicture(7, 4, 50);
    Paste(chart);
    form.cmdFlipVert.UserClick();
    EXPECT_EQ(Canvas().At(2, 0), chart.Pixels().At(2, 3));
    form.cmdFlipVert.UserClick();
    EXPECT_EQ(Canvas(), chart.Pixels());
    form.cmdFlipHoriz.UserClick();
    EXPECT_EQ(Canvas().At(0, 1), chart.Pixels().At(6, 1));
    form.cmdFlipHoriz.UserClick();
    EXPECT_EQ(Canvas(), chart.Pixels());
}

TEST_F(PointEffectsTest, TheyAddUpOnTheCanvas) {
    Paste(Flat(10, 20, 30));
    form.cmdNegativeX.UserClick();
    form.cmdRGB2BGR.UserClick();
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{245, 235, 225, 0}));
}

TEST_F(PointEffectsTest, UndoShowsTheResultAgain) {
    Paste(Flat(10, 20, 30));
    form.cmdNegativeX.UserClick();
    const Bitmap result = Canvas();
    form.cmdRGBUndo.UserClick();
    EXPECT_EQ(Canvas(), result);
}

TEST_F(PointEffectsTest, TheSlidersStack) {
    Paste(Flat(100, 100, 100));
    form.HSColorShift(2).UserSet(10);
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{100, 100, 110, 0}));
    form.HSColorShift(2).UserSet(20);
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{100, 100, 130, 0}));
    form.HSColorShift(1).UserSet(-50); // adds the red 20 once more
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{100, 50, 150, 0}));
    form.HSColorShift(0).UserSet(-255);
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{0, 0, 170, 0}));
}

TEST_F(PointEffectsTest, TheSlidersHaveTheirRange) {
    form.HSColorShift.ForEach([](ScrollBar& slider) {
        EXPECT_EQ(slider.Min, -255);
        EXPECT_EQ(slider.Max, 255);
        EXPECT_EQ(slider.LargeChange, 5);
        EXPECT_EQ(slider.SmallChange, 1);
        EXPECT_EQ(slider.Value, 0);
    });
}

TEST_F(PointEffectsTest, BeforeAnyPictureTheyLeaveTheHourglassAndNothingElse) {
    form.PicImage.Width = 4;
    form.PicImage.Height = 4;
    form.cmdNegativeX.UserClick();
    EXPECT_EQ(form.MousePointer, kPointerHourglass);
    EXPECT_TRUE(form.PicImage.Picture().IsEmpty());
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

TEST_F(PointEffectsTest, APictureOpenedSinceIsTakenThroughArraysOfTheOldSize) {
    Paste(Flat(10, 20, 30)); // 6 x 5
    const Picture larger = ChartPicture(6, 8, 40);
    form.PicImage.Picture = larger;
    form.cmdNegativeX.UserClick();
    EXPECT_EQ(Canvas().Height(), 8);
    EXPECT_EQ(Canvas().At(3, 4), (Pixel{252, 251, 215, 0})); // within the arrays
    EXPECT_EQ(Canvas().At(3, 5), larger.Pixels().At(3, 5));  // beyond them
}

TEST_F(PointEffectsTest, ASmallerPictureTakesTheBytesThatFit) {
    Paste(Flat(10, 20, 30)); // 6 x 5
    form.PicImage.Picture = ChartPicture(6, 2, 40);
    form.cmdNegativeX.UserClick();
    EXPECT_EQ(Canvas().Height(), 2);
    EXPECT_EQ(Canvas().At(3, 1), (Pixel{252, 254, 215, 0}));
}

} // namespace
} // namespace mirelle::test
