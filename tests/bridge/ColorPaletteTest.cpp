#include "tests/bridge/SentTexts.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class ColorPaletteTest : public ::testing::Test {
protected:
    ColorPaletteTest() { form.Picture2.Picture = chart; }
    void Press(float x, float y) { form.Picture2.MouseDown({1, 0, x, y}); }
    std::vector<std::string> Sent() { return TakeSent(program.desktop.console); }

    TestProgram program;
    FrmPicX& form = program.form;
    Picture chart = ChartPicture(250, 210, 7);
};

TEST_F(ColorPaletteTest, ComesWithAChartLargeEnoughToPickFrom) {
    TestProgram fresh;
    EXPECT_GE(fresh.form.Picture2.Picture().Width(), 245);
    EXPECT_GE(fresh.form.Picture2.Picture().Height(), 200);
    const Bitmap& pixels = fresh.form.Picture2.Picture().Pixels();
    const Pixel grey = pixels.At(120, pixels.Height() - 1);
    EXPECT_EQ(grey.red, grey.green);
    EXPECT_EQ(grey.red, grey.blue);
    const Pixel red = pixels.At(0, pixels.Height() / 2 - 8);
    EXPECT_GT(red.red, 200);
    EXPECT_LT(red.blue, 60);
}

TEST_F(ColorPaletteTest, EachShowingOrHidingSizesThePanel) {
    for (int click = 0; click < 2; ++click) {
        form.FramePics.Height = 1;
        form.FramePics.Width = 1;
        form.cmdColorPick.UserClick();
        EXPECT_EQ(form.FramePics.Height, 3650);
        EXPECT_EQ(form.FramePics.Width, 3945);
    }
}

TEST_F(ColorPaletteTest, TenSamplesFillTheSlotsInOrderAndTheEleventhNone) {
    for (int sample = 0; sample < 11; ++sample) {
        Press(static_cast<float>(sample), 50);
        EXPECT_EQ(form.Frame2.BackColor, RGB(7, 50, sample));
    }
    for (int slot = 0; slot < 10; ++slot) {
        EXPECT_EQ(form.Text2x(slot).Text(), "7,50," + std::to_string(slot));
        EXPECT_EQ(form.cmdColor(slot).BackColor, RGB(7, 50, slot));
    }
    EXPECT_EQ(form.SampledColorValue, Variant(Long(RGB(7, 50, 10))));
}

TEST_F(ColorPaletteTest, WithAllSlotsFilledASampleStillShowsItsColourAndMakesTheSwatch) {
    for (int sample = 0; sample < 10; ++sample)
        Press(static_cast<float>(sample), 50);
    form.picSmall.Picture = ChartPicture(30, 20);
    form.ckSample.Value = kChecked;
    Press(200, 150);
    EXPECT_EQ(form.Frame2.BackColor, RGB(7, 150, 200));
    EXPECT_EQ(form.SampledColorValue, Variant(Long(RGB(7, 150, 200))));
    EXPECT_TRUE(form.picSmall.Picture().IsEmpty());
    EXPECT_EQ(form.picSmall.Image().Pixels(), Bitmap(30, 20, Pixel{200, 150, 7, 0}));
    for (int slot = 0; slot < 10; ++slot) {
        EXPECT_EQ(form.Text2x(slot).Text(), "7,50," + std::to_string(slot));
        EXPECT_EQ(form.cmdColor(slot).BackColor, RGB(7, 50, slot));
    }
}

TEST_F(ColorPaletteTest, ASlotClearedByHandIsTheNextOneFilled) {
    for (int sample = 0; sample < 6; ++sample)
        Press(static_cast<float>(sample), 50);
    form.Text2x(3).Text = "";
    Press(100, 60);
    EXPECT_EQ(form.Text2x(3).Text(), "7,60,100");
    EXPECT_TRUE(form.Text2x(6).Text().empty());
}

TEST_F(ColorPaletteTest, WithSampleToImageTheMaterialBecomesASwatch) {
    form.picSmall.Picture = ChartPicture(30, 20);
    form.ckSample.Value = kChecked;
    Press(9, 8);
    EXPECT_TRUE(form.picSmall.Picture().IsEmpty());
    EXPECT_EQ(form.picSmall.Image().Pixels(), Bitmap(30, 20, Pixel{9, 8, 7, 0}));
}

TEST_F(ColorPaletteTest, WithoutSampleToImageTheMaterialStays) {
    const Picture material = ChartPicture(30, 20);
    form.picSmall.Picture = material;
    form.picSmall.BackColor = 0x123456;
    Press(9, 8);
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(material));
    EXPECT_EQ(form.picSmall.BackColor, 0x123456);
}

TEST_F(ColorPaletteTest, APressOffTheChartTakesMinusOneAsAColour) {
    Press(250, 8);
    EXPECT_EQ(form.Frame2.BackColor, -1);
    EXPECT_EQ(form.SampledColorValue, Variant(Long(-1)));
    EXPECT_FALSE(form.Text2x(0).Text().empty());
}

TEST_F(ColorPaletteTest, ASlotOfNoKeysIsPassedOver) {
    program.desktop.console.refusedKeys = "(";
    form.Text2x(2).Text = "(";
    form.cmdColor(2).UserClick();
    form.Command1x.UserClick();
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
    for (const std::string& line : Sent())
        EXPECT_FALSE(line.find('(') != std::string::npos && line.starts_with("SendKeys")) << line;
}

TEST_F(ColorPaletteTest, AMoveShowsTheColourUnderThePointer) {
    form.Picture2.MouseMove({0, 0, 33, 44});
    EXPECT_EQ(form.Frame2.BackColor, RGB(7, 44, 33));
    EXPECT_TRUE(form.Text2x(0).Text().empty());
    form.Picture2.MouseMove({0, 0, 250, 44});
    EXPECT_EQ(form.Frame2.BackColor, -1);
}

TEST_F(ColorPaletteTest, AClickShowsTheCornerAndSizesTheMaterial) {
    form.textProfileName.Text = "Art_3";
    for (const float width : {299.0F, 301.0F}) {
        form.picSmall.Width = width;
        form.picSmall.UserClick();
        form.Picture2.UserClick();
        EXPECT_EQ(form.picSmall.Width, 245);
        EXPECT_EQ(form.picSmall.Height, 200);
    }
    EXPECT_EQ(form.Frame2.BackColor, RGB(7, 0, 0));
    EXPECT_EQ(form.textProfileName.Text(), "Art_3");
}

TEST_F(ColorPaletteTest, AWidthOfExactly300AndALockedMaterialStay) {
    form.picSmall.Width = 300;
    form.picSmall.Height = 11;
    form.Picture2.UserClick();
    EXPECT_EQ(form.picSmall.Width, 300);
    EXPECT_EQ(form.picSmall.Height, 11);
    form.picSmall.Width = 100;
    form.ckLock.Value = kChecked;
    form.Picture2.UserClick();
    EXPECT_EQ(form.picSmall.Width, 100);
}

TEST_F(ColorPaletteTest, AUniqueSuffixStepsCounterAndNameAtEachClick) {
    form.Check1.Value = kChecked;
    form.ckIncrement.Value = kChecked;
    form.IncrementCounter = Integer(4);
    form.textProfileName.Text = "My_brick_3";
    form.Picture2.UserClick();
    EXPECT_EQ(form.textProfileName.Text(), "My_5");
    EXPECT_EQ(form.TextLoops.Text(), "5");
    form.Picture2.UserClick();
    EXPECT_EQ(form.textProfileName.Text(), "My_6");
    form.ckIncrement.Value = kUnchecked;
    program.desktop.time.seconds = 100.4;
    form.Picture2.UserClick();
    EXPECT_EQ(form.textProfileName.Text(), "My_100");
}

TEST_F(ColorPaletteTest, ADoubleClickPaintsTheCanvasBackground) {
    Press(9, 8);
    form.PicImage.Picture = Picture();
    form.Picture2.UserDblClick();
    EXPECT_EQ(form.BackColor, RGB(7, 8, 9));
    EXPECT_EQ(form.Frame2.BackColor, RGB(7, 0, 0));
    EXPECT_TRUE(form.PicImage.Picture().IsEmpty());
    form.ckUseFormCanvas.Value = kChecked;
    form.Picture2.UserDblClick();
    EXPECT_EQ(form.ckUseFormCanvas.Value, kChecked);
    EXPECT_EQ(form.PicImage.Picture().Pixels().At(0, 0), (Pixel{9, 8, 7, 0}));
}

TEST_F(ColorPaletteTest, BeforeAnySampleADoubleClickPaintsBlack) {
    form.Picture2.UserDblClick();
    EXPECT_EQ(form.BackColor, 0);
}

TEST_F(ColorPaletteTest, ASlotIsSentAsAPaintedFace) {
    form.Text2x(4).Text = "12,34,56";
    form.cmdColor(4).UserClick();
    EXPECT_EQ(
        Sent(),
        (std::vector<std::string>{
            "CreateObject WScript.Shell", "AppActivate Ruby Console",
            "SendKeys " + kFaceText +
                "new_face.material = Sketchup::Color.new 12,34,56\rnew_face.back_material = 12,34,56\r"}));
}

TEST_F(ColorPaletteTest, FacesAreTypedWithoutAConsoleToo) {
    program.desktop.console.present = false;
    form.Command1x.UserClick();
    EXPECT_EQ(Sent(), (std::vector<std::string>{"AppActivate Ruby Console failed",
                                                "CreateObject WScript.Shell", "SendKeys " + kFaceText}));
    form.cmdColor(9).UserClick();
    EXPECT_EQ(Sent().at(2), "SendKeys " + kFaceText +
                                "new_face.material = Sketchup::Color.new \rnew_face.back_material = \r");
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

TEST_F(ColorPaletteTest, ClearingFreesAllTenSlots) {
    for (int sample = 0; sample < 10; ++sample)
        Press(static_cast<float>(sample), 50);
    form.List1.AddItem("1,2,3");
    form.Command4.UserClick();
    EXPECT_EQ(form.List1.ListCount(), 0);
    for (int slot = 0; slot < 10; ++slot) {
        EXPECT_TRUE(form.Text2x(slot).Text().empty());
        EXPECT_EQ(form.cmdColor(slot).BackColor, 0);
    }
}

TEST_F(ColorPaletteTest, ThePanelTakesThePlaceOfTheNamesAndInALargeWindowOfTheFiles) {
    const auto visible = [this](bool names, bool files) {
        for (const Control* control :
             {static_cast<Control*>(&form.Frame3), static_cast<Control*>(&form.ckLock),
              static_cast<Control*>(&form.ckKeep), static_cast<Control*>(&form.ckOnly)}) {
            EXPECT_EQ(control->Visible, names) << control->Name();
        }
        for (const Control* control :
             {static_cast<Control*>(&form.Dir5), static_cast<Control*>(&form.Drive5),
              static_cast<Control*>(&form.Combo5), static_cast<Control*>(&form.File5),
              static_cast<Control*>(&form.Label8(46))}) {
            EXPECT_EQ(control->Visible, files) << control->Name();
        }
    };
    form.FramePics.Height = 1;
    form.FramePics.Width = 1;
    form.cmdColorPick.UserClick();
    EXPECT_TRUE(form.FramePics.Visible);
    EXPECT_EQ(form.FramePics.Height, 3650);
    EXPECT_EQ(form.FramePics.Width, 3945);
    visible(false, true);
    form.cmdColorPick.UserClick();
    EXPECT_FALSE(form.FramePics.Visible);
    visible(true, true);
    form.UserWindow(kWindowMaximized, {1920, 1000});
    form.cmdColorPick.UserClick();
    visible(false, false);
    form.UserWindow(kWindowNormal, {1024, 700});
    visible(false, false);
    form.cmdColorPick.UserClick();
    visible(true, true);
}

} // namespace
} // namespace mirelle::test
