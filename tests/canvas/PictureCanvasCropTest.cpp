#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class PictureCanvasCropTest : public ::testing::Test {
protected:
    PictureCanvasCropTest() { form.PicImage.Picture = canvas; }
    void Press(float x, float y, int button = 1) { form.PicImage.MouseDown({button, 0, x, y}); }
    void Move(float x, float y, int button = 1) { form.PicImage.MouseMove({button, 0, x, y}); }
    void Release() { form.PicImage.MouseUp({1, 0, 0, 0}); }

    TestProgram program;
    FrmPicX& form = program.form;
    Picture canvas = ChartPicture(200, 150, 3);
};

TEST_F(PictureCanvasCropTest, AForwardDragCopiesTheAreaAndTouchesNothingElse) {
    form.textProfileName.Text = "Art_5";
    Press(10, 20);
    EXPECT_TRUE(form.Shape1.Visible);
    EXPECT_EQ(form.Shape1.Width, 200); // as it was
    Move(40, 60);
    Release();
    const Bitmap expected = Cut(canvas.Pixels(), 10, 20, 30, 40);
    EXPECT_EQ(form.picSmall.Image().Pixels(), expected);
    EXPECT_EQ(form.picSmall2.Image().Pixels(), expected);
    EXPECT_FALSE(form.Shape1.Visible);
    EXPECT_EQ(form.CropStartX, Variant(Integer(0)));
    EXPECT_TRUE(form.Image1.Picture().IsEmpty());
    EXPECT_EQ(form.textProfileName.Text(), "Art_5");
    EXPECT_TRUE(form.IncrementCounter.IsEmpty());
}

TEST_F(PictureCanvasCropTest, ABackwardDragCopiesTheAreaBeyondTheStart) {
    Press(100, 80);
    Move(70, 60);
    Release();
    EXPECT_EQ(form.picSmall.Image().Pixels(), Cut(canvas.Pixels(), 100, 80, 30, 20));
}

TEST_F(PictureCanvasCropTest, AnUpwardMoveKeepsTheHeight) {
    form.Shape1.Height = 25;
    Press(100, 80);
    Move(130, 60);
    EXPECT_EQ(form.Shape1.Width, 30);
    EXPECT_EQ(form.Shape1.Height, 25);
}

TEST_F(PictureCanvasCropTest, AMoveDownToTheLeftKeepsTheHeight) {
    form.Shape1.Height = 25;
    Press(100, 80);
    Move(70, 100);
    EXPECT_EQ(form.Shape1.Width, 30);
    EXPECT_EQ(form.Shape1.Height, 25);
    EXPECT_TRUE(form.Caption().starts_with("CROPMODE-Pixel coord: width x:70 "));
}

TEST_F(PictureCanvasCropTest, AMoveSizesTheRectangleWithWhateverButton) {
    Press(10, 20);
    float edge = 40;
    for (const int button : {0, 1, 2, 4}) {
        Move(edge, edge + 20, button);
        EXPECT_EQ(form.Shape1.Width, edge - 10) << button;
        EXPECT_EQ(form.Shape1.Height, edge) << button;
        edge += 5;
    }
}

TEST_F(PictureCanvasCropTest, LockIsNotAskedFor) {
    form.picSmall.Picture = ChartPicture(9, 9);
    form.ckLock.Value = kChecked;
    Press(10, 20);
    Move(40, 60);
    Release();
    EXPECT_EQ(form.picSmall.PixelWidth(), 30);
    EXPECT_EQ(form.picSmall.PixelHeight(), 40);
    EXPECT_EQ(form.picSmall.Image().Pixels(), Cut(canvas.Pixels(), 10, 20, 30, 40));
}

TEST_F(PictureCanvasCropTest, AMoveOntoTheStartColumnChangesNothingButTheTitle) {
    Press(100, 80);
    Move(130, 100);
    Move(100, 120);
    EXPECT_EQ(form.Shape1.Width, 30);
    EXPECT_EQ(form.Shape1.Height, 20);
    EXPECT_EQ(form.Caption(),
              "CROPMODE-Pixel coord: width x:100    height y: 120   |  Clip dimension x width:     "
              "Clip dimension x height: ");
}

TEST_F(PictureCanvasCropTest, TheTitleTellsTheRectangleBeforeTheMove) {
    Press(100, 80);
    Move(130, 100);
    Move(140, 120);
    EXPECT_EQ(form.Caption(),
              "CROPMODE-Pixel coord: width x:140    height y: 120   |  Clip dimension x width: 30    "
              "Clip dimension x height: 20");
}

TEST_F(PictureCanvasCropTest, KeepCopiesNothingAndStillHidesTheRectangle) {
    const Picture kept = ChartPicture(9, 9);
    form.picSmall.Picture = kept;
    form.ckKeep.Value = kChecked;
    Press(10, 20);
    Move(40, 60);
    Release();
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(kept));
    EXPECT_FALSE(form.Shape1.Visible);
}

TEST_F(PictureCanvasCropTest, OtherButtonsDoNotStartACrop) {
    Press(10, 20, 2);
    EXPECT_FALSE(form.Shape1.Visible);
    EXPECT_TRUE(form.CropStartX.IsEmpty());
}

TEST_F(PictureCanvasCropTest, FormAsCanvasTakesTheDrawingOfTheFormBothWays) {
    form.UserWindow(kWindowNormal, {120, 90});
    form.Picture = ChartPicture(60, 50, 5);
    for (int click = 0; click < 2; ++click) {
        form.PicImage.Picture = Picture();
        form.ckUseFormCanvas.UserClick();
        EXPECT_EQ(form.PicImage.Picture().Pixels(), form.Image().Pixels());
        EXPECT_EQ(form.Picture3.Picture().Pixels(), form.Image().Pixels());
        EXPECT_EQ(form.PicImage.Picture().Width(), 120);
    }
}

} // namespace
} // namespace mirelle::test
