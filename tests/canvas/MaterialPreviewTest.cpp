#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class MaterialPreviewTest : public ::testing::Test {
protected:
    MaterialPreviewTest() {
        form.picSmall.Picture = material;
        form.FramePics.Visible = true;
    }
    void Press(float x, float y, int button) { form.picSmall.MouseDown({button, 0, x, y}); }
    void Move(float x, float y) { form.picSmall.MouseMove({0, 0, x, y}); }

    TestProgram program;
    FrmPicX& form = program.form;
    Picture material = ChartPicture(60, 40, 200);
};

TEST_F(MaterialPreviewTest, ARightClickMakesItTheCanvas) {
    Press(1, 1, 2);
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(material));
    EXPECT_TRUE(form.Picture().SharesPixelsWith(material));
    EXPECT_TRUE(form.Picture7.Picture().SharesPixelsWith(material));
    EXPECT_EQ(form.PicImage.Width, 60);
    EXPECT_EQ(form.PicImage.Height, 40);
    EXPECT_TRUE(form.Text2x(1).Text().empty());
}

TEST_F(MaterialPreviewTest, AClickOnAnyLabelAboveItMakesItTheCanvas) {
    for (int label : {0, 1}) {
        form.PicImage.Picture = Picture();
        form.Label2(label).UserClick();
        EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(material));
        EXPECT_TRUE(form.Picture().SharesPixelsWith(material));
    }
    EXPECT_TRUE(form.Picture7.Picture().IsEmpty());
}

TEST_F(MaterialPreviewTest, AMaterialTooLargeForMemorySizesTheBoxAndLeavesTheCanvas) {
    const Picture canvas = ChartPicture(9, 9);
    form.PicImage.Picture = canvas;
    form.Picture = canvas;
    form.picSmall.Width = 40000;
    form.picSmall.Height = 30000;
    Press(1, 1, 2);
    EXPECT_EQ(form.PicImage.Width, 40000);
    EXPECT_EQ(form.PicImage.Height, 30000);
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(canvas));
    EXPECT_TRUE(form.Picture().SharesPixelsWith(canvas));
    EXPECT_EQ(form.Picture7.Width, 55);
}

TEST_F(MaterialPreviewTest, TheFormTakesItAlsoWhereTheCanvasBoxFails) {
    form.PicImage.Change.Connect([] { throw RunTimeError(ErrorNumber::OutOfMemory); });
    form.Label2(0).UserClick();
    EXPECT_TRUE(form.Picture().SharesPixelsWith(material));
}

TEST_F(MaterialPreviewTest, TheHandCopyIsFiftyFiveBothWays) {
    Press(1, 1, 2);
    EXPECT_EQ(form.Picture7.Picture().Width(), 60);
    form.Picture7.AutoSize = false;
    Press(1, 1, 2);
    EXPECT_EQ(form.Picture7.Width, 55);
    EXPECT_EQ(form.Picture7.Height, 55);
}

TEST_F(MaterialPreviewTest, ALeftClickSamplesIntoTheFirstFreeSlotFromOneOn) {
    form.Text2x(1).Text = "1,2,3";
    Press(12, 34, 1);
    const Color color = RGB(200, 34, 12);
    EXPECT_EQ(form.Frame2.BackColor, color);
    EXPECT_EQ(form.List1.Rows(), std::vector<std::string>{"200,34,12"});
    EXPECT_EQ(form.Text2x(2).Text(), "200,34,12");
    EXPECT_EQ(form.cmdColor(2).BackColor, color);
    EXPECT_TRUE(form.Text2x(0).Text().empty());
    EXPECT_TRUE(form.Text2x(3).Text().empty());
}

TEST_F(MaterialPreviewTest, WithNoFreeSlotTheSampleStaysInTheListOnly) {
    for (int slot = 1; slot < 10; ++slot)
        form.Text2x(slot).Text = "0,0,0";
    Press(12, 34, 1);
    EXPECT_EQ(form.List1.ListCount(), 1);
    EXPECT_TRUE(form.Text2x(0).Text().empty());
    EXPECT_EQ(form.Text2x(9).Text(), "0,0,0");
}

TEST_F(MaterialPreviewTest, ALeftClickOpensTheHiddenPalettePanelOnce) {
    int clicks = 0;
    form.cmdColorPick.Click.Connect([&] { ++clicks; });
    Press(1, 1, 1);
    EXPECT_EQ(clicks, 0);
    form.FramePics.Visible = false;
    Press(1, 1, 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(MaterialPreviewTest, APointOffThePictureIsSplitUnguarded) {
    Press(60, 5, 1);
    EXPECT_EQ(form.Frame2.BackColor, -1);
    EXPECT_EQ(form.Text2x(1).Text(), "-1,0,0");
    EXPECT_EQ(form.cmdColor(1).BackColor, 0);
}

TEST_F(MaterialPreviewTest, AMoveShowsTheColourAndTellsWhatAClickDoes) {
    form.FramePics.Visible = false;
    form.Caption = "Mouse: X: 1";
    Move(5, 6);
    EXPECT_EQ(form.Frame2.BackColor, RGB(200, 6, 5));
    EXPECT_EQ(form.Caption(), "Mirelle");
    EXPECT_EQ(form.picSmall.ToolTipText(),
              "40X60 Preview of material image to save; right-click to send to Sampling Canvas");
    form.FramePics.Visible = true;
    Move(5, 6);
    EXPECT_EQ(form.picSmall.ToolTipText(), "Pick image point to sample pixel color at that image location");
}

TEST_F(MaterialPreviewTest, EveryNewPictureSetsTheScrollRanges) {
    EXPECT_EQ(form.VSImage.Max, 45);
    EXPECT_EQ(form.HSImage.Max, 65);
    form.picSmall.Picture = ChartPicture(100, 10);
    EXPECT_EQ(form.VSImage.Max, 15);
    EXPECT_EQ(form.HSImage.Max, 105);
}

TEST_F(MaterialPreviewTest, ScrollRangesAreRoundedToWholeNumbersTiesToTheEvenOne) {
    form.picSmall.AutoSize = false;
    form.picSmall.Height = 10.5F;
    form.picSmall.Width = 9.5F;
    form.picSmall.Picture = material;
    EXPECT_EQ(form.VSImage.Max, 16);
    EXPECT_EQ(form.HSImage.Max, 14);
}

TEST_F(MaterialPreviewTest, ARangeBeyondSixteenBitsIsLeftAsItWas) {
    form.picSmall.Picture = ChartPicture(32763, 1);
    EXPECT_EQ(form.HSImage.Max, 65);
    EXPECT_EQ(form.VSImage.Max, 6);
}

TEST_F(MaterialPreviewTest, TheScrollBarsMoveIt) {
    form.HSImage.UserSet(30);
    EXPECT_EQ(form.picSmall.Left, -30);
    form.VSImage.UserDrag(12);
    EXPECT_EQ(form.picSmall.Top, -12);
    form.VSImage.UserDrop();
    EXPECT_EQ(form.picSmall.Top, -12);
}

TEST_F(MaterialPreviewTest, BothBarsMoveItInASetAndInADrag) {
    struct Bar {
        ScrollBar& bar;
        const Property<float>& place;
    };
    for (const Bar& each : {Bar{form.HSImage, form.picSmall.Left}, Bar{form.VSImage, form.picSmall.Top}}) {
        each.bar.UserSet(7);
        EXPECT_EQ(each.place, -7) << each.bar.Name();
        each.bar.UserDrag(20);
        EXPECT_EQ(each.place, -20) << each.bar.Name();
        each.bar.UserDrop();
        EXPECT_EQ(each.place, -20) << each.bar.Name();
        each.bar.Value = 3;
        EXPECT_EQ(each.place, -3) << each.bar.Name();
    }
}

TEST_F(MaterialPreviewTest, AClickOnItWithoutAPressDoesNothing) {
    form.PicImage.Picture = Picture();
    form.picSmall.UserClick();
    EXPECT_EQ(form.List1.ListCount(), 0);
    EXPECT_TRUE(form.PicImage.Picture().IsEmpty());
}

TEST_F(MaterialPreviewTest, TheLockHoldsItsSize) {
    form.ckLock.UserClick();
    EXPECT_FALSE(form.picSmall.AutoSize);
    form.picSmall.Picture = ChartPicture(10, 10);
    EXPECT_EQ(form.picSmall.Width, 60);
    form.ckLock.UserClick();
    EXPECT_TRUE(form.picSmall.AutoSize);
    EXPECT_EQ(form.picSmall.Width, 10);
}

} // namespace
} // namespace mirelle::test
