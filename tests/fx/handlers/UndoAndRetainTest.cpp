#include "tests/fx/handlers/FxProgram.h"

namespace mirelle::test {
namespace {

class UndoAndRetainTest : public FxProgramTest {
protected:
    bool Shows(const PictureBox& box, const Picture& shown) { return box.Picture().SharesPixelsWith(shown); }
    Picture picture = ChartPicture(6, 5, 60);
};

TEST_F(UndoAndRetainTest, RetainTakesTheCanvas) {
    Paste(picture);
    form.cmdNegative.UserClick();
    const Picture negative = form.PicImage.Picture;
    EXPECT_TRUE(Shows(form.Picture1, picture));
    for (CommandButton* button : {&form.cmdSetMain, &form.cmdSetMain2, &form.cmdSetMain}) {
        button->UserClick();
        EXPECT_TRUE(Shows(form.Picture1, negative));
        EXPECT_TRUE(Shows(form.PicImage, negative));
        EXPECT_TRUE(Shows(form.Picture3, picture));
        EXPECT_EQ(form.MousePointer, kPointerDefault);
    }
}

TEST_F(UndoAndRetainTest, UndoBringsTheUndoPictureAndLeavesTheRetainedOne) {
    Paste(picture);
    form.cmdNegative.UserClick();
    form.cmdSetMain.UserClick();
    const Picture negative = form.PicImage.Picture;
    for (int press = 0; press < 2; ++press) {
        form.cmdRGBUndo.UserClick();
        EXPECT_TRUE(Shows(form.PicImage, picture));
        EXPECT_TRUE(Shows(form.Pic1, picture));
        EXPECT_TRUE(form.Picture().SharesPixelsWith(picture));
        EXPECT_TRUE(Shows(form.Picture1, negative));
    }
}

TEST_F(UndoAndRetainTest, UndoAfterDarkenShowsThePictureBeforeTheFxBeforeIt) {
    Paste(picture);
    form.cmdNegative.UserClick();
    form.cmdDarken.UserClick();
    form.cmdRGBUndo.UserClick();
    EXPECT_TRUE(Shows(form.PicImage, picture));
}

TEST_F(UndoAndRetainTest, ResettingOneSliderShiftsNothingFurther) {
    Paste(Flat(100, 100, 100));
    form.HSColorShift(2).UserSet(10);
    form.cmdResetRGBSlider.UserClick();
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{100, 100, 110, 0}));
    EXPECT_EQ(form.HSColorShift(2).Value, 0);
}

TEST_F(UndoAndRetainTest, ResettingTwoSlidersAddsTheLaterOneOnceMore) {
    Paste(Flat(100, 100, 100));
    form.HSColorShift(0).UserSet(5);  // blue 105
    form.HSColorShift(2).UserSet(10); // blue 110, red 110
    form.cmdResetRGBSlider.UserClick();
    // Blue goes to 0 first and its change adds the red 10 again; the reset of red then adds nothing.
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{110, 100, 120, 0}));
}

TEST_F(UndoAndRetainTest, RevertOnAPastedPicturePutsThePixelsOfTheCanvasBack) {
    Paste(picture);
    form.cmdNegative.UserClick();
    const Bitmap negative = Canvas();
    form.cmdCopy.UserClick();
    EXPECT_EQ(Canvas(), negative);
    EXPECT_EQ(form.Picture1.Picture().Pixels(), negative);
    EXPECT_EQ(form.Picture3.Picture().Pixels(), negative);
    EXPECT_EQ(form.MousePointer, kPointerDefault);
}

TEST_F(UndoAndRetainTest, RevertOnAnEmptiedClipboardStillPutsThePixelsBack) {
    Paste(picture);
    program.desktop.clipboard.Clear();
    form.cmdCopy.UserClick();
    EXPECT_EQ(Canvas(), picture.Pixels());
}

TEST_F(UndoAndRetainTest, RevertOnAPictureFromAFilePutsZerosOverIt) {
    program.files.AddFile("C:\\Mat\\a.jpg");
    program.loader.pictures["C:\\Mat\\a.jpg"] = picture;
    form.File5.SetPath("C:\\Mat");
    form.File5.Selected(0) = true;
    ASSERT_FALSE(form.ClipboardIsSource);
    ASSERT_TRUE(Shows(form.PicImage, picture));
    form.cmdCopy.UserClick();
    EXPECT_EQ(Canvas(), Bitmap(6, 5));
    EXPECT_EQ(form.Picture1.Picture().Pixels(), Bitmap(6, 5));
    EXPECT_EQ(form.MousePointer, kPointerDefault);
}

// The arrays are sized by the file's click, though no file is selected.
TEST_F(UndoAndRetainTest, RevertBeforeAnyPicturePutsZerosOverTheEmptyCanvas) {
    form.PicImage.Width = 4;
    form.PicImage.Height = 3;
    form.cmdCopy.UserClick();
    EXPECT_EQ(Canvas(), Bitmap(4, 3));
    EXPECT_EQ(form.Picture1.Picture().Pixels(), Bitmap(4, 3));
    EXPECT_EQ(form.MousePointer, kPointerDefault);
}

TEST_F(UndoAndRetainTest, RevertReadsTheClipboardAlsoWhileTheArraysAreUnsized) {
    form.ClipboardIsSource = true;
    program.desktop.clipboard.bitmap = picture;
    form.cmdCopy.UserClick();
    EXPECT_TRUE(Shows(form.PicImage, picture));
    EXPECT_TRUE(Shows(form.Pic1, picture));
    EXPECT_TRUE(Shows(form.Picture3, picture));
    EXPECT_TRUE(form.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.Picture1.Picture().IsEmpty());  // nothing was put back, so nothing retained
    EXPECT_EQ(form.MousePointer, kPointerHourglass); // which putting back would have cleared
}

TEST_F(UndoAndRetainTest, RevertReadsTheClipboardForEachHolderAndPutsTheFormerPixelsOverIt) {
    Paste(picture); // 6 x 5
    form.cmdNegative.UserClick();
    const Bitmap negative = Canvas();
    const Picture grab = ChartPicture(6, 8, 70);
    program.desktop.clipboard.bitmap = grab;
    const int reads = program.desktop.clipboard.reads;
    form.cmdCopy.UserClick();
    EXPECT_EQ(program.desktop.clipboard.reads - reads, 4);
    ASSERT_EQ(Canvas().Height(), 8);
    EXPECT_EQ(Cut(Canvas(), 0, 0, 6, 5), negative);
    EXPECT_EQ(Cut(Canvas(), 0, 5, 6, 3), Cut(grab.Pixels(), 0, 5, 6, 3));
    EXPECT_TRUE(Shows(form.Pic1, grab)); // the picture as it was assigned, without the pixels put back
    EXPECT_EQ(form.Picture().Pixels(), Canvas());
    EXPECT_EQ(form.MousePointer, kPointerDefault);
}

TEST_F(UndoAndRetainTest, RevertResetsTheSlidersWhoseChangesShiftThePictureFurther) {
    Paste(Flat(100, 100, 100));
    form.HSColorShift(0).UserSet(5);  // blue 105
    form.HSColorShift(2).UserSet(10); // blue 110, red 110
    form.cmdCopy.UserClick();
    for (int channel = 0; channel < 3; ++channel)
        EXPECT_EQ(form.HSColorShift(channel).Value, 0) << channel;
    // The blue slider's change adds the red 10 and reads the canvas anew: that is what goes back.
    EXPECT_EQ(Canvas(), Bitmap(6, 5, Pixel{110, 100, 120, 0}));
}

// A bound that the loop meets ends it ahead of putting back.
TEST_F(UndoAndRetainTest, RevertLeavesWhereTheArraysDoNotFitEachOther) {
    Paste(picture);
    form.FXDest.SizeFor(6, 4);
    form.cmdNegative.UserClick();
    form.cmdCopy.UserClick();
    EXPECT_TRUE(Shows(form.PicImage, picture)); // from the clipboard
    EXPECT_EQ(form.MousePointer, kPointerHourglass);
}

TEST_F(UndoAndRetainTest, HoveringLightsTheFrameOfTheRetainingControls) {
    for (Control* control : {static_cast<Control*>(&form.cmdRGBUndo), static_cast<Control*>(&form.cmdSetMain),
                             static_cast<Control*>(&form.ckApplyRGB)}) {
        form.FrameRGBFX2.BackColor = 0;
        control->MouseMove({});
        EXPECT_EQ(form.FrameRGBFX2.BackColor, 0xFF8080);
    }
    form.FrameRGBFX.MouseMove({});
    EXPECT_EQ(form.FrameRGBFX2.BackColor, 0);
}

// What each event leaves in canvas, Retained picture and Undo picture.
TEST_F(UndoAndRetainTest, TheThreePicturesFollowTheTableOfStates) {
    const auto expect = [this](const char* event, const Picture& canvas, const Picture& retained,
                               const Picture& undo) {
        EXPECT_EQ(form.PicImage.Picture().Pixels(), canvas.Pixels()) << event;
        EXPECT_EQ(form.Picture1.Picture().Pixels(), retained.Pixels()) << event;
        EXPECT_EQ(form.Picture3.Picture().Pixels(), undo.Pixels()) << event;
    };
    Paste(picture);
    expect("paste", picture, picture, picture);
    form.cmdNegative.UserClick();
    const Picture negative = form.PicImage.Picture;
    expect("kernel", negative, picture, picture);
    form.cmdNoRed.UserClick();
    const Picture noRed = form.PicImage.Picture;
    expect("second kernel", noRed, picture, negative);
    form.cmdSetMain.UserClick();
    expect("retain", noRed, noRed, negative);
    form.cmdRGBUndo.UserClick();
    expect("undo", negative, noRed, negative);
    form.cmdNegativeX.UserClick();
    const Picture inverted = form.PicImage.Picture;
    expect("point", inverted, inverted, inverted);
    form.ckApplyRGB.Value = kChecked;
    form.cmdNoBlue.UserClick();
    const Picture result = form.PicImage.Picture;
    expect("kernel retained", result, result, inverted);
    form.cmdCont33.UserClick();
    expect("contrast", form.PicImage.Picture, result, inverted);
    EXPECT_NE(Canvas(), result.Pixels());

    const Picture fromFile = ChartPicture(9, 4, 80);
    program.files.AddFile("C:\\Mat\\a.jpg");
    program.loader.pictures["C:\\Mat\\a.jpg"] = fromFile;
    form.File5.SetPath("C:\\Mat");
    form.File5.Selected(0) = true;
    expect("file selection", fromFile, fromFile, inverted);
    form.ckUseFormCanvas.Value = kChecked;
    form.UserWindow(kWindowNormal, {12, 8});
    form.File5.Selected(0) = true;
    EXPECT_EQ(form.Picture1.Picture().Pixels(), fromFile.Pixels());
    EXPECT_EQ(form.PicImage.Picture().Pixels(), form.Picture3.Picture().Pixels());
    EXPECT_EQ(form.PicImage.Picture().Width(), 12);
}

} // namespace
} // namespace mirelle::test
