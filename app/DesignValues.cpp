#include "app/DesignValues.h"

#include "app/ControlTexts.h"
#include "app/FrmPicX.h"

#include <array>
#include <cassert>

namespace mirelle {
namespace {

void SetCaption(Control& control, const std::string& caption) {
    if (auto* label = dynamic_cast<Label*>(&control)) label->Caption = caption;
    if (auto* frame = dynamic_cast<Frame*>(&control)) frame->Caption = caption;
    if (auto* button = dynamic_cast<CommandButton*>(&control)) button->Caption = caption;
    if (auto* check = dynamic_cast<CheckBox*>(&control)) check->Caption = caption;
    if (auto* option = dynamic_cast<OptionButton*>(&control)) option->Caption = caption;
}

void ApplyTexts(FrmPicX& form) {
    for (const ControlText& row : ControlTexts()) {
        Control* control = form.Find(row.name, row.index);
        assert(control && "a text for a control that the form does not have");
        SetCaption(*control, row.caption);
        control->ToolTipText = row.toolTip;
    }
    form.Caption = App::Title;
    form.Combo5.Text = "*.jpg";
    form.textProfileName.Text = "Enter Material Name";
    form.TextLoops.Text = "0";
    form.TextCrop(0).Text = "200";
    form.TextCrop(1).Text = "200";
    form.TextMatSize.Text = "5";
    form.cmbDirection.AddItem("Horizontal");
    form.cmbDirection.AddItem("Vertical");
}

void HideWhatStartsHidden(FrmPicX& form) {
    Control* const hidden[] = {&form.Frame8,     &form.Command10,   &form.Command13,       &form.FramePics,
                               &form.FrameRGBFX, &form.FrameGradFX, &form.FrShowFrames(0), &form.Command7,
                               &form.ckFloorBar, &form.Shape1,      &form.Shape2,          &form.Shape3,
                               &form.PicImage,   &form.picSmall2,   &form.Picture7,        &form.Picture3,
                               &form.Pic1,       &form.Picture1b,   &form.Picture4,        &form.Picture5,
                               &form.Picture6,   &form.PicSwap1,    &form.PicSwap2};
    for (Control* control : hidden)
        control->Visible = false;
}

void SetColours(FrmPicX& form) {
    form.BackColor = 0x404040;
    form.Shape1.BorderColor = 0x00FFFF;
    form.Shape2.BorderColor = 0xFFFFFF;
    form.FrameRGBFX2.BackColor = 0;
    form.textProfileName.BackColor = 0;
    form.textProfileName.ForeColor = 0xFFFFFF;
    form.TextLoops.BackColor = 0x404040;
    form.TextLoops.ForeColor = 0xFFFFFF;
    constexpr std::array<Color, 5> kDialogColours = {0x00FFFF, 0x404040, 0xFF00FF, 0x000000, 0x0080FF};
    for (int index = 0; index < static_cast<int>(kDialogColours.size()); ++index) {
        form.cmdColorDialog(index).BackColor = kDialogColours[static_cast<std::size_t>(index)];
    }
    constexpr std::array<Color, 3> kChannelColours = {0xFF0000, 0x00FF00, 0x0000FF}; // blue, green, red
    for (int channel = 0; channel < 3; ++channel) {
        form.LabelRGBx(channel).ForeColor = kChannelColours[static_cast<std::size_t>(channel)];
    }
    form.cmdColor.ForEach([](CommandButton& button) { button.BackColor = 0; });
}

void SetSliders(FrmPicX& form) {
    form.HSColorShift.ForEach([](ScrollBar& slider) {
        slider.Min = -255;
        slider.Max = 255;
        slider.LargeChange = 5;
    });
    for (ScrollBar* slider : {&form.RS, &form.GS, &form.BS, &form.RF, &form.GF, &form.BF}) {
        slider->Max = 1020;
        slider->Value = 1020;
        slider->Min = 4;
    }
    form.RS.Value = 444;
    form.GS.Value = 999;
    form.BS.Value = 555;
    for (ScrollBar* slider : {&form.hStart, &form.hEnd})
        slider->LargeChange = 20;
    form.hEnd.Value = 32767; // beyond any picture: the first range that it is given takes it to the far edge
}

void SetChoices(FrmPicX& form) {
    form.Check4.Value = kChecked;
    form.chkStretch.Value = kChecked;
    form.optUnits(0).Value = true;
}

void SetSizes(FrmPicX& form) {
    form.Shape1.Move(0, 0, 200, 200);
    form.Shape2.Move(0, 0, 200, 200);
    form.Shape3.Move(0, 0, 150, 195);
    form.PicImage.Move(0, 0, 320, 240);
    form.picSmall.Move(0, 0, 245, 200);
    form.picSmall2.Move(0, 0, 245, 200);
    form.PicScroll.Move(0, 0, 260, 222);
    form.Image1.Move(0, 0, 120, 90);
    form.Imagex.Move(0, 0, 3135, 1575);
    for (PictureBox* box : {&form.Picture7, &form.Picture3, &form.Pic1, &form.Picture1, &form.picTemp}) {
        box->Move(0, 0, 900, 900);
    }
    for (PictureBox* box : {&form.Picture1b, &form.Picture4, &form.Picture6})
        box->Move(0, 0, 68, 68);
    for (PictureBox* box :
         {&form.pic1grad, &form.pic2grad, &form.picDest, &form.Picture5, &form.PicSwap1, &form.PicSwap2}) {
        box->Move(0, 0, 1020 * kTwipsPerPixel, 1020 * kTwipsPerPixel);
    }
    form.Picture2.Move(0, 0, 245, 200);
    form.Frame4.Move(338, -1, 270, 441);
    form.Frame5.Move(-36, 440, 780, 62);
    form.Frame6.Move(608, -2, 92, 442);
    form.Frame7.Move(346, 277, 256, 164);
    form.Frame8.Move(338, 1, 270, 276);
    form.FramePics.Move(0, 0, 3945, 3650);
    form.FrameRGBFX.Move(0, 0, 9000, 1020);
    form.FrameGradFX.Move(0, 0, 9000, 1020);
    form.FrameMatCanvas.Move(0, 0, 3945, 3090);
    form.FrameMatCanvas2.Move(0, 0, 545, 222);
    form.FrShowFrames(0).Move(24, 24, 56, 44);
    form.List2.Move(75, 0, 3835, 2400);
    form.File5.Move(0, 0, 3000, 1395);
}

} // namespace

void ApplyDesignValues(FrmPicX& form) {
    SetSizes(form);
    ApplyTexts(form);
    HideWhatStartsHidden(form);
    SetColours(form);
    SetSliders(form);
    SetChoices(form);
}

} // namespace mirelle
