#include "fx/SizeFXBits.h"
#include "tests/fx/handlers/FxProgram.h"
#include "tests/support/ErrorOf.h"

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
        EXPECT_EQ(form.Pic1.Picture().Pixels(), Flat(10, 20, 30).Pixels()) << row.button.Name(); // the former
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

// One memory holds the result for everyone; the effect after it writes into another.
TEST_F(PointEffectsTest, TheResultIsSharedAndStaysAsItIs) {
    Paste(ChartPicture(7, 4, 50));
    form.cmdNegativeX.UserClick();
    const Picture result = form.PicImage.Picture;
    const Bitmap before = result.CopyBitmap();
    EXPECT_TRUE(form.FXDest.bytes.Share().SharesPixelsWith(result));
    EXPECT_TRUE(form.Picture1.Picture().SharesPixelsWith(result));
    form.cmdFlipHoriz.UserClick();
    EXPECT_TRUE(form.FXSource.bytes.Share().SharesPixelsWith(result));
    EXPECT_EQ(result.Pixels(), before);
    EXPECT_EQ(Canvas().At(0, 1), before.At(6, 1));
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
    EXPECT_TRUE(form.Picture1.Picture().IsEmpty());
    EXPECT_TRUE(form.Picture3.Picture().IsEmpty());
    EXPECT_EQ(form.Pic1.Picture().Width(), 4); // the source was taken before the arrays failed
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

// An effect whose loop meets a bound ends there: the canvas stays, the hourglass too.
TEST_F(PointEffectsTest, ADestinationSmallerThanTheSourceLeavesTheCanvas) {
    const Picture chart = ChartPicture(6, 5, 50);
    Paste(chart);
    form.FXDest.SizeFor(6, 4);
    form.cmdNegativeX.UserClick();
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(chart));
    EXPECT_EQ(form.MousePointer, kPointerHourglass);
    form.cmdSetMain.UserClick();
    EXPECT_EQ(form.MousePointer, kPointerDefault);
}

TEST_F(PointEffectsTest, ADestinationLargerThanTheSourceIsWrittenFromItsCornerOn) {
    Paste(ChartPicture(6, 5, 50));
    form.FXDest.SizeFor(6, 9);
    form.cmdNegativeX.UserClick();
    EXPECT_EQ(Canvas().At(3, 4), (Pixel{252, 251, 205, 0}));
    EXPECT_EQ(form.MousePointer, kPointerDefault);
}

TEST_F(PointEffectsTest, SizingTheArraysEndsAtTheFirstBoxWithoutPixels) {
    Paste(ChartPicture(6, 5, 50));
    form.Pic1.Width = 0;
    form.PicImage.Picture = ChartPicture(9, 9, 1);
    EXPECT_EQ(ErrorOf([&] { SizeFXBits(form); }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(form.FXSource.info.bmWidth, 0);
    EXPECT_EQ(form.FXSource.bytes.Width(), 6); // the array as it was
    EXPECT_EQ(form.FXDest.info.bmWidth, 6);
    form.Pic1.Picture = ChartPicture(7, 3, 1);
    SizeFXBits(form);
    EXPECT_EQ(form.FXSource.bytes.Width(), 7);
    EXPECT_EQ(form.FXSource.bytes.At(1, 2, 2), 0); // anew
    EXPECT_EQ(form.FXDest.bytes.Height(), 9);
}

// A picture that is opened to the canvas leaves the arrays in the size of the one before it.
class OpenedSinceTest : public FxProgramTest {
protected:
    void Open(const Picture& picture) {
        program.loader.pictures["C:\\opened.jpg"] = picture;
        program.desktop.dialogs.openAnswers.emplace_back("C:\\opened.jpg");
        form.Check4.Value = kChecked;
        form.Command23.UserClick();
        ASSERT_TRUE(form.PicImage.Picture().SharesPixelsWith(picture));
        ASSERT_EQ(form.FXSource.bytes.Width(), 6);
        ASSERT_EQ(form.FXSource.bytes.Height(), 5);
    }
    // The bits run through the arrays one after the other, whatever the rows of the picture are.
    static Pixel Flatly(const Picture& picture, int place) {
        const Bitmap& bitmap = picture.Pixels();
        return bitmap.At(place % bitmap.Width(), place / bitmap.Width());
    }
    static constexpr int kArray = 6 * 5;
    Picture first = ChartPicture(6, 5, 200);
};

TEST_F(OpenedSinceTest, ALargerPictureChangesAsFarAsTheArraysReach) {
    Paste(first);
    const Picture larger = ChartPicture(7, 9, 40);
    Open(larger);
    form.cmdFlipHoriz.UserClick();
    ASSERT_EQ(Canvas().Width(), 7);
    ASSERT_EQ(Canvas().Height(), 9);
    for (int place = 0; place < 7 * 9; ++place) {
        const int x = place % 6;
        const Pixel expected = Flatly(larger, place < kArray ? place - x + 5 - x : place);
        EXPECT_EQ(Flatly(form.PicImage.Picture, place), expected) << place;
    }
    EXPECT_EQ(form.Picture1.Picture().Pixels(), Canvas());
}

TEST_F(OpenedSinceTest, ASmallerPictureMeetsWhatTheArraysHeldBefore) {
    Paste(first);
    form.cmdNegativeX.UserClick(); // fills the source with the first picture
    const Picture smaller = ChartPicture(4, 3, 40);
    Open(smaller);
    form.cmdFlipVert.UserClick();
    ASSERT_EQ(Canvas().Width(), 4);
    ASSERT_EQ(Canvas().Height(), 3);
    for (int place = 0; place < 4 * 3; ++place) {
        const int source = (4 - place / 6) * 6 + place % 6;
        const Pixel expected = Flatly(source < 12 ? smaller : first, source);
        EXPECT_EQ(Flatly(form.PicImage.Picture, place), expected) << place;
    }
}

TEST_F(OpenedSinceTest, RevertPutsTheOpenedBytesOverThePictureOfTheClipboard) {
    Paste(first);
    const Picture larger = ChartPicture(7, 9, 40);
    Open(larger);
    form.cmdCopy.UserClick();
    ASSERT_EQ(Canvas().Width(), 6);
    ASSERT_EQ(Canvas().Height(), 5);
    for (int place = 0; place < kArray; ++place)
        EXPECT_EQ(Flatly(form.PicImage.Picture, place), Flatly(larger, place)) << place;
}

} // namespace
} // namespace mirelle::test
