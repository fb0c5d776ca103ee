#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class PanelsTest : public ::testing::Test {
protected:
    void ExpectRightSide(bool visible) {
        for (const Control* panel : {static_cast<Control*>(&form.Frame3), static_cast<Control*>(&form.Frame4),
                                     static_cast<Control*>(&form.Frame6), static_cast<Control*>(&form.Frame7),
                                     static_cast<Control*>(&form.picSmall)}) {
            EXPECT_EQ(panel->Visible, visible) << panel->Name();
        }
    }
    TestProgram program;
    FrmPicX& form = program.form;
};

TEST_F(PanelsTest, TheRightToggleClearsTheRightSideAndBringsItBackWithoutTheSuperBatchPanel) {
    form.Frame8.Visible = true;
    form.cmdHideFrame(0).UserClick();
    ExpectRightSide(false);
    EXPECT_FALSE(form.Frame8.Visible);
    EXPECT_TRUE(form.Frame5.Visible);
    form.cmdHideFrame(0).UserClick();
    ExpectRightSide(true);
    EXPECT_FALSE(form.Frame8.Visible);
}

TEST_F(PanelsTest, BringingTheRightSideBackLeavesAnOpenSuperBatchPanelOpen) {
    form.cmdHideFrame(0).UserClick();
    form.Frame8.Visible = true;
    form.cmdHideFrame(0).UserClick();
    EXPECT_TRUE(form.Frame8.Visible);
}

TEST_F(PanelsTest, HidingAllFramesLeavesTheFloatingPanelThatBringsThemBack) {
    form.Frame8.Visible = true;
    form.cmdHideFrame(1).UserClick();
    ExpectRightSide(false);
    EXPECT_FALSE(form.Frame5.Visible);
    EXPECT_TRUE(form.Frame8.Visible); // it is in neither list
    EXPECT_TRUE(form.FrShowFrames(0).Visible);
    EXPECT_TRUE(form.cmdShowFrames.Visible);
    form.Frame8.Visible = false;
    form.cmdShowFrames.UserClick();
    ExpectRightSide(true);
    EXPECT_TRUE(form.Frame5.Visible);
    EXPECT_FALSE(form.Frame8.Visible);
    EXPECT_FALSE(form.FrShowFrames(0).Visible);
    EXPECT_FALSE(form.cmdShowFrames.Visible);
}

TEST_F(PanelsTest, TheFloatingPanelIsDraggedByItsBorder) {
    Frame& panel = form.FrShowFrames(0);
    panel.MouseDown({1, 0, 2, 2});
    EXPECT_EQ(form.MousePointer, kPointerSizeAll);
    form.DragOver(panel, 300, 200);
    EXPECT_EQ(form.PanelDropX, Variant(300.0F));
    EXPECT_EQ(form.PanelDropY, Variant(200.0F));
    form.DragDrop(panel, 310, 220);
    EXPECT_EQ(panel.Left, 310 - panel.Width / 2);
    EXPECT_EQ(panel.Top, 220 - panel.Height / 2);
    panel.MouseUp({1, 0, 2, 2});
    EXPECT_EQ(panel.Left, 300);
    EXPECT_EQ(panel.Top, 200);
    form.MouseMove({0, 0, 5, 5});
    EXPECT_EQ(form.MousePointer, kPointerDefault);
    panel.MouseMove({0, 0, 2, 2});
    EXPECT_EQ(form.MousePointer, kPointerSizeAll);
}

TEST_F(PanelsTest, TheWindowGoesOnTopAndComesDown) {
    form.Command18(1).UserClick();
    EXPECT_FALSE(program.desktop.screen.topmost);
    EXPECT_FALSE(form.Topmost);
    form.Command18(0).UserClick();
    EXPECT_TRUE(program.desktop.screen.topmost);
    EXPECT_TRUE(form.Topmost);
}

TEST_F(PanelsTest, FullScreenHasAScaleOf529UnitsAcross) {
    form.cmdFullScreen.UserClick();
    EXPECT_EQ(form.WindowState, kWindowMaximized);
    EXPECT_EQ(form.ScaleWidth(), 529);
    EXPECT_EQ(form.ScaleMode(), kScaleUser);
    EXPECT_EQ(form.Frame7.Top, 300); // the large layout
    EXPECT_FLOAT_EQ(form.ScaleX(1920), 529);
    form.cmdFullScreen.UserClick();
    EXPECT_EQ(form.WindowState, kWindowNormal);
    EXPECT_EQ(form.ScaleWidth(), 529);
    EXPECT_EQ(form.Frame7.Top, 277);
    EXPECT_EQ(form.Frame8.Height, 276);
    EXPECT_EQ(form.Frame8.Width, 270);
}

TEST_F(PanelsTest, TheFullScreenButtonTellsWhereItLeads) {
    form.cmdFullScreen.MouseMove({});
    EXPECT_EQ(form.cmdFullScreen.ToolTipText(), "Fullscreen");
    form.cmdFullScreen.UserClick();
    form.cmdFullScreen.MouseMove({});
    EXPECT_EQ(form.cmdFullScreen.ToolTipText(), "Normal Form Size");
}

TEST_F(PanelsTest, ADoubleClickOnThePathCopiesIt) {
    form.lblPubPath.Caption = "  C:\\Mat\\a.jpg ";
    form.lblPubPath.UserDblClick();
    EXPECT_EQ(program.desktop.clipboard.text, "C:\\Mat\\a.jpg");
}

TEST_F(PanelsTest, CopyingThePathClearsTheClipboardFirst) {
    form.lblPubPath.Caption = "C:\\Mat\\a.jpg";
    form.lblPubPath.UserDblClick();
    EXPECT_EQ(program.desktop.clipboard.changes, (std::vector<std::string>{"Clear", "SetText"}));
}

TEST_F(PanelsTest, TheMainMaterialButtonTellsTheName) {
    form.textProfileName.Text = " Art_5 ";
    form.cmdMat2Corvane.MouseMove({});
    EXPECT_EQ(form.cmdMat2Corvane.ToolTipText(),
              "Send \"Art_5\" material name to main Corvane materials textbox for face material");
}

} // namespace
} // namespace mirelle::test
