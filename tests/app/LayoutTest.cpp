// The places of the panels in the normal and the large window.
#include "app/Layout.h"

#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

#include <vector>

namespace mirelle {
namespace {

using test::TestProgram;

struct Place {
    const char* control;
    int index;
    Property<float> Control::*measure;
    float value;
};

constexpr auto kLeft = &Control::Left;
constexpr auto kTop = &Control::Top;
constexpr auto kWidth = &Control::Width;
constexpr auto kHeight = &Control::Height;

const char* NameOf(Property<float> Control::*measure) {
    return measure == kLeft ? "Left" : measure == kTop ? "Top" : measure == kWidth ? "Width" : "Height";
}

void ExpectPlaces(FrmPicX& form, std::initializer_list<Place> places) {
    for (const Place& place : places) {
        Control* control = form.Find(place.control, place.index);
        ASSERT_NE(control, nullptr) << place.control;
        EXPECT_EQ((control->*place.measure)(), place.value)
            << control->FullName() << '.' << NameOf(place.measure);
    }
}

// Puts numbers of no layout everywhere, so that a place that a layout leaves out shows.
void Disturb(FrmPicX& form) {
    for (Control* control : form.Controls()) {
        control->Left = 1.5F;
        control->Top = 2.5F;
        control->Width = 3;
        control->Height = 4;
    }
}

// All that differs from the disturbed numbers, in both layouts alike.
int CountOfPlaced(const FrmPicX& form) {
    int count = 0;
    for (const Control* control : form.Controls()) {
        count += control->Left != 1.5F;
        count += control->Top != 2.5F;
        count += control->Width != 3;
        count += control->Height != 4;
    }
    return count;
}

// A window of 1920 x 1080 pixels (28,800 x 16,200 twips) at 300, 150 twips.
TEST(LargeLayout, FollowsTheWindow) {
    TestProgram program;
    FrmPicX& form = program.form;
    Disturb(form);
    form.Frame4.Width = 270;
    form.Frame5.Height = 62;
    form.Frame6.Width = 92;
    form.Left = 300;
    form.Top = 150;
    form.UserWindow(kWindowMaximized, {1920, 1080});
    const auto fourthLeft = static_cast<float>((300.0 + 28800 - 270 * 15) * 0.06666666666667);
    const auto sixthLeft = static_cast<float>((300.0 + 28800 - 92 * 15) * 0.06666666666667);
    const auto fifthTop = static_cast<float>((150.0 + 16200 - 62 * 15) * 0.06666666666667 - 10);
    EXPECT_EQ(fourthLeft, 1670);
    EXPECT_EQ(sixthLeft, 1848);
    EXPECT_EQ(fifthTop, 1018);
    ExpectPlaces(form, {
                           {"Frame4", -1, kTop, 193},         {"Frame4", -1, kLeft, fourthLeft},
                           {"Frame4", -1, kHeight, 16200},    {"Frame5", -1, kWidth, 28800},
                           {"Frame5", -1, kTop, fifthTop},    {"Frame6", -1, kTop, 192},
                           {"Frame6", -1, kLeft, sixthLeft},  {"Frame6", -1, kHeight, 16200},
                           {"Frame7", -1, kTop, 300},         {"Frame7", -1, kLeft, 1671},
                           {"Frame7", -1, kHeight, 16200},    {"Frame8", -1, kLeft, 1670},
                           {"Frame8", -1, kTop, 195},         {"Frame8", -1, kHeight, 300},
                           {"Frame8", -1, kWidth, 262},       {"List2", -1, kWidth, 3835},
                           {"List2", -1, kLeft, 50},          {"Drive5", -1, kTop, 4600},
                           {"Combo5", -1, kTop, 4600},        {"Label8", 46, kTop, 4600},
                           {"cmdFullScreen", -1, kTop, 4600}, {"cmdRefreshFile", -1, kTop, 4600},
                           {"File5", -1, kHeight, 2750},      {"FrameMatCanvas", -1, kHeight, 3490},
                           {"PicScroll", -1, kHeight, 3490},  {"HSImage", -1, kTop, 222},
                           {"HSImage", -1, kWidth, 252},      {"VSImage", -1, kHeight, 222},
                           {"VSImage", -1, kLeft, 252},       {"FrameMatCanvas2", -1, kWidth, 425},
                       });
    EXPECT_EQ(CountOfPlaced(form), 30 + 3); // and the three sizes that the test gave
}

TEST(NormalLayout, HasFixedNumbers) {
    TestProgram program;
    FrmPicX& form = program.form;
    Disturb(form);
    form.UserWindow(kWindowNormal, {1000, 650});
    ExpectPlaces(form, {
                           {"cmdFullScreen", -1, kTop, 3435},
                           {"Frame5", -1, kTop, 440},
                           {"Frame5", -1, kLeft, -36},
                           {"FrameMatCanvas", -1, kHeight, 3090},
                           {"VSImage", -1, kLeft, 258},
                           {"VSImage", -1, kHeight, 197},
                           {"HSImage", -1, kWidth, 259},
                           {"HSImage", -1, kTop, 198},
                           {"FrameMatCanvas2", -1, kWidth, 545},
                           {"Frame4", -1, kTop, -1},
                           {"Frame4", -1, kLeft, 338},
                           {"Frame6", -1, kTop, -2},
                           {"Frame6", -1, kLeft, 608},
                           {"Frame7", -1, kTop, 277},
                           {"Frame7", -1, kLeft, 346},
                           {"Frame8", -1, kLeft, 338},
                           {"Frame8", -1, kTop, 1},
                           {"Frame8", -1, kHeight, 276},
                           {"List2", -1, kLeft, 75},
                           {"Drive5", -1, kTop, 3420},
                           {"Combo5", -1, kTop, 3420},
                           {"Label8", 46, kTop, 3420},
                           {"cmdRefreshFile", -1, kTop, 3420},
                           {"File5", -1, kHeight, 1395},
                       });
    EXPECT_EQ(CountOfPlaced(form), 24);
}

constexpr std::array kFileArea = {"Dir5", "Drive5", "Combo5", "File5"};

TEST(NormalLayout, IsWhereTheDesignHasThePanels) {
    TestProgram program;
    FrmPicX& form = program.form;
    Control* const panels[] = {&form.Frame4,         &form.Frame5,          &form.Frame6,
                               &form.Frame7,         &form.Frame8,          &form.List2,
                               &form.FrameMatCanvas, &form.FrameMatCanvas2, &form.File5};
    const auto placesOf = [&] {
        std::vector<float> places;
        for (const Control* panel : panels)
            for (const auto measure : {kLeft, kTop, kWidth, kHeight})
                places.push_back((panel->*measure)());
        return places;
    };
    const std::vector<float> designed = placesOf();
    LayOutNormal(form);
    EXPECT_EQ(placesOf(), designed);
}

TEST(LargeLayout, GivesTheFileAreaToAVisiblePalette) {
    TestProgram program;
    FrmPicX& form = program.form;
    form.FramePics.Move(0, 0, 10, 10);
    form.FramePics.Visible = true;
    form.UserWindow(kWindowMaximized, {1920, 1080});
    EXPECT_EQ(form.FramePics.Height(), 3650);
    EXPECT_EQ(form.FramePics.Width(), 3945);
    for (const char* name : kFileArea)
        EXPECT_FALSE(form.Find(name)->Visible()) << name;
    EXPECT_FALSE(form.Label8(46).Visible());
    form.UserWindow(kWindowNormal, {1024, 700}); // does not show them again
    for (const char* name : kFileArea)
        EXPECT_FALSE(form.Find(name)->Visible()) << name;
}

TEST(LargeLayout, LeavesTheFileAreaWhereThePaletteIsHidden) {
    TestProgram program;
    FrmPicX& form = program.form;
    form.FramePics.Move(0, 0, 10, 10);
    form.UserWindow(kWindowMaximized, {1920, 1080});
    EXPECT_EQ(form.FramePics.Height(), 10);
    for (const char* name : kFileArea)
        EXPECT_TRUE(form.Find(name)->Visible()) << name;
    EXPECT_TRUE(form.Label8(46).Visible());
}

TEST(Resize, OfAMinimisedWindowChangesNothing) {
    TestProgram program;
    FrmPicX& form = program.form;
    form.ckAutoPaste.Value = kChecked;
    Disturb(form);
    int pastes = 0;
    form.Command5.Click.Connect([&] { ++pastes; });
    form.UserWindow(kWindowMinimized, {0, 0});
    EXPECT_EQ(CountOfPlaced(form), 0);
    EXPECT_EQ(pastes, 0);
}

TEST(Resize, TouchesNoPictureNoFlagAndNoValue) {
    TestProgram program;
    program.Start();
    FrmPicX& form = program.form;
    form.PicImage.Picture = test::ChartPicture(30, 20, 1);
    form.picSmall.Picture = test::ChartPicture(7, 5, 2);
    const Picture canvas = form.Picture;
    form.CropDragging = true;
    form.ClipboardIsSource = true;
    form.UserWindow(kWindowMaximized, {1920, 1080});
    form.UserWindow(kWindowNormal, {1024, 700});
    EXPECT_EQ(form.PicImage.PixelWidth(), 30);
    EXPECT_EQ(form.picSmall.PixelHeight(), 5);
    EXPECT_TRUE(form.Picture().SharesPixelsWith(canvas));
    EXPECT_TRUE(form.CropDragging.IsTrue());
    EXPECT_TRUE(form.ClipboardIsSource);
    EXPECT_EQ(program.desktop.clipboard.reads, 0);
}

TEST(Resize, PastesEachTimeWhileMaximisedWithAutoPasteChecked) {
    TestProgram program;
    program.Start();
    FrmPicX& form = program.form;
    form.ckAutoPaste.Value = kChecked;
    program.desktop.clipboard.bitmap = test::ChartPicture(40, 30, 3);
    form.UserWindow(kWindowMaximized, {1920, 1080});
    EXPECT_EQ(form.PicImage.PixelWidth(), 40);
    program.desktop.clipboard.bitmap = test::ChartPicture(50, 30, 4);
    form.UserWindow(kWindowMaximized, {1900, 1080});
    EXPECT_EQ(form.PicImage.PixelWidth(), 50);
    program.desktop.clipboard.bitmap = test::ChartPicture(60, 30, 5);
    form.UserWindow(kWindowNormal, {1024, 700});
    EXPECT_EQ(form.PicImage.PixelWidth(), 50);
}

TEST(Resize, DoesNotPasteWithAutoPasteClear) {
    TestProgram program;
    program.Start();
    program.desktop.clipboard.bitmap = test::ChartPicture(40, 30, 3);
    program.form.UserWindow(kWindowMaximized, {1920, 1080});
    EXPECT_EQ(program.desktop.clipboard.reads, 0);
}

TEST(Resize, GivesNoMessageWhereThereIsNothingToPaste) {
    TestProgram program;
    program.Start();
    program.form.ckAutoPaste.Value = kChecked;
    program.form.UserWindow(kWindowMaximized, {1920, 1080});
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

TEST(Resize, PastesAheadOfLayingThePanelsOut) {
    TestProgram program;
    FrmPicX& form = program.form;
    form.ckAutoPaste.Value = kChecked;
    form.FramePics.Move(0, 0, 10, 10);
    form.Command5.Click.Connect([&] { form.FramePics.Visible = true; });
    form.UserWindow(kWindowMaximized, {1920, 1080});
    EXPECT_EQ(form.FramePics.Height(), 3650);
}

TEST(Resize, FollowsAStateSetByCodeToo) {
    TestProgram program;
    FrmPicX& form = program.form;
    form.WindowState = kWindowMaximized;
    EXPECT_EQ(form.Frame5.Width(), 1920 * 15);
    form.WindowState = kWindowNormal;
    EXPECT_EQ(form.Frame4.Left(), 338);
}

} // namespace
} // namespace mirelle
