#include "fx/ColorDialogs.h"

#include "app/FrmPicX.h"

namespace mirelle {
namespace {

constexpr int kRightButton = 2;
constexpr float kPanelHeight = 1020;

constexpr Color kDefaultHairline = 0x00FFFF;
constexpr Color kDefaultOutline = 0xFFFFFF;
constexpr Color kDefaultCanvas = 0x404040;
constexpr Color kDefaultSurround = 0xC0C0C0;

enum ColorButton { kHairline, kCanvas, kImageFX, kGradientFX, kGradient };

// Half of the whole number, not of each channel; black would leave the surround black.
Color SurroundOf(Color canvas) {
    return canvas == 0 ? kDefaultSurround : ToLong(canvas / 2.0);
}

} // namespace

ColorDialogs::ColorDialogs(FrmPicX& form) : form_(form) {
    form_.cmdColorDialog.OnClick([this](int index) { Click(index); });
    form_.cmdColorDialog.ForEach([this](CommandButton& button) {
        button.MouseDown.Connect([this](const MouseArgs& mouse) {
            if (mouse.button == kRightButton) RestoreDefaultColors();
        });
    });
}

void ColorDialogs::Click(int index) {
    form_.CDialog1.CancelError = true;
    switch (index) {
    case kHairline:
        return PickHairlineColor();
    case kCanvas:
        return PickCanvasColor();
    case kImageFX:
        return SwitchImageFX();
    case kGradientFX:
        return SwitchGradientFX();
    case kGradient:
        return PickGradientColor();
    }
}

bool ColorDialogs::ShowColor() {
    return ResumeNext([this] { form_.CDialog1.ShowColor(); });
}

void ColorDialogs::PickHairlineColor() {
    if (!ShowColor()) return;
    const Color color = form_.CDialog1.Color;
    form_.Shape1.BorderColor = color;
    form_.Shape2.BorderColor = color;
    form_.cmdColorDialog(kHairline).BackColor = color;
}

void ColorDialogs::PickCanvasColor() {
    if (!ShowColor()) return;
    const Color color = form_.CDialog1.Color;
    form_.BackColor = color;
    form_.cmdColorDialog(kCanvas).BackColor = color;
    for (Control* surround :
         {static_cast<Control*>(&form_.FrameMatCanvas), static_cast<Control*>(&form_.FrameMatCanvas2),
          static_cast<Control*>(&form_.PicScroll)}) {
        surround->BackColor = SurroundOf(color);
    }
    form_.Refresh();
    if (form_.ckUseFormCanvas.Value == kChecked) {
        ResumeNext([this] { form_.PicImage.Picture = form_.Image(); });
        ResumeNext([this] { form_.Picture3.Picture = form_.Image(); });
    }
}

// The button opens and closes the panel, and each use puts the picture through Revert.
void ColorDialogs::SwitchImageFX() {
    form_.cmdCopy.Click();
    form_.FrameRGBFX.Height = kPanelHeight;
    form_.FrameGradFX.Visible = false;
    if (!form_.FrameRGBFX.Visible) {
        form_.cmdCopy.Click();
        form_.FrameRGBFX.Visible = true;
    } else {
        form_.FrameRGBFX.Visible = false;
        form_.cmdCopy.Click();
    }
}

void ColorDialogs::SwitchGradientFX() {
    if (form_.FrameRGBFX.Visible) ResumeNext([this] { form_.pic1grad.Picture = form_.PicImage.Image(); });
    form_.FrameGradFX.Height = kPanelHeight;
    if (form_.FrameGradFX.Visible) {
        form_.FrameGradFX.Visible = false;
        return;
    }
    form_.FrameGradFX.Visible = true;
    form_.FrameRGBFX.Visible = false;
    form_.cmdGradV(1).Click();
    if (form_.GradDirectionV) form_.cmdGradV(1).Click();
    if (form_.GradDirectionH) form_.cmdGradV(0).Click();
}

// A cancelled dialog is not looked at: the former colour serves.
void ColorDialogs::PickGradientColor() {
    ShowColor();
    const Color color = form_.CDialog1.Color;
    form_.Picture5.Picture = Picture();
    form_.Picture5.BackColor = color;
    form_.Picture5.Refresh();
    form_.cmdColorDialog(kGradient).HasPicture = false;
    form_.cmdColorDialog(kGradient).BackColor = color;
    ResumeNext([this] { form_.pic2grad.Picture = form_.Picture5.Image(); });
    form_.cmdGradV(1).Click();
}

void ColorDialogs::RestoreDefaultColors() {
    form_.Shape1.BorderColor = kDefaultHairline;
    form_.Shape2.BorderColor = kDefaultOutline;
    form_.BackColor = kDefaultCanvas;
    form_.FrameMatCanvas.BackColor = kDefaultSurround;
    form_.FrameMatCanvas2.BackColor = kDefaultSurround;
    form_.cmdColorDialog(kHairline).BackColor = kDefaultHairline;
    form_.cmdColorDialog(kCanvas).BackColor = kDefaultCanvas;
}

} // namespace mirelle
