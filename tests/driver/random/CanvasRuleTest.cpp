// Of which events it is held that they end with the canvas on the form, and that it is seen where they don't.
#include "tests/driver/random/CanvasRule.h"

#include "fx/SizeFXBits.h"
#include "tests/driver/random/Invariants.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::driver {
namespace {

using test::ChartPicture;

struct CanvasRuleTest : testing::Test {
    CanvasRuleTest() {
        const std::string folder = "C:\\Mirelle\\Support\\Materials";
        program.files.AddFile(folder + "\\Art_1.jpg");
        program.loader.pictures[folder + "\\Art_1.jpg"] = ChartPicture(12, 8, 4);
        program.Start();
        form.Dir5.SetPath(folder);
        for (PictureBox* box : {&form.PicImage, &form.Picture1, &form.Pic1, &form.picSmall})
            box->Picture = ChartPicture(20, 10, 3);
        SizeFXBits(form);
    }
    bool Holds(const std::string& event) { return HasToShowCanvas(form, program.desktop, event); }

    test::TestProgram program;
    FrmPicX& form = program.form;
    test::ScriptedDesktop& desktop = program.desktop;
};

TEST_F(CanvasRuleTest, HoldsOfButtonsThatAlwaysEndSo) {
    for (const char* event :
         {"click cmdSetMain", "click cmdSetMain2", "click cmdBlur1", "click cmdDarken", "click cmdEmboss",
          "click Label2(0)", "click cmdCont33", "click cmdGradV(0)", "click cmdSwapPic(2)",
          "click cmdGradReset", "click chkStretch", "mouse down picSmall 2 3 3", "click cmdPointalism"})
        EXPECT_TRUE(Holds(event)) << event;
    form.cmdBlur1.Enabled = false;
    EXPECT_FALSE(Holds("click cmdBlur1"));
}

TEST_F(CanvasRuleTest, HoldsOfNoOtherEvent) {
    for (const char* event :
         {"click Form", "click Command3", "click cmdRGBUndo", "mouse down picSmall 1 3 3", "window normal",
          "mouse up Form 1 3 3", "set TextCrop(0).Text 5", "clipboard clear", "click noSuchControl"})
        EXPECT_FALSE(Holds(event)) << event;
}

TEST_F(CanvasRuleTest, HoldsOfPastesOfAPicture) {
    EXPECT_FALSE(Holds("click Command5"));
    desktop.clipboard.bitmap = ChartPicture(5, 5, 1);
    EXPECT_TRUE(Holds("click Command5"));
}

TEST_F(CanvasRuleTest, HoldsOfPointEffectsOverSoundArrays) {
    for (const char* event : {"click cmdNegativeX", "click cmdRGB2RBG", "set HSColorShift(1).Value 5"})
        EXPECT_TRUE(Holds(event)) << event;
    EXPECT_FALSE(Holds("set HSColorShift(1).Value 0")); // it is there already
    form.FXDest.SizeFor(19, 10);                        // too narrow for the source
    for (const char* event : {"click cmdNegativeX", "click cmdRGB2RBG", "set HSColorShift(1).Value 5"})
        EXPECT_FALSE(Holds(event)) << event;
}

TEST_F(CanvasRuleTest, HoldsOfOpeningForBothBoxes) {
    EXPECT_FALSE(Holds("click Command23")); // nothing will be chosen
    desktop.dialogs.openAnswers = {"C:\\none.jpg"};
    EXPECT_TRUE(Holds("click Command23"));
    form.Check4.Value = kUnchecked;
    EXPECT_FALSE(Holds("click Command23"));
}

TEST_F(CanvasRuleTest, HoldsOfFilesThatAreShown) {
    EXPECT_TRUE(Holds("select File5 0"));
    EXPECT_TRUE(Holds("click File5"));
    form.File5.SetListIndex(kNoRow);
    EXPECT_FALSE(Holds("click File5"));
    EXPECT_TRUE(Holds("select File5 0"));
    form.ckGradPic(0).Value = kChecked;
    EXPECT_FALSE(Holds("select File5 0"));
    form.ckGradPic(0).Value = kUnchecked;
    form.ckNoOpen.Value = kChecked;
    EXPECT_FALSE(Holds("select File5 0"));
}

TEST_F(CanvasRuleTest, HoldsOfRevertWhereItReads) {
    form.FXDest.SizeFor(19, 10);
    EXPECT_TRUE(Holds("click cmdCopy"));
    EXPECT_TRUE(Holds("click cmdColorDialog(2)"));
    EXPECT_FALSE(Holds("click cmdColorDialog(1)"));
    form.ClipboardIsSource = true;
    EXPECT_FALSE(Holds("click cmdCopy"));
    desktop.clipboard.bitmap = ChartPicture(5, 5, 1);
    EXPECT_TRUE(Holds("click cmdCopy"));
}

TEST_F(CanvasRuleTest, HoldsOfContrastThatIsTold) {
    EXPECT_FALSE(Holds("click cmdCont"));
    desktop.dialogs.inputAnswers = {"abc"};
    EXPECT_TRUE(Holds("click cmdCont"));
    desktop.dialogs.inputAnswers = {std::nullopt};
    EXPECT_FALSE(Holds("click cmdCont"));
}

TEST_F(CanvasRuleTest, LeavesOutSmudgersWithSomethingInBetween) {
    desktop.time.duringPass.emplace(2, [] {});
    EXPECT_FALSE(Holds("click cmdPointalism"));
    EXPECT_FALSE(Holds("click cmdPointalismVert"));
}

TEST_F(CanvasRuleTest, LeavesOutWhatOnlyAVastMemoryHolds) {
    form.picSmall.Width = 40000;
    form.picSmall.Height = 30000;
    EXPECT_FALSE(Holds("click Label2(0)"));
    EXPECT_FALSE(Holds("mouse down picSmall 2 3 3"));
}

TEST_F(CanvasRuleTest, IsBrokenByAFormThatShowsAnotherPicture) {
    form.cmdSetMain.UserClick();
    EXPECT_EQ(BrokenInvariant(form, true), std::nullopt);
    form.Picture = ChartPicture(20, 10, 4);
    EXPECT_EQ(BrokenInvariant(form, true), "the form does not show the canvas");
    EXPECT_EQ(BrokenInvariant(form, false), std::nullopt);
}

} // namespace
} // namespace mirelle::driver
