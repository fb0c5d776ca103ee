// The form: its window, its scale, its surface.
#include "forms/Form.h"

#include "forms/Controls.h"
#include "tests/forms/TestForm.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/Patterns.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

using test::ChartPicture;
using test::ErrorOf;

struct FormTest : testing::Test, test::TestForm {
    int resizes = 0;
    void SetUp() override {
        form.Resize.Connect([this] { ++resizes; });
    }
};

TEST_F(FormTest, TellsItsWindowInTwipsAndItsClientAreaInPixels) {
    EXPECT_EQ(form.Width(), 3000);
    EXPECT_EQ(form.Height(), 1500);
    EXPECT_EQ(form.ScaleWidth(), 200);
    EXPECT_EQ(form.ScaleHeight(), 100);
    EXPECT_EQ(form.ScaleMode(), kScalePixels);
}

TEST_F(FormTest, FindsControlsByNameAndIndex) {
    const Label label(form, "Label1");
    const Label element(form, "Label2", 1);
    EXPECT_EQ(form.Find("Label1"), &label);
    EXPECT_EQ(form.Find("Label2", 1), &element);
    EXPECT_EQ(form.Find("Label2"), nullptr);
    EXPECT_EQ(form.Find("Label1", 0), nullptr);
    EXPECT_EQ(form.Find("label1"), nullptr);
}

TEST_F(FormTest, ResizesWhenTheUserChangesAnything) {
    form.UserWindow(kWindowNormal, {200, 100});
    EXPECT_EQ(resizes, 0);
    form.UserWindow(kWindowNormal, {300, 100});
    EXPECT_EQ(resizes, 1);
    EXPECT_EQ(form.Width(), 4500);
    form.UserWindow(kWindowMaximized, {1920, 1080});
    form.UserWindow(kWindowMaximized, {1920, 1000});
    EXPECT_EQ(resizes, 3);
    EXPECT_EQ(form.WindowState(), kWindowMaximized);
    form.UserWindow(kWindowMinimized, {0, 0});
    EXPECT_EQ(resizes, 4);
    EXPECT_EQ(form.ClientHeight(), 1000) << "a minimised window keeps its size";
}

TEST_F(FormTest, TakesItsSizeFromTheStateThatCodeGivesIt) {
    form.UserWindow(kWindowNormal, {300, 150});
    form.WindowState = kWindowMaximized;
    EXPECT_EQ(form.ClientWidth(), screen.MaximisedClientSize().width);
    form.WindowState = kWindowMinimized;
    EXPECT_EQ(form.ClientWidth(), screen.MaximisedClientSize().width);
    form.WindowState = kWindowNormal;
    EXPECT_EQ(form.ClientWidth(), 300);
    EXPECT_EQ(resizes, 4);
    EXPECT_EQ(ErrorOf([&] { form.WindowState = 3; }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(ErrorOf([&] { form.WindowState = -1; }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(resizes, 4);
}

TEST_F(FormTest, KnowsTheSizeOfEachState) {
    form.UserWindow(kWindowNormal, {300, 150});
    form.UserWindow(kWindowMaximized, {800, 600});
    EXPECT_EQ(form.ClientSizeIn(kWindowNormal).width, 300);
    EXPECT_EQ(form.ClientSizeIn(kWindowMaximized).width, 1920);
    EXPECT_EQ(form.ClientSizeIn(kWindowMinimized).width, 800);
}

TEST_F(FormTest, HasAScaleOfItsOwnAfterScaleWidthWasSet) {
    form.SetScaleWidth(529);
    EXPECT_EQ(form.ScaleMode(), kScaleUser);
    EXPECT_EQ(form.ScaleWidth(), 529);
    EXPECT_EQ(form.ScaleHeight(), 100);
    EXPECT_EQ(form.ScaleX(100), 264.5F);
    EXPECT_EQ(form.ScaleY(50), 50);
    EXPECT_EQ(form.PixelsX(264.5F), 100);
    EXPECT_EQ(form.PixelsY(50), 50);
}

TEST_F(FormTest, KeepsItsScaleWhenTheWindowChanges) {
    form.SetScaleWidth(529);
    form.UserWindow(kWindowNormal, {1058, 200});
    EXPECT_EQ(form.ScaleWidth(), 529);
    EXPECT_EQ(form.ScaleHeight(), 100);
    EXPECT_EQ(form.ScaleX(100), 50);
    EXPECT_EQ(form.ScaleY(100), 50);
    form.SetScaleModePixels();
    EXPECT_EQ(form.ScaleWidth(), 1058);
    EXPECT_EQ(form.ScaleX(100), 100);
}

TEST_F(FormTest, RefusesAScaleWithoutWidth) {
    for (const float width : {0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN()})
        EXPECT_EQ(ErrorOf([&] { form.SetScaleWidth(width); }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(form.ScaleMode(), kScalePixels);
}

TEST_F(FormTest, ScalesNothingInAWindowWithoutAnArea) {
    form.SetScaleWidth(529);
    form.UserWindow(kWindowNormal, {0, 0});
    EXPECT_EQ(form.ScaleX(3), 3);
    EXPECT_EQ(form.ScaleY(4), 4);
    EXPECT_TRUE(form.Image().Pixels().IsEmpty());
}

TEST_F(FormTest, ShowsThePictureCutToItsClientArea) {
    form.BackColor = 0x404040;
    form.Picture = ChartPicture(300, 50, 7);
    EXPECT_EQ(form.ClientWidth(), 200) << "a form does not take a picture's size";
    const Picture image = form.Image();
    EXPECT_EQ(image.Width(), 200);
    EXPECT_EQ(image.Height(), 100);
    EXPECT_EQ(image.Pixels().At(199, 49), (Pixel{199, 49, 7, 0}));
    EXPECT_EQ(ColorOf(image.Pixels().At(199, 50)), 0x404040);
    EXPECT_EQ(form.Point(199, 49), ColorOf(Pixel{199, 49, 7, 0}));
    EXPECT_EQ(form.Point(200, 49), kOffPicture);
}

TEST_F(FormTest, ReadsAPointInItsScale) {
    form.Picture = ChartPicture(200, 100, 7);
    form.SetScaleWidth(400);
    EXPECT_EQ(form.Point(100, 20), ColorOf(Pixel{50, 20, 7, 0}));
}

TEST_F(FormTest, PaintsOverThePictureUntilItIsCleared) {
    form.Picture = ChartPicture(200, 100, 7);
    form.Paint().At(3, 3) = Pixel{1, 2, 3, 0};
    EXPECT_EQ(form.Point(3, 3), ColorOf(Pixel{1, 2, 3, 0}));
    EXPECT_EQ(form.Picture().Pixels().At(3, 3), (Pixel{3, 3, 7, 0}));
    form.Cls();
    EXPECT_EQ(form.Point(3, 3), ColorOf(Pixel{3, 3, 7, 0}));
}

TEST_F(FormTest, ANewBackgroundTakesAwayWhatWasPainted) {
    form.Paint().At(3, 3) = Pixel{1, 2, 3, 0};
    form.BackColor = 0x010203;
    EXPECT_EQ(form.Point(3, 3), 0x010203);
}

TEST_F(FormTest, AsksBeforeItCloses) {
    int asked = 0;
    form.QueryUnload.Connect([&] { ++asked; });
    form.UserClose();
    EXPECT_EQ(asked, 1);
}

TEST_F(FormTest, TellsItsWatchersOfWhatIsToBeSeen) {
    int told = 0;
    form.Watch([&] { ++told; });
    form.Caption = "new";
    form.Picture = ChartPicture(2, 2);
    form.Cls();
    form.Refresh();
    EXPECT_EQ(told, 4);
}

} // namespace
} // namespace mirelle
