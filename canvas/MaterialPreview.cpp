#include "canvas/MaterialPreview.h"

#include "app/FrmPicX.h"
#include "forms/Color.h"

namespace mirelle {
namespace {

constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr float kScrollMargin = 5;
constexpr float kHandCopySize = 55;

} // namespace

MaterialPreview::MaterialPreview(FrmPicX& form) : form_(form) {
    form_.picSmall.Change.Connect([this] { PictureChanged(); });
    form_.picSmall.MouseDown.Connect([this](const MouseArgs& mouse) { MouseDown(mouse); });
    form_.picSmall.MouseMove.Connect([this](const MouseArgs& mouse) { MouseMove(mouse); });
    form_.Label2.OnClick([this](int) { SendToCanvas(); });
    form_.ckLock.Click.Connect([this] { form_.picSmall.AutoSize = form_.ckLock.Value != kChecked; });
    for (Event<>* event : {&form_.HSImage.Change, &form_.HSImage.Scroll})
        event->Connect([this] { ScrollAcross(); });
    for (Event<>* event : {&form_.VSImage.Change, &form_.VSImage.Scroll})
        event->Connect([this] { ScrollDown(); });
}

void MaterialPreview::PictureChanged() {
    ResumeNext([this] { form_.VSImage.Max = ToInteger(double{form_.picSmall.Height + kScrollMargin}); });
    ResumeNext([this] { form_.HSImage.Max = ToInteger(double{form_.picSmall.Width + kScrollMargin}); });
}

void MaterialPreview::MouseDown(const MouseArgs& mouse) {
    if (mouse.button == kRightButton) {
        SendToCanvas();
        MakeHandCopy();
    }
    if (mouse.button == kLeftButton) {
        if (!form_.FramePics.Visible) form_.cmdColorPick.Click();
        SampleColor(mouse.x, mouse.y);
    }
}

// The box is sized by itself ahead of the picture: the size stays also where there is no picture to be had.
void MaterialPreview::SendToCanvas() {
    ResumeNext([this] { form_.PicImage.Width = form_.picSmall.Width; });
    ResumeNext([this] { form_.PicImage.Height = form_.picSmall.Height; });
    ResumeNext([this] { form_.PicImage.Picture = form_.picSmall.Image(); });
    ResumeNext([this] { form_.Picture = form_.picSmall.Image(); });
}

void MaterialPreview::MakeHandCopy() {
    form_.Picture7.Width = kHandCopySize;
    form_.Picture7.Height = kHandCopySize;
    ResumeNext([this] { form_.Picture7.Picture = form_.picSmall.Image(); });
}

// The first free slot from 1 on takes the colour; slot 0 belongs to the preview frame.
void MaterialPreview::SampleColor(float x, float y) {
    Color color = 0;
    ResumeNext([&] { color = form_.picSmall.Point(x, y); });
    form_.Frame2.BackColor = color;
    const ColorParts parts = PartsOf(color);
    form_.List1.AddItem(ColorText(parts));
    for (int slot = 1; slot < form_.Text2x.Count(); ++slot) {
        if (!form_.Text2x(slot).Text().empty()) continue;
        form_.Text2x(slot).Text = ColorText(parts);
        form_.cmdColor(slot).BackColor = ColorOf(parts);
        return;
    }
}

void MaterialPreview::MouseMove(const MouseArgs& mouse) {
    ResumeNext([&] { form_.Frame2.BackColor = form_.picSmall.Point(mouse.x, mouse.y); });
    form_.Caption = App::Title;
    form_.picSmall.ToolTipText =
        form_.FramePics.Visible
            ? "Pick image point to sample pixel color at that image location"
            : CStr(form_.picSmall.Height()) + "X" + CStr(form_.picSmall.Width()) +
                  " Preview of material image to save; right-click to send to Sampling Canvas";
}

void MaterialPreview::ScrollAcross() {
    form_.picSmall.Left = static_cast<float>(-form_.HSImage.Value());
}

void MaterialPreview::ScrollDown() {
    form_.picSmall.Top = static_cast<float>(-form_.VSImage.Value());
}

} // namespace mirelle
