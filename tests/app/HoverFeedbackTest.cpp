// What the pointer brings about on its way over the window.
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

using test::TestProgram;

constexpr MouseArgs kNoButton{0, 0, 3, 4};

struct Hover : testing::Test {
    TestProgram program;
    FrmPicX& form = program.form;

    void Over(const std::string& name, int index = -1) { form.Find(name, index)->MouseMove(kNoButton); }
};

TEST_F(Hover, PanelsPutTheTitleBack) {
    const std::pair<const char*, int> controls[] = {{"Frame1", -1}, {"Frame3", -1}, {"Frame4", -1},
                                                    {"Frame5", -1}, {"Label2", 0},  {"Label2", 1}};
    for (const auto& [name, index] : controls) {
        form.Caption = "Mouse: X: 1  Y: 2";
        Over(name, index);
        EXPECT_EQ(form.Caption(), "Mirelle") << name << index;
    }
}

TEST_F(Hover, OtherPanelsLeaveTheTitle) {
    for (const char* name :
         {"Frame2", "Frame6", "Frame7", "Frame8", "FramePics", "FrameRGBFX", "FrameGradFX"}) {
        form.Caption = "Mouse";
        Over(name);
        EXPECT_EQ(form.Caption(), "Mouse") << name;
    }
}

TEST_F(Hover, TheFrameOfTheEffectsGoesDark) {
    for (const char* name : {"Frame3", "Frame5", "FrameRGBFX", "ckUseFormCanvas"}) {
        form.FrameRGBFX2.BackColor = 0xFF8080;
        Over(name);
        EXPECT_EQ(form.FrameRGBFX2.BackColor(), 0) << name;
    }
    form.FrameRGBFX2.BackColor = 0xFF8080;
    form.MouseMove(kNoButton);
    EXPECT_EQ(form.FrameRGBFX2.BackColor(), 0);
}

TEST_F(Hover, TheFrameOfTheEffectsLightsUpOverWhatRetainsThem) {
    for (const char* name : {"ckApplyRGB", "cmdRGBUndo", "cmdSetMain"}) {
        form.FrameRGBFX2.BackColor = 0;
        Over(name);
        EXPECT_EQ(form.FrameRGBFX2.BackColor(), 0xFF8080) << name;
    }
}

TEST_F(Hover, TheFrameOfTheEffectsStaysOverOtherPanels) {
    for (const char* name : {"Frame1", "Frame4", "Frame6"}) {
        form.FrameRGBFX2.BackColor = 0xFF8080;
        Over(name);
        EXPECT_EQ(form.FrameRGBFX2.BackColor(), 0xFF8080) << name;
    }
}

TEST_F(Hover, FastSaveTellsTheProgramsFolder) {
    Over("Command3");
    EXPECT_EQ(form.Command3.ToolTipText(), "C:\\Mirelle");
}

TEST_F(Hover, ThePointerIsTheUsualOneOverTheFormAndItsShowButton) {
    form.MousePointer = kPointerSizeAll;
    Over("cmdShowFrames");
    EXPECT_EQ(form.MousePointer(), kPointerDefault);
    form.MousePointer = kPointerSizeAll;
    form.MouseMove(kNoButton);
    EXPECT_EQ(form.MousePointer(), kPointerDefault);
    form.MousePointer = kPointerSizeAll;
    Over("Frame3");
    EXPECT_EQ(form.MousePointer(), kPointerSizeAll);
}

} // namespace
} // namespace mirelle
