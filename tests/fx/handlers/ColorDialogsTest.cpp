#include "tests/fx/handlers/FxProgram.h"

namespace mirelle::test {
namespace {

class ColorDialogsTest : public FxProgramTest {
protected:
    void Choose(int index, Color color) {
        program.desktop.dialogs.colorAnswers.push_back(color);
        form.cmdColorDialog(index).UserClick();
    }
    void SizeGradientBoxes() {
        for (PictureBox* box : {&form.pic1grad, &form.pic2grad, &form.picDest}) {
            box->Width = 30 * 15;
            box->Height = 20 * 15;
        }
    }
    void ExpectSurround(Color color) {
        EXPECT_EQ(form.FrameMatCanvas.BackColor, color);
        EXPECT_EQ(form.FrameMatCanvas2.BackColor, color);
        EXPECT_EQ(form.PicScroll.BackColor, color);
    }
};

TEST_F(ColorDialogsTest, TheButtonsStartInTheirColours) {
    const Color colors[] = {0x00FFFF, 0x404040, 0xFF00FF, 0x000000, 0x0080FF};
    for (int index = 0; index < 5; ++index)
        EXPECT_EQ(form.cmdColorDialog(index).BackColor, colors[index]) << index;
}

TEST_F(ColorDialogsTest, EveryClickAsksTheDialogToTellACancel) {
    for (int index = 0; index < 5; ++index) {
        form.CDialog1.CancelError = false;
        form.cmdColorDialog(index).UserClick();
        EXPECT_TRUE(form.CDialog1.CancelError) << index;
    }
}

TEST_F(ColorDialogsTest, TheHairlineColourGoesToBothRectangles) {
    Choose(0, 0x123456);
    EXPECT_EQ(form.Shape1.BorderColor, 0x123456);
    EXPECT_EQ(form.Shape2.BorderColor, 0x123456);
    EXPECT_EQ(form.cmdColorDialog(0).BackColor, 0x123456);
}

TEST_F(ColorDialogsTest, CancelKeepsHairlineAndCanvas) {
    form.cmdColorDialog(0).UserClick();
    form.cmdColorDialog(1).UserClick();
    EXPECT_EQ(form.Shape1.BorderColor, 0x00FFFF);
    EXPECT_EQ(form.BackColor, 0x404040);
    EXPECT_EQ(program.desktop.dialogs.dialogs.size(), 2U);
}

TEST_F(ColorDialogsTest, EachClickThatShowsADialogAsksForTheErrorOfACancel) {
    for (const int index : {0, 1, 4}) {
        form.CDialog1.CancelError = false;
        form.cmdColorDialog(index).UserClick();
        EXPECT_TRUE(form.CDialog1.CancelError) << index;
    }
}

TEST_F(ColorDialogsTest, TheCanvasColourHalvesAsOneNumberAroundIt) {
    const struct {
        Color color, surround;
    } rows[] = {{0x808080, 0x404040},
                {0xFFFFFF, 0x800000},
                {0x000000, 0xC0C0C0},
                {0x000003, 0x000002},
                {0x000001, 0}};
    for (const auto& row : rows) {
        Choose(1, row.color);
        EXPECT_EQ(form.BackColor, row.color);
        EXPECT_EQ(form.cmdColorDialog(1).BackColor, row.color);
        ExpectSurround(row.surround);
    }
}

TEST_F(ColorDialogsTest, WithTheFormAsCanvasItsNewColourIsTheCanvasPicture) {
    form.UserWindow(kWindowNormal, {20, 10});
    form.ckUseFormCanvas.UserClick();
    Choose(1, 0x010203);
    EXPECT_EQ(Canvas(), Bitmap(20, 10, Pixel{1, 2, 3, 0}));
    EXPECT_EQ(form.Picture3.Picture().Pixels(), Canvas());
}

TEST_F(ColorDialogsTest, WithoutTheFormAsCanvasItsNewColourLeavesThePictures) {
    const Picture picture = ChartPicture(30, 20, 3);
    Paste(picture);
    Choose(1, 0x010203);
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.Picture3.Picture().SharesPixelsWith(picture));
}

TEST_F(ColorDialogsTest, TheImageFxButtonOpensAndClosesItsPanelThroughRevert) {
    int reverts = 0;
    form.cmdCopy.Click.Connect([&] { ++reverts; });
    form.FrameGradFX.Visible = true;
    form.FrameRGBFX.Height = 7;
    form.cmdColorDialog(2).UserClick();
    EXPECT_TRUE(form.FrameRGBFX.Visible);
    EXPECT_FALSE(form.FrameGradFX.Visible);
    EXPECT_EQ(form.FrameRGBFX.Height, 1020);
    EXPECT_EQ(reverts, 2);
    form.FrameGradFX.Visible = true;
    form.cmdColorDialog(2).UserClick();
    EXPECT_FALSE(form.FrameRGBFX.Visible);
    EXPECT_FALSE(form.FrameGradFX.Visible);
    EXPECT_EQ(reverts, 4);
}

TEST_F(ColorDialogsTest, TheGradientButtonOpensAndClosesItsPanel) {
    const Picture picture = ChartPicture(30, 20, 3);
    Paste(picture);
    SizeGradientBoxes();
    form.FrameRGBFX.Visible = true;
    form.FrameGradFX.Height = 7;
    std::vector<int> directions;
    form.cmdGradV.OnClick([&](int index) { directions.push_back(index); });
    form.cmdColorDialog(3).UserClick();
    EXPECT_TRUE(form.FrameGradFX.Visible);
    EXPECT_FALSE(form.FrameRGBFX.Visible);
    EXPECT_EQ(form.FrameGradFX.Height, 1020);
    EXPECT_TRUE(form.StoredCanvasPicture.SharesPixelsWith(picture));
    EXPECT_EQ(directions, (std::vector<int>{1, 1}));
    form.cmdColorDialog(3).UserClick();
    EXPECT_FALSE(form.FrameGradFX.Visible);
    EXPECT_EQ(directions.size(), 2U);
}

TEST_F(ColorDialogsTest, FromNoPanelTheGradientKeepsItsCanvasImageAndGoesVertical) {
    Paste(ChartPicture(30, 20, 3));
    SizeGradientBoxes();
    const Picture before = ChartPicture(30, 20, 7);
    form.pic1grad.Picture = before;
    form.GradDirectionH = true;
    form.GradDirectionV = false;
    std::vector<int> directions;
    form.cmdGradV.OnClick([&](int index) { directions.push_back(index); });
    form.cmdColorDialog(3).UserClick();
    EXPECT_TRUE(form.FrameGradFX.Visible);
    EXPECT_TRUE(form.StoredCanvasPicture.SharesPixelsWith(before));
    // The first run turns the direction to vertical, so that the runs after it find that.
    EXPECT_EQ(directions, (std::vector<int>{1, 1}));
    EXPECT_TRUE(form.GradDirectionV);
    EXPECT_FALSE(form.GradDirectionH);
}

TEST_F(ColorDialogsTest, TheGradientColourFillsTheGradientImage) {
    Choose(4, 0x0A0B0C);
    EXPECT_TRUE(form.Picture5.Picture().IsEmpty());
    EXPECT_EQ(form.Picture5.BackColor, 0x0A0B0C);
    EXPECT_FALSE(form.cmdColorDialog(4).HasPicture);
    EXPECT_EQ(form.cmdColorDialog(4).BackColor, 0x0A0B0C);
    EXPECT_EQ(form.StoredGradientPicture.Pixels().At(0, 0), (Pixel{0x0A, 0x0B, 0x0C, 0}));
    EXPECT_TRUE(form.GradDirectionV);
}

TEST_F(ColorDialogsTest, ACancelledGradientColourGoesOnWithTheFormerOne) {
    Choose(0, 0x111213);
    form.cmdColorDialog(4).UserClick();
    EXPECT_EQ(form.Picture5.BackColor, 0x111213);
}

TEST_F(ColorDialogsTest, ARightClickRestoresAllButTheScrolledBackground) {
    Choose(0, 0x123456);
    Choose(1, 0x808080);
    form.cmdColorDialog(3).MouseDown({1, 0, 0, 0});
    EXPECT_EQ(form.BackColor, 0x808080);
    form.cmdColorDialog(3).MouseDown({2, 0, 0, 0});
    EXPECT_EQ(form.Shape1.BorderColor, 0x00FFFF);
    EXPECT_EQ(form.Shape2.BorderColor, 0xFFFFFF);
    EXPECT_EQ(form.BackColor, 0x404040);
    EXPECT_EQ(form.FrameMatCanvas.BackColor, 0xC0C0C0);
    EXPECT_EQ(form.FrameMatCanvas2.BackColor, 0xC0C0C0);
    EXPECT_EQ(form.PicScroll.BackColor, 0x404040);
    EXPECT_EQ(form.cmdColorDialog(0).BackColor, 0x00FFFF);
    EXPECT_EQ(form.cmdColorDialog(1).BackColor, 0x404040);
}

} // namespace
} // namespace mirelle::test
