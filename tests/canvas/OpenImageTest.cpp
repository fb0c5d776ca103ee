#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class OpenImageTest : public ::testing::Test {
protected:
    OpenImageTest() {
        program.loader.pictures["D:\\wall.jpg"] = wall;
        program.loader.pictures["D:\\wall.tif"] = Picture();
        form.PicImage.Picture = former;
        form.Picture = former;
        form.picSmall.Picture = former;
    }
    void Choose(const std::string& path) {
        program.desktop.dialogs.openAnswers.push_back(path);
        form.Command23.Click();
    }

    TestProgram program;
    FrmPicX& form = program.form;
    Picture wall = ChartPicture(40, 30, 7);
    Picture former = ChartPicture(10, 10, 1);
};

TEST_F(OpenImageTest, AsksWithItsFilterTitleAndFlags) {
    form.Command23.Click();
    ASSERT_EQ(program.desktop.dialogs.dialogs.size(), 1U);
    const OpenRequest& request = program.desktop.dialogs.dialogs[0].open;
    EXPECT_EQ(request.filter,
              "JPG Files (*.jpeg;*.jpg)|*.jpeg;*.jpg|Bmp Files (*.bmp)|*.bmp|Gif Files (*.gif)|*.gif)");
    EXPECT_EQ(request.title, "Open to Canvas");
    EXPECT_EQ(request.flags, 2050);
}

TEST_F(OpenImageTest, CancelIsReportedAndChangesNothing) {
    form.Command23.Click();
    ASSERT_EQ(program.desktop.dialogs.messages.size(), 1U);
    EXPECT_EQ(program.desktop.dialogs.messages[0].text, "Open cancelled");
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(former));
}

TEST_F(OpenImageTest, FillsMaterialImageAndCanvasFromOneDecoding) {
    Choose("D:\\wall.jpg");
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(wall));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(wall));
    EXPECT_TRUE(form.Picture().SharesPixelsWith(wall));
    EXPECT_EQ(form.picSmall.Width, 40);
    EXPECT_EQ(form.PicImage.Height, 30);
    EXPECT_EQ(form.HSImage.Max, 45);
    EXPECT_EQ(form.VSImage.Max, 35);
    EXPECT_EQ(program.loader.loads, 1);
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

TEST_F(OpenImageTest, ADroppedFileComesInAsIfTheDialogHadNamedIt) {
    form.OLEDragDrop({{"D:\\wall.jpg", "D:\\other.jpg"}, {}});
    EXPECT_TRUE(program.desktop.dialogs.dialogs.empty());
    EXPECT_EQ(form.CDialog1.FileName, "D:\\wall.jpg");
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(wall));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(wall));
    form.PicImage.Picture = former;
    form.Check4.Value = kUnchecked;
    form.OLEDragDrop({{"D:\\wall.jpg"}, {}});
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
}

TEST_F(OpenImageTest, ADroppedFileThatIsNoPictureChangesNothing) {
    form.OLEDragDrop({{"D:\\none.jpg"}, {}});
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

TEST_F(OpenImageTest, LeavesEveryOtherHolderAndNameAlone) {
    form.Image1.Picture = former;
    form.CurrentImagePath = "C:\\old.jpg";
    form.textProfileName.Text = "Art_3";
    Choose("D:\\wall.jpg");
    EXPECT_TRUE(form.Image1.Picture().SharesPixelsWith(former));
    for (const PictureBox* box :
         {&form.picSmall2, &form.Picture3, &form.Pic1, &form.Picture1, &form.Picture4}) {
        EXPECT_TRUE(box->Picture().IsEmpty()) << box->Name();
    }
    EXPECT_EQ(form.CurrentImagePath.Text(), "C:\\old.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "Art_3");
}

TEST_F(OpenImageTest, WithoutOpenBothTheCanvasStays) {
    form.Check4.Value = kUnchecked;
    Choose("D:\\wall.jpg");
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(wall));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.Picture().SharesPixelsWith(former));
}

TEST_F(OpenImageTest, KeepAndLockAndOnlyAreNotRead) {
    form.ckKeep.Value = kChecked;
    form.ckOnly.Value = kChecked;
    form.ckLock.Value = kChecked; // switches AutoSize off; the open switches it on again
    Choose("D:\\wall.jpg");
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(wall));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(wall));
    EXPECT_TRUE(form.picSmall.AutoSize);
    EXPECT_EQ(form.picSmall.Width, 40);
}

TEST_F(OpenImageTest, AFileThatIsNoPictureChangesNothingAndSaysNothing) {
    for (const char* path : {"D:\\wall.tif", "D:\\missing.jpg"}) {
        Choose(path);
        EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(former)) << path;
        EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former)) << path;
    }
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

TEST_F(OpenImageTest, AFileThatIsNoPictureBringsTheFormBackToTheCanvas) {
    form.Picture = ChartPicture(5, 5);
    form.picSmall.AutoSize = false;
    form.PicImage.AutoSize = false;
    form.Check4.Value = kUnchecked;
    Choose("D:\\missing.jpg");
    EXPECT_FALSE(form.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.picSmall.AutoSize);
    EXPECT_FALSE(form.PicImage.AutoSize);
    form.Check4.Value = kChecked;
    Choose("D:\\missing.jpg");
    EXPECT_TRUE(form.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.PicImage.AutoSize);
}

TEST_F(OpenImageTest, AHolderThatFailsLeavesTheOthersTheirPicture) {
    form.picSmall.Change.Connect([] { throw RunTimeError(ErrorNumber::OutOfMemory); });
    form.PicImage.Change.Connect([] { throw RunTimeError(ErrorNumber::OutOfMemory); });
    Choose("D:\\wall.jpg");
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(wall));
    EXPECT_TRUE(form.Picture().SharesPixelsWith(wall));
}

TEST_F(OpenImageTest, EachClickAsksForTheErrorOfACancel) {
    for (int click = 0; click < 2; ++click) {
        form.CDialog1.CancelError = false;
        form.Command23.UserClick();
        EXPECT_TRUE(form.CDialog1.CancelError);
    }
    EXPECT_EQ(program.desktop.dialogs.messages.size(), 2U);
}

TEST_F(OpenImageTest, TheFileChosenLastIsNotOpenedAgainByACancel) {
    Choose("D:\\wall.jpg");
    form.picSmall.Picture = former;
    form.Command23.UserClick();
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(former));
}

TEST_F(OpenImageTest, CropAfterOpeningIntoTheMaterialImageAloneCutsTheOldCanvas) {
    form.Check4.Value = kUnchecked;
    Choose("D:\\wall.jpg");
    form.TextCrop(0).Text = "4";
    form.TextCrop(1).Text = "5";
    form.MouseDown({1, 0, 2, 3});
    form.MouseUp({1, 0, 2, 3});
    EXPECT_EQ(form.picSmall.Image().Pixels(), Cut(former.Pixels(), 2, 3, 5, 4));
}

} // namespace
} // namespace mirelle::test
