#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class PasteTest : public ::testing::Test {
protected:
    void PutOnClipboard(const Picture& picture) { program.desktop.clipboard.bitmap = picture; }

    TestProgram program;
    FrmPicX& form = program.form;
    Picture grab = ChartPicture(60, 40, 9);
    Picture former = ChartPicture(10, 10, 1);
};

TEST_F(PasteTest, BringsTheBitmapIntoEveryHolder) {
    PutOnClipboard(grab);
    form.Command5.UserClick();
    for (const PictureBox* box :
         {&form.PicImage, &form.Picture1, &form.Picture3, &form.Pic1, &form.picSmall}) {
        EXPECT_TRUE(box->Picture().SharesPixelsWith(grab)) << box->Name();
    }
    EXPECT_TRUE(form.Picture().SharesPixelsWith(grab));
    EXPECT_TRUE(form.Image1.Picture().SharesPixelsWith(grab));
    EXPECT_TRUE(form.ClipboardIsSource);
    EXPECT_TRUE(form.Picture4.Picture().IsEmpty());
    EXPECT_GT(program.desktop.time.pumps, 0);
}

TEST_F(PasteTest, SizesThePixelArraysForThePicture) {
    PutOnClipboard(grab);
    form.Command5.UserClick();
    for (const PixelFrame* frame : {&form.FXSource, &form.FXDest}) {
        EXPECT_EQ(frame->info.bmWidth, 60);
        EXPECT_EQ(frame->info.bmHeight, 40);
        EXPECT_EQ(frame->info.bmWidthBytes, 240);
    }
}

TEST_F(PasteTest, SizesTheThumbnailFromTheMaterialImage) {
    PutOnClipboard(ChartPicture(1000, 800));
    form.Command5.UserClick();
    EXPECT_FLOAT_EQ(form.Image1.Width, 400);
    EXPECT_FLOAT_EQ(form.Image1.Height, 300);
}

TEST_F(PasteTest, TheThumbnailStartsFromNineTenthsOfTheMaterialImage) {
    form.ckKeep.Value = kChecked;
    // Nine tenths are 350 exactly: neither below the limit nor above it.
    form.picSmall.Width = 388.8889F;
    form.picSmall.Height = 388.8889F;
    PutOnClipboard(grab);
    form.Command5.UserClick();
    EXPECT_EQ(form.Image1.Width, 350);
    EXPECT_EQ(form.Image1.Height, 300);
}

TEST_F(PasteTest, TheGradientRunsDownwardsTwiceWhileItsPanelIsShown) {
    std::vector<int> directions;
    form.cmdGradV.OnClick([&](int index) { directions.push_back(index); });
    PutOnClipboard(grab);
    form.Command5.UserClick();
    EXPECT_TRUE(directions.empty());
    form.FrameGradFX.Visible = true;
    form.GradDirectionH = true; // the first run itself makes the direction downwards
    form.Command5.UserClick();
    EXPECT_EQ(directions, (std::vector<int>{1, 1}));
    form.ckAutoPaste.Value = kChecked;
    program.desktop.clipboard.Clear();
    form.Command5.UserClick();
    EXPECT_EQ(directions.size(), 2U);
}

TEST_F(PasteTest, WithoutABitmapTellsSoAndChangesNothing) {
    form.PicImage.Picture = former;
    form.ClipboardIsSource = true;
    program.desktop.clipboard.SetText("no picture");
    form.Command5.UserClick();
    ASSERT_EQ(program.desktop.dialogs.messages.size(), 1U);
    EXPECT_EQ(program.desktop.dialogs.messages[0].text,
              "Clipboard contains no picture; Hit Printscreen button");
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.ClipboardIsSource);
}

TEST_F(PasteTest, AutoPasteWithoutABitmapSaysNothingAndKeepsEveryPicture) {
    form.PicImage.Picture = former;
    form.picSmall.Picture = former;
    form.ckAutoPaste.Value = kChecked;
    form.UserWindow(kWindowMaximized, {1600, 900});
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(former));
    EXPECT_FALSE(form.ClipboardIsSource);
}

TEST_F(PasteTest, AutoPastePastesAtEveryResizeWhileMaximised) {
    form.ckAutoPaste.Value = kChecked;
    PutOnClipboard(grab);
    form.UserWindow(kWindowMaximized, {1600, 900});
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(grab));
    const Picture second = ChartPicture(20, 20, 5);
    PutOnClipboard(second);
    form.UserWindow(kWindowMaximized, {1600, 901});
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(second));
    PutOnClipboard(grab);
    form.UserWindow(kWindowNormal, {1024, 700});
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(second));
}

TEST_F(PasteTest, KeepChangesTheCanvasAndNotTheMaterialImage) {
    form.picSmall.Picture = former;
    form.ckKeep.Value = kChecked;
    PutOnClipboard(grab);
    form.Command5.UserClick();
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(grab));
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.Image1.Picture().SharesPixelsWith(former));
}

TEST_F(PasteTest, AVisibleGradientPanelTakesThePictureBeforeTheCanvasIsPainted) {
    form.FrameGradFX.Visible = true;
    std::vector<int> directions;
    Picture canvasSeenByGradient = former;
    form.cmdGradV.OnClick([&](int index) {
        directions.push_back(index);
        canvasSeenByGradient = form.Picture;
    });
    PutOnClipboard(grab);
    form.Command5.UserClick();
    ASSERT_GE(directions.size(), 1U);
    EXPECT_EQ(directions[0], 1);
    EXPECT_TRUE(form.Picture4.Picture().SharesPixelsWith(grab));
    for (const PictureBox* box : {&form.pic1grad, &form.pic2grad, &form.picDest}) {
        EXPECT_EQ(box->Width, 60 * 15) << box->Name();
        EXPECT_EQ(box->Height, 40 * 15) << box->Name();
        EXPECT_EQ(box->ScaleWidth(), 60) << box->Name();
    }
    EXPECT_FALSE(canvasSeenByGradient.SharesPixelsWith(grab));
    EXPECT_TRUE(form.Picture().SharesPixelsWith(grab));
}

// The first run turns the direction to vertical, so that the run after it is always vertical too.
TEST_F(PasteTest, AVisibleGradientPanelRunsTwiceDownwardsFromEitherDirection) {
    form.FrameGradFX.Visible = true;
    std::vector<int> directions;
    form.cmdGradV.OnClick([&](int index) { directions.push_back(index); });
    PutOnClipboard(grab);
    for (const bool across : {false, true}) {
        form.GradDirectionH = across;
        form.GradDirectionV = !across;
        directions.clear();
        form.Command5.UserClick();
        EXPECT_EQ(directions, (std::vector<int>{1, 1})) << across;
        EXPECT_TRUE(form.StoredCanvasPicture.SharesPixelsWith(grab)) << across;
    }
}

// Each holder that takes the bitmap is a read of its own.
TEST_F(PasteTest, TheClipboardIsReadAfreshAtEachUse) {
    int& reads = program.desktop.clipboard.reads;
    PutOnClipboard(grab);
    form.Command5.UserClick();
    EXPECT_EQ(reads, 9);
    reads = 0;
    form.FrameGradFX.Visible = true;
    form.Command5.UserClick();
    EXPECT_EQ(reads, 11);
    reads = 0;
    form.ckKeep.Value = kChecked;
    form.Command5.UserClick();
    EXPECT_EQ(reads, 10);
}

TEST_F(PasteTest, ABitmapThatComesBetweenTwoReadsIsTakenByTheReadsBehindIt) {
    const Picture second = ChartPicture(30, 20, 5);
    PutOnClipboard(grab);
    form.Picture1.Change.Connect([&] { PutOnClipboard(second); });
    form.Command5.UserClick();
    EXPECT_TRUE(form.Picture1.Picture().SharesPixelsWith(grab));
    for (const PictureBox* box : {&form.PicImage, &form.Picture3, &form.Pic1, &form.picSmall})
        EXPECT_TRUE(box->Picture().SharesPixelsWith(second)) << box->Name();
    EXPECT_TRUE(form.Picture().SharesPixelsWith(second));
}

// The gradient's boxes are painted: between the change of the height and that of the width one would have
// more pixels than there can be.
TEST_F(PasteTest, AGradientBoxThatCannotTakeItsSizeDoesNotEndThePaste) {
    form.FrameGradFX.Visible = true;
    PutOnClipboard(ChartPicture(32000, 1));
    form.Command5.UserClick();
    const Picture upright = ChartPicture(1, 17000, 5);
    PutOnClipboard(upright);
    form.pic2grad.Picture = upright; // of the size to come, so that nothing is to be stretched
    EXPECT_NO_THROW(form.Command5.UserClick());
    for (const PictureBox* box : {&form.PicImage, &form.Picture3, &form.Pic1, &form.picSmall})
        EXPECT_TRUE(box->Picture().SharesPixelsWith(upright)) << box->Name();
    for (const PictureBox* box : {&form.pic1grad, &form.pic2grad, &form.picDest}) {
        EXPECT_EQ(box->PixelWidth(), 1) << box->Name();
        EXPECT_EQ(box->PixelHeight(), 17000) << box->Name();
    }
}

TEST_F(PasteTest, AClipboardThatLosesItsBitmapHalfwayLeavesTheRestAsItWas) {
    form.Pic1.Picture = former;
    PutOnClipboard(grab);
    form.Picture3.Change.Connect([this] { program.desktop.clipboard.Clear(); });
    form.Command5.UserClick();
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(grab));
    EXPECT_TRUE(form.Pic1.Picture().SharesPixelsWith(former));
}

TEST_F(PasteTest, ADroppedBitmapComesInAsThePasteButtonWouldBringIt) {
    PutOnClipboard(former);
    form.OLEDragDrop({{}, grab});
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(grab));
    EXPECT_TRUE(form.Picture3.Picture().SharesPixelsWith(grab));
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(grab));
    EXPECT_TRUE(form.ClipboardIsSource);
    // The start state is read again from the clipboard: it is to find the dropped bitmap there.
    EXPECT_TRUE(program.desktop.clipboard.bitmap.SharesPixelsWith(grab));
}

TEST_F(PasteTest, ADropOfNothingSaysNothing) {
    form.PicImage.Picture = former;
    form.OLEDragDrop({});
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
}

TEST_F(PasteTest, Command8ClearsTheClipboard) {
    PutOnClipboard(grab);
    form.Command8.UserClick();
    EXPECT_FALSE(program.desktop.clipboard.HasBitmap());
}

TEST_F(PasteTest, Command12PutsTheMaterialImageOnTheClipboard) {
    form.picSmall.Picture = former;
    program.desktop.clipboard.SetText("before");
    form.Command12.UserClick();
    EXPECT_TRUE(program.desktop.clipboard.bitmap.SharesPixelsWith(former));
    EXPECT_FALSE(program.desktop.clipboard.text.has_value());
}

TEST_F(PasteTest, Command12ClearsTheClipboardAlsoWhereThereIsNoImageToBeHad) {
    form.picSmall.Width = 40000;
    form.picSmall.Height = 30000;
    PutOnClipboard(grab);
    form.Command12.UserClick();
    EXPECT_FALSE(program.desktop.clipboard.HasBitmap());
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

TEST_F(PasteTest, HoldersSharePixelsUntilOneIsPainted) {
    PutOnClipboard(grab);
    form.Command5.UserClick();
    form.PicImage.Paint().At(0, 0) = {1, 2, 3, 0};
    EXPECT_EQ(form.Picture1.Image().Pixels().At(0, 0), grab.Pixels().At(0, 0));
    EXPECT_EQ(form.PicImage.Image().Pixels().At(0, 0), (Pixel{1, 2, 3, 0}));
    EXPECT_EQ(form.PicImage.Picture().Pixels().At(0, 0), grab.Pixels().At(0, 0));
}

} // namespace
} // namespace mirelle::test
