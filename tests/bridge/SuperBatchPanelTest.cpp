#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

using Texts = std::vector<std::string>;
const Texts kFour = {"*.jpg", "*.jpeg", "*.bmp", "*.gif"};
const Texts kEight = {"*.jpg", "*.jpeg", "*.png", "*.tif", "*.bmp", "*.gif", "*.tga", "*.psd"};

class SuperBatchPanelTest : public ::testing::Test {
protected:
    SuperBatchPanelTest() {
        form.Activate();
        program.loader.pictures["C:\\Mat\\a.jpg"] = picture;
        form.List2.AddItem("C:\\Mat\\a.jpg");
        form.List2.AddItem("C:\\Mat\\b.tif");
    }
    TestProgram program;
    FrmPicX& form = program.form;
    Picture picture = ChartPicture(8, 8);
};

TEST_F(SuperBatchPanelTest, OpensWithAllTypesAndClosesWithThePreviewableOnes) {
    form.Command14.UserClick();
    EXPECT_TRUE(form.Frame8.Visible);
    EXPECT_EQ(form.Frame8.Height, 276);
    EXPECT_EQ(form.Frame8.Width, 270);
    EXPECT_EQ(form.Combo5.Rows(), kEight);
    EXPECT_EQ(form.Combo5.Text(), "*.jpg");
    EXPECT_FALSE(form.Command2.Visible);
    for (const Control* control :
         {static_cast<Control*>(&form.Command6), static_cast<Control*>(&form.Command10),
          static_cast<Control*>(&form.Command13), static_cast<Control*>(&form.TextMatSize),
          static_cast<Control*>(&form.ckSize)}) {
        EXPECT_TRUE(control->Visible) << control->Name();
    }
    form.Command14.UserClick();
    EXPECT_FALSE(form.Frame8.Visible);
    EXPECT_FALSE(form.Command13.Visible);
    EXPECT_FALSE(form.Command10.Visible);
    EXPECT_TRUE(form.Command2.Visible);
    EXPECT_EQ(form.Combo5.Rows(), kFour);
    EXPECT_EQ(form.Combo5.Text(), "*.jpg");
}

TEST_F(SuperBatchPanelTest, TakesItsPlaceOverTheLibraryInALargeWindow) {
    form.UserWindow(kWindowMaximized, {1920, 1000});
    form.Command14.UserClick();
    EXPECT_EQ(form.Frame8.Left, form.Frame4.Left);
    EXPECT_EQ(form.Frame8.Top, form.Frame4.Top + 2);
    EXPECT_EQ(form.Frame8.Height, 300);
    EXPECT_EQ(form.Frame8.Width, 262);
    EXPECT_EQ(form.List2.Width, 3835);
    EXPECT_EQ(form.List2.Left, 50);
}

TEST_F(SuperBatchPanelTest, TheTypeToggleGoesBetweenFourAndEight) {
    form.Command2.UserClick();
    EXPECT_EQ(form.Combo5.Rows(), kEight);
    form.Command2.UserClick();
    EXPECT_EQ(form.Combo5.Rows(), kFour);
    form.Combo5.AddItem("*.x");
    form.Command2.UserClick();
    EXPECT_EQ(form.Combo5.Rows(), kEight);
}

TEST_F(SuperBatchPanelTest, AClickOnARowShowsItOnTheCanvasOnly) {
    form.List2.SetListIndex(0);
    EXPECT_EQ(form.Label8(2).Caption(), "File: a.jpg");
    EXPECT_TRUE(form.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.PicImage.Picture().IsEmpty());
    EXPECT_TRUE(form.picSmall.Picture().IsEmpty());
    EXPECT_TRUE(form.Picture3.Picture().IsEmpty());
}

TEST_F(SuperBatchPanelTest, BlanksAroundARowAreNotPartOfItsPath) {
    form.List2.AddItem("  " + form.List2.List(0) + " ");
    form.List2.SetListIndex(form.List2.ListCount() - 1);
    EXPECT_EQ(form.Label8(2).Caption(), "File: a.jpg");
    EXPECT_TRUE(form.Picture().SharesPixelsWith(picture));
}

TEST_F(SuperBatchPanelTest, OpeningShowsWhatTextureModeAndOthersHid) {
    form.cmdReMat.UserClick();
    form.TextMatSize.Visible = false;
    form.ckSize.Visible = false;
    ASSERT_FALSE(form.Command6.Visible);
    form.Command14.UserClick();
    EXPECT_TRUE(form.Command6.Visible);
    EXPECT_TRUE(form.TextMatSize.Visible);
    EXPECT_TRUE(form.ckSize.Visible);
}

TEST_F(SuperBatchPanelTest, WithLoadAClickFillsTheHoldersFromOneDecoding) {
    form.ckLoad.Value = kChecked;
    form.List2.SetListIndex(0);
    for (const PictureBox* box : {&form.PicImage, &form.picSmall, &form.Picture3}) {
        EXPECT_TRUE(box->Picture().SharesPixelsWith(picture)) << box->Name();
    }
    EXPECT_TRUE(form.Picture().SharesPixelsWith(picture));
    EXPECT_EQ(program.loader.loads, 1);
}

TEST_F(SuperBatchPanelTest, ARowThatCannotBeReadKeepsEveryPicture) {
    form.ckLoad.Value = kChecked;
    form.List2.SetListIndex(0);
    form.List2.SetListIndex(1);
    EXPECT_EQ(form.Label8(2).Caption(), "File: b.tif");
    EXPECT_TRUE(form.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(picture));
}

TEST_F(SuperBatchPanelTest, AHolderThatFailsLeavesTheOthersTheirPicture) {
    form.PicImage.Change.Connect([] { throw RunTimeError(ErrorNumber::OutOfMemory); });
    form.picSmall.Change.Connect([] { throw RunTimeError(ErrorNumber::OutOfMemory); });
    form.ckLoad.Value = kChecked;
    form.List2.SetListIndex(0);
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.Picture3.Picture().SharesPixelsWith(picture));
}

TEST_F(SuperBatchPanelTest, ADoubleClickRemovesTheRowAndCounts) {
    form.List2.SetListIndex(0);
    form.List2.UserDblClick();
    EXPECT_EQ(form.List2.Rows(), Texts{"C:\\Mat\\b.tif"});
    EXPECT_EQ(form.Label8(0).Caption(), "1 Files");
    form.List2.UserDblClick(); // no row is selected now
    EXPECT_EQ(form.List2.ListCount(), 1);
    EXPECT_EQ(form.Label8(0).Caption(), "1 Files");
}

TEST_F(SuperBatchPanelTest, ClearingTheListLeavesTheCount) {
    form.Label8(0).Caption = "2 Files";
    form.Command15.UserClick();
    EXPECT_EQ(form.List2.ListCount(), 0);
    EXPECT_EQ(form.Label8(0).Caption(), "2 Files");
}

} // namespace
} // namespace mirelle::test
