// How the form looks before anything has run.
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace mirelle {
namespace {

using test::TestProgram;

struct DesignValues : testing::Test {
    TestProgram program;
    FrmPicX& form = program.form;
};

TEST_F(DesignValues, OnlyOpenBothAndStretchAreChecked) {
    for (Control* control : form.Controls()) {
        if (const auto* box = dynamic_cast<CheckBox*>(control)) {
            const bool checked = box->Name() == "Check4" || box->Name() == "chkStretch";
            EXPECT_EQ(box->Value() == kChecked, checked) << box->FullName();
        }
    }
}

TEST_F(DesignValues, TextsAreThoseOfTheStart) {
    EXPECT_EQ(form.TextCrop(0).Text(), "200");
    EXPECT_EQ(form.TextCrop(1).Text(), "200");
    EXPECT_EQ(form.Combo5.Text(), "*.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "Enter Material Name");
    EXPECT_EQ(form.TextLoops.Text(), "0");
    EXPECT_EQ(form.TextMatSize.Text(), "5");
    EXPECT_EQ(form.Label8(46).Caption(), "0");
    EXPECT_EQ(form.Caption(), "Mirelle");
    form.Text2x.ForEach([](TextBox& box) { EXPECT_EQ(box.Text(), "") << box.FullName(); });
}

TEST_F(DesignValues, ListsStartEmptyButTheDirections) {
    for (Control* control : form.Controls()) {
        const auto* list = dynamic_cast<ListControl*>(control);
        if (list && list->Name() != "cmbDirection" && list->Name() != "Dir5") {
            EXPECT_EQ(list->ListCount(), 0) << list->Name();
        }
    }
    EXPECT_EQ(form.cmbDirection.ListCount(), 2);
}

TEST_F(DesignValues, SomeControlsStartHidden) {
    const std::set<std::string> hidden = {
        "Frame8",          "Command10", "Command13",  "FramePics", "FrameRGBFX", "FrameGradFX",
        "FrShowFrames(0)", "Command7",  "ckFloorBar", "Shape1",    "Shape2",     "Shape3",
        "PicImage",        "picSmall2", "Picture7",   "Picture3",  "Pic1",       "Picture1b",
        "Picture4",        "Picture5",  "Picture6",   "PicSwap1",  "PicSwap2"};
    for (const Control* control : form.Controls()) {
        EXPECT_EQ(!control->Visible(), hidden.contains(control->FullName())) << control->FullName();
    }
    EXPECT_FALSE(form.Visible());
}

TEST_F(DesignValues, EveryControlStartsEnabled) {
    for (const Control* control : form.Controls())
        EXPECT_TRUE(control->Enabled()) << control->FullName();
}

TEST_F(DesignValues, CropRectanglesAreYellowAndWhite) {
    EXPECT_EQ(form.Shape1.BorderColor(), 0x00FFFF);
    EXPECT_EQ(form.Shape2.BorderColor(), 0xFFFFFF);
    EXPECT_EQ(form.Shape3.Width(), 150);
    EXPECT_EQ(form.Shape3.Height(), 195);
}

TEST_F(DesignValues, TheCounterIsWhiteOnDarkGrey) {
    EXPECT_EQ(form.TextLoops.BackColor(), 0x404040);
    EXPECT_EQ(form.TextLoops.ForeColor(), 0xFFFFFF);
}

TEST_F(DesignValues, SharedValuesAreEmptyAndClear) {
    EXPECT_TRUE(form.CropStartX.IsEmpty());
    EXPECT_TRUE(form.CropStartY.IsEmpty());
    EXPECT_TRUE(form.CurrentImagePath.IsEmpty());
    EXPECT_TRUE(form.IncrementCounter.IsEmpty());
    EXPECT_TRUE(form.SampledColorValue.IsEmpty());
    EXPECT_TRUE(form.PanelDropX.IsEmpty());
    EXPECT_TRUE(form.PanelDropY.IsEmpty());
    EXPECT_FALSE(form.CropDragging.IsTrue());
    EXPECT_FALSE(form.CropCancelled);
    EXPECT_FALSE(form.ClipboardIsSource);
    EXPECT_EQ(form.MaterialPrefix, "");
}

TEST_F(DesignValues, HoldersShowPixelsOrTwips) {
    const std::set<std::string> twips = {"Picture7", "Picture3", "Pic1", "Picture1", "picTemp"};
    for (Control* control : form.Controls()) {
        if (const auto* box = dynamic_cast<PictureBox*>(control)) {
            const bool inTwips = box->ScaleMode() == ScaleUnit::Twips;
            EXPECT_EQ(inTwips, twips.contains(box->Name())) << box->Name();
        }
    }
}

TEST_F(DesignValues, FramesStandAsTheyWereDesigned) {
    struct Place {
        const Control& control;
        float left, top, width, height;
    };
    const Place kPlaces[] = {
        {form.Frame4, 338, -1, 270, 441},        {form.Frame5, -36, 440, 780, 62},
        {form.Frame6, 608, -2, 92, 442},         {form.Frame7, 346, 277, 256, 164},
        {form.Frame8, 338, 1, 270, 276},         {form.FramePics, 0, 0, 3945, 3650},
        {form.FrameRGBFX, 0, 0, 9000, 1020},     {form.FrameGradFX, 0, 0, 9000, 1020},
        {form.FrameMatCanvas, 0, 0, 3945, 3090}, {form.FrameMatCanvas2, 0, 0, 545, 222},
        {form.FrShowFrames(0), 24, 24, 56, 44},  {form.PicScroll, 0, 0, 260, 222},
        {form.Shape1, 0, 0, 200, 200},           {form.Shape2, 0, 0, 200, 200},
        {form.Shape3, 0, 0, 150, 195},           {form.List2, 75, 0, 3835, 2400},
        {form.File5, 0, 0, 3000, 1395},
    };
    for (const Place& place : kPlaces) {
        EXPECT_EQ(place.control.Left, place.left) << place.control.Name();
        EXPECT_EQ(place.control.Top, place.top) << place.control.Name();
        EXPECT_EQ(place.control.Width, place.width) << place.control.Name();
        EXPECT_EQ(place.control.Height, place.height) << place.control.Name();
    }
}

TEST_F(DesignValues, NamesAreEachAControlsOwn) {
    std::set<std::string> names;
    for (const Control* control : form.Controls())
        EXPECT_TRUE(names.insert(control->FullName()).second) << control->FullName();
}

} // namespace
} // namespace mirelle
