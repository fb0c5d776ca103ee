#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

constexpr int kLeft = 1;
constexpr int kRight = 2;
constexpr int kMiddle = 4;

class SamplingCropTest : public ::testing::Test {
protected:
    SamplingCropTest() {
        form.PicImage.Picture = canvas;
        form.Picture = canvas;
        form.ckIncrement.Value = kChecked;
        form.IncrementCounter = Integer(5);
        form.textProfileName.Text = "Art_5";
    }
    void Press(float x, float y, int button = kLeft) { form.MouseDown({button, 0, x, y}); }
    void Move(float x, float y, int button = kLeft) { form.MouseMove({button, 0, x, y}); }
    void Release(float x, float y, int button = kLeft) { form.MouseUp({button, 0, x, y}); }
    void Drag(float fromX, float fromY, float toX, float toY) {
        Press(fromX, fromY);
        Move(toX, toY);
        Release(toX, toY);
    }
    void ExpectRectangle(const Shape& shape, float left, float top, float width, float height) {
        EXPECT_EQ(shape.Left, left);
        EXPECT_EQ(shape.Top, top);
        EXPECT_EQ(shape.Width, width);
        EXPECT_EQ(shape.Height, height);
    }
    std::vector<ShownMessage>& Messages() { return program.desktop.dialogs.messages; }

    TestProgram program;
    FrmPicX& form = program.form;
    Picture canvas = ChartPicture(400, 300, 3);
};

TEST_F(SamplingCropTest, OneDragFromPressToNamedMaterial) {
    Press(100, 50);
    ExpectRectangle(form.Shape1, 100, 50, 200, 200);
    EXPECT_TRUE(form.Shape1.Visible);
    EXPECT_TRUE(form.CropDragging.IsTrue());
    EXPECT_EQ(form.Caption(), "Mirelle");
    Move(300, 120);
    ExpectRectangle(form.Shape1, 100, 50, 200, 70);
    Release(300, 120);
    const Bitmap expected = Cut(canvas.Pixels(), 100, 50, 200, 70);
    EXPECT_EQ(form.picSmall.Image().Pixels(), expected);
    EXPECT_EQ(form.picSmall2.Image().Pixels(), expected);
    EXPECT_TRUE(form.picSmall.Picture().IsEmpty());
    EXPECT_EQ(form.Image1.Picture().Pixels(), expected);
    EXPECT_FLOAT_EQ(form.Image1.Width, 300);
    EXPECT_FLOAT_EQ(form.Image1.Height, 105);
    EXPECT_FALSE(form.Shape1.Visible);
    EXPECT_FALSE(form.CropDragging.IsTrue());
    EXPECT_EQ(form.IncrementCounter.Text(), "6");
    EXPECT_EQ(form.TextLoops.Text(), "6");
    EXPECT_EQ(form.textProfileName.Text(), "Art_6");
}

TEST_F(SamplingCropTest, TheThumbnailStartsFromHalfTheRectangle) {
    form.PicImage.Picture = ChartPicture(800, 800, 3);
    Drag(10, 10, 710, 710); // half of it is 350 exactly: neither below the limit nor above it
    EXPECT_FLOAT_EQ(form.Image1.Width, 350);
    EXPECT_FLOAT_EQ(form.Image1.Height, 300);
}

// The picture goes before the size changes, and a crop assigns none.
TEST_F(SamplingCropTest, TheScrollRangesStayThoseOfTheImageBefore) {
    form.picSmall.Picture = ChartPicture(60, 40);
    Drag(10, 10, 110, 90);
    EXPECT_EQ(form.HSImage.Max, 65);
    EXPECT_EQ(form.VSImage.Max, 45);
    Drag(10, 10, 30, 20);
    EXPECT_EQ(form.HSImage.Max, 105);
    EXPECT_EQ(form.VSImage.Max, 85);
}

TEST_F(SamplingCropTest, AClickCropsTheTypedSizeWithItsTopLeftAtTheClick) {
    form.TextCrop(0).Text = "30"; // height
    form.TextCrop(1).Text = "50"; // width
    Press(11, 22);
    Release(11, 22);
    EXPECT_EQ(form.picSmall.Image().Pixels(), Cut(canvas.Pixels(), 11, 22, 50, 30));
}

TEST_F(SamplingCropTest, ATextWithoutANumberGivesACropOfNoSize) {
    form.TextCrop(0).Text = "";
    form.TextCrop(1).Text = "wide";
    Press(11, 22);
    ExpectRectangle(form.Shape1, 11, 22, 0, 0);
    Release(11, 22);
    EXPECT_EQ(form.picSmall.Width, 0);
    EXPECT_EQ(form.picSmall.Height, 0);
    EXPECT_EQ(form.textProfileName.Text(), "Art_6");
    EXPECT_TRUE(Messages().empty());
}

TEST_F(SamplingCropTest, ANegativeTypedSizeIsRefusedAndTheRectangleKeepsItsSize) {
    form.Shape1.Height = 33;
    form.TextCrop(0).Text = "-10";
    form.TextCrop(1).Text = "40";
    Press(1, 2);
    ExpectRectangle(form.Shape1, 1, 2, 40, 33);
}

TEST_F(SamplingCropTest, EveryDirectionOfADragCropsTheSameArea) {
    const Bitmap expected = Cut(canvas.Pixels(), 100, 50, 80, 60);
    const float corners[][4] = {
        {100, 50, 180, 110}, {180, 110, 100, 50}, {180, 50, 100, 110}, {100, 110, 180, 50}};
    for (const auto& [fromX, fromY, toX, toY] : corners) {
        Drag(fromX, fromY, toX, toY);
        EXPECT_EQ(form.picSmall.Image().Pixels(), expected) << fromX << "," << fromY;
    }
}

TEST_F(SamplingCropTest, AMoveOntoTheStartRowOrColumnKeepsTheLastRectangle) {
    Press(100, 50);
    Move(150, 90);
    Move(100, 200);
    ExpectRectangle(form.Shape1, 100, 50, 50, 40);
    Move(300, 50);
    ExpectRectangle(form.Shape1, 100, 50, 50, 40);
    Release(300, 50);
    EXPECT_EQ(form.picSmall.Image().Pixels(), Cut(canvas.Pixels(), 100, 50, 50, 40));
}

TEST_F(SamplingCropTest, ACropPastTheEdgeCopiesOnlyWhatExists) {
    Drag(380, 290, 480, 390);
    EXPECT_EQ(form.picSmall.Width, 100);
    const Picture cropped = form.picSmall.Image();
    EXPECT_EQ(Cut(cropped.Pixels(), 0, 0, 20, 10), Cut(canvas.Pixels(), 380, 290, 20, 10));
    EXPECT_EQ(cropped.Pixels().At(20, 0), PixelOf(form.picSmall.BackColor));
    EXPECT_EQ(cropped.Pixels().At(0, 10), PixelOf(form.picSmall.BackColor));
}

TEST_F(SamplingCropTest, WithNoPictureACropCopiesAnEmptyArea) {
    form.PicImage.Picture = Picture();
    Drag(10, 10, 30, 40);
    EXPECT_EQ(form.picSmall.Width, 20);
    EXPECT_EQ(form.picSmall.Height, 30);
    EXPECT_EQ(form.picSmall.Image().Pixels(), Bitmap(20, 30, PixelOf(form.picSmall.BackColor)));
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(form.textProfileName.Text(), "Art_6");
}

TEST_F(SamplingCropTest, KeepLeavesTheMaterialImageButSizesTheThumbnailAndRenames) {
    const Picture kept = ChartPicture(600, 500, 8);
    form.picSmall.Picture = kept;
    form.ckKeep.Value = kChecked;
    Drag(10, 10, 110, 60);
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(kept));
    EXPECT_TRUE(form.picSmall2.Picture().IsEmpty());
    EXPECT_FLOAT_EQ(form.Image1.Width, 240); // 50 x 25 -> 1.5 of 600 x 500 -> 0.4 of it
    EXPECT_FLOAT_EQ(form.Image1.Height, 200);
    EXPECT_TRUE(form.Image1.Picture().SharesPixelsWith(kept));
    EXPECT_EQ(form.textProfileName.Text(), "Art_6");
}

TEST_F(SamplingCropTest, LockCutsALargerCropAndKeepsTheSize) {
    form.picSmall.Picture = ChartPicture(50, 40, 8);
    form.ckLock.Value = kChecked;
    Drag(10, 10, 110, 90);
    EXPECT_EQ(form.picSmall.Width, 50);
    EXPECT_EQ(form.picSmall.Height, 40);
    EXPECT_EQ(form.picSmall.Image().Pixels(), Cut(canvas.Pixels(), 10, 10, 50, 40));
    EXPECT_TRUE(form.picSmall.AutoSize);
}

TEST_F(SamplingCropTest, LockPaintsTheTwinOfTheMaterialImageToo) {
    form.picSmall2.Picture = ChartPicture(30, 20, 8);
    form.ckLock.Value = kChecked;
    Drag(10, 10, 110, 90);
    EXPECT_TRUE(form.picSmall2.Picture().IsEmpty());
    EXPECT_EQ(form.picSmall2.Image().Pixels(), Cut(canvas.Pixels(), 10, 10, 30, 20));
}

TEST_F(SamplingCropTest, ACropClearsThePictureOfTheTwin) {
    form.picSmall2.Picture = ChartPicture(30, 20, 8);
    Drag(10, 10, 20, 20);
    EXPECT_TRUE(form.picSmall2.Picture().IsEmpty());
}

TEST_F(SamplingCropTest, KeepLeavesTheTwinAlone) {
    const Picture kept = ChartPicture(30, 20, 8);
    form.picSmall2.Picture = kept;
    form.ckKeep.Value = kChecked;
    Drag(10, 10, 20, 20);
    EXPECT_TRUE(form.picSmall2.Picture().SharesPixelsWith(kept));
    EXPECT_TRUE(form.picSmall2.Image().SharesPixelsWith(kept));
}

TEST_F(SamplingCropTest, LockFillsTheTopLeftOfALargerMaterialAndLeavesTheRestBlank) {
    form.picSmall.Picture = ChartPicture(50, 40, 8);
    form.ckLock.Value = kChecked;
    Drag(10, 10, 30, 25);
    const Picture material = form.picSmall.Image();
    EXPECT_EQ(material.Width(), 50);
    EXPECT_EQ(Cut(material.Pixels(), 0, 0, 20, 15), Cut(canvas.Pixels(), 10, 10, 20, 15));
    EXPECT_EQ(material.Pixels().At(20, 0), PixelOf(form.picSmall.BackColor));
    EXPECT_EQ(material.Pixels().At(0, 15), PixelOf(form.picSmall.BackColor));
}

TEST_F(SamplingCropTest, KeepAndLockTogetherCopyNothing) {
    const Picture kept = ChartPicture(50, 40, 8);
    form.picSmall.Picture = kept;
    form.ckKeep.Value = kChecked;
    form.ckLock.Value = kChecked;
    Drag(10, 10, 30, 25);
    EXPECT_TRUE(form.picSmall.Image().SharesPixelsWith(kept));
}

TEST_F(SamplingCropTest, EscapeDuringADragCopiesNothingAndStillRenames) {
    const Picture kept = ChartPicture(50, 40, 8);
    form.picSmall.Picture = kept;
    Press(10, 10);
    program.desktop.keyboard.escapePressed = true;
    Move(60, 60);
    EXPECT_FALSE(form.Shape1.Visible);
    EXPECT_TRUE(form.CropCancelled);
    EXPECT_TRUE(form.CropDragging.IsTrue());
    ExpectRectangle(form.Shape1, 10, 10, 200, 200);
    Move(70, 80); // dragging goes on unseen
    Release(70, 80);
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(kept));
    EXPECT_EQ(form.IncrementCounter.Text(), "6");
    EXPECT_EQ(form.textProfileName.Text(), "Art_6");
    EXPECT_TRUE(form.CropCancelled);
    Press(1, 1);
    EXPECT_FALSE(form.CropCancelled);
}

TEST_F(SamplingCropTest, TheRightButtonDuringADragEndsItWithAMessage) {
    const Picture kept = ChartPicture(50, 40, 8);
    form.picSmall.Picture = kept;
    Press(10, 10);
    Move(60, 60);
    Press(60, 60, kRight);
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Messages()[0].text, "Exiting Crop");
    EXPECT_FALSE(form.Shape1.Visible);
    Release(60, 60);
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(kept));
}

TEST_F(SamplingCropTest, TheRightButtonOverHiddenFramesPromisesThemAndDoesNotShowThem) {
    form.Frame4.Visible = false;
    Press(60, 60, kRight);
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Messages()[0].text, "Exiting Crop; Showing Frames");
    EXPECT_FALSE(form.Frame4.Visible);
}

TEST_F(SamplingCropTest, TheIdlePointerCarriesTheClickCropOutline) {
    form.TextCrop(0).Text = "30";
    form.TextCrop(1).Text = "50";
    Move(12, 34, 0);
    EXPECT_TRUE(form.Shape2.Visible);
    ExpectRectangle(form.Shape2, 12, 34, 50, 30);
    EXPECT_FALSE(form.Shape1.Visible);
    EXPECT_EQ(form.Caption(), "Mouse-down-click or drag to sample: X: 12  Y: 34");
    Press(12, 34);
    EXPECT_FALSE(form.Shape2.Visible);
}

TEST_F(SamplingCropTest, TheHiddenRectangleFollowsTheIdlePointerFromTheOrigin) {
    Move(12, 34, 0);
    EXPECT_EQ(form.Shape1.Width, 12);
    EXPECT_EQ(form.Shape1.Height, 34);
}

TEST_F(SamplingCropTest, TheTitleOfADragLagsOneMoveAndIsBareOutsideTheFirstQuadrant) {
    Press(100, 50);
    Move(150, 80);
    EXPECT_EQ(form.Caption(), "Mouse: X: 150  Y: 80 | Clip width: 200 Clip height: 200");
    Move(160.5F, 90);
    EXPECT_EQ(form.Caption(), "Mouse: X: 160.5  Y: 90 | Clip width: 50 Clip height: 30");
    Move(90, 90);
    EXPECT_EQ(form.Caption(), "Mouse: X: 90  Y: 90 | Clip width:  Clip height: ");
}

TEST_F(SamplingCropTest, AMoveBringsPointerAndHoverColourBackAndPumpsEvents) {
    form.MousePointer = kPointerSizeAll;
    form.FrameRGBFX2.BackColor = 0xFF8080;
    const int before = program.desktop.time.pumps;
    Move(1, 1, 0);
    EXPECT_EQ(form.MousePointer, kPointerDefault);
    EXPECT_EQ(form.FrameRGBFX2.BackColor, 0);
    EXPECT_EQ(program.desktop.time.pumps, before + 1);
}

TEST_F(SamplingCropTest, StartPointsAreEmptyThenSinglesThenWholeZeros) {
    EXPECT_TRUE(form.CropStartX.IsEmpty());
    Press(10, 20);
    EXPECT_EQ(form.CropStartX, Variant(10.0F));
    form.Click();
    EXPECT_EQ(form.ClickX, Variant(10.0F));
    EXPECT_EQ(form.ClickY, Variant(20.0F));
    Release(10, 20);
    EXPECT_EQ(form.CropStartX, Variant(Integer(0)));
    EXPECT_EQ(form.CropStartY, Variant(Integer(0)));
}

TEST_F(SamplingCropTest, WithoutIncrementTheSuffixIsTheSecondsSinceMidnight) {
    form.ckIncrement.Value = kUnchecked;
    program.desktop.time.seconds = 3661.5; // a tie: to the even second
    Drag(1, 1, 5, 5);
    EXPECT_EQ(form.textProfileName.Text(), "Art_3662");
    Drag(1, 1, 5, 5);
    EXPECT_EQ(form.textProfileName.Text(), "Art_3662");
    EXPECT_EQ(form.IncrementCounter.Text(), "5");
}

TEST_F(SamplingCropTest, ANameLosesEverythingFromItsFirstUnderscore) {
    form.textProfileName.Text = "My_brick_3";
    Drag(1, 1, 5, 5);
    EXPECT_EQ(form.textProfileName.Text(), "My_6");
    form.textProfileName.Text = "Plain";
    Drag(1, 1, 5, 5);
    EXPECT_EQ(form.textProfileName.Text(), "Plain_7");
}

TEST_F(SamplingCropTest, AnErrorInTheReleaseIsShownByItsDescription) {
    form.IncrementCounter = "no number";
    Drag(1, 1, 5, 5);
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Messages()[0].text, "Type mismatch");
    EXPECT_EQ(form.textProfileName.Text(), "Art_5");
}

TEST_F(SamplingCropTest, ACropTooLargeForMemoryIsToldAndDoesNoHarm) {
    form.TextCrop(0).Text = "2000000000";
    form.TextCrop(1).Text = "2000000000";
    Press(0, 0);
    Release(0, 0);
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Messages()[0].text, "Out of memory");
    form.TextCrop(0).Text = "3";
    form.TextCrop(1).Text = "4";
    Press(0, 0);
    Release(0, 0);
    EXPECT_EQ(form.picSmall.Image().Pixels(), Cut(canvas.Pixels(), 0, 0, 4, 3));
}

TEST_F(SamplingCropTest, AnErrorInTheReleaseLeavesTheRestUndone) {
    form.TextCrop(0).Text = "2000000000";
    form.TextCrop(1).Text = "2000000000";
    Press(7, 9);
    Release(7, 9);
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Messages()[0].text, "Out of memory");
    EXPECT_FALSE(form.CropDragging.IsTrue());
    EXPECT_TRUE(form.Shape1.Visible);
    EXPECT_EQ(form.CropStartX, Variant(7.0F));
    EXPECT_EQ(form.CropStartY, Variant(9.0F));
    EXPECT_EQ(form.IncrementCounter.Text(), "5");
    EXPECT_EQ(form.TextLoops.Text(), "0");
    EXPECT_EQ(form.textProfileName.Text(), "Art_5");
    EXPECT_TRUE(form.Image1.Picture().IsEmpty());
}

TEST_F(SamplingCropTest, AThirdButtonStartsNothing) {
    form.CropCancelled = true;
    Press(40, 60, kMiddle);
    EXPECT_FALSE(form.CropCancelled); // whatever the button
    EXPECT_FALSE(form.Shape1.Visible);
    EXPECT_FALSE(form.Shape3.Visible);
    EXPECT_FALSE(form.CropDragging.IsTrue());
    EXPECT_TRUE(form.CropStartX.IsEmpty());
    EXPECT_TRUE(form.CropStartY.IsEmpty());
    EXPECT_TRUE(Messages().empty());
}

TEST_F(SamplingCropTest, AThirdButtonMovesTheFloorBarToo) {
    form.ckFloorBar.Value = kChecked;
    Press(40, 60, kMiddle);
    EXPECT_TRUE(form.Shape3.Visible);
    ExpectRectangle(form.Shape3, 40, 60, 150, 195);
    EXPECT_EQ(form.CropStartX, Variant(40.0F));
}

TEST_F(SamplingCropTest, TheRightButtonLeavesTheFloorBar) {
    form.ckFloorBar.Value = kChecked;
    Press(40, 60, kRight);
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_FALSE(form.Shape3.Visible);
    EXPECT_TRUE(form.CropStartX.IsEmpty());
    EXPECT_TRUE(form.CropCancelled);
}

TEST_F(SamplingCropTest, WithTheFloorBarAPressMovesItsMarkerAndDrawsNoRectangle) {
    form.ckFloorBar.Value = kChecked;
    form.Shape2.Visible = true;
    Press(40, 60);
    EXPECT_TRUE(form.Shape3.Visible);
    ExpectRectangle(form.Shape3, 40, 60, 150, 195);
    EXPECT_FALSE(form.Shape1.Visible);
    EXPECT_FALSE(form.Shape2.Visible);
    EXPECT_FALSE(form.CropDragging.IsTrue());
    EXPECT_EQ(form.CropStartX, Variant(40.0F));
    EXPECT_EQ(form.CropStartY, Variant(60.0F));
    const Shape& rectangle = form.Shape1;
    const float before[] = {rectangle.Left, rectangle.Top, rectangle.Width, rectangle.Height};
    form.Caption = "as it was";
    Move(80, 90);
    EXPECT_FALSE(form.Shape2.Visible);
    EXPECT_EQ(form.Caption(), "as it was");
    ExpectRectangle(rectangle, before[0], before[1], before[2], before[3]);
}

TEST_F(SamplingCropTest, TheCropReadsPicImageAndNotTheFormsPicture) {
    form.Picture = ChartPicture(400, 300, 77);
    Drag(10, 10, 20, 20);
    EXPECT_EQ(form.picSmall.Image().Pixels(), Cut(canvas.Pixels(), 10, 10, 10, 10));
}

} // namespace
} // namespace mirelle::test
