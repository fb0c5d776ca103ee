#include "canvas/SamplingCrop.h"

#include "app/FrmPicX.h"
#include "canvas/FitThumbnail.h"
#include "library/NameSuffix.h"

#include <optional>

namespace mirelle {
namespace {

constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;

// A measure that the user typed. One that is negative or beyond a Single is refused by what it is assigned
// to.
float TypedMeasure(const TextBox& box) {
    return ToSingle(Val(box.Text()));
}

void TakeClickCropSize(FrmPicX& form, Shape& shape) {
    ResumeNext([&] { shape.Height = TypedMeasure(form.TextCrop(0)); });
    ResumeNext([&] { shape.Width = TypedMeasure(form.TextCrop(1)); });
}

// The size that the rectangle had before a move took it further; known only in moves to the lower right.
struct ClipSize {
    std::optional<float> width, height;
};

std::string TextOf(std::optional<float> measure) {
    return measure ? CStr(*measure) : std::string();
}

// Draws the rectangle between the start and the pointer, whichever corner the pointer is at. A pointer
// exactly above, below or beside the start changes nothing.
ClipSize FollowPointer(Shape& shape, float startX, float startY, float x, float y) {
    ClipSize before;
    if (x > startX && y > startY) {
        before = {shape.Width(), shape.Height()};
        shape.Width = x - startX;
        shape.Height = y - startY;
    }
    if (x < startX && y < startY) shape.Move(x, y, startX - x, startY - y);
    if (x < startX && y > startY) shape.Move(x, startY, startX - x, y - startY);
    if (x > startX && y < startY) shape.Move(startX, y, x - startX, startY - y);
    return before;
}

std::string StatusOf(const FrmPicX& form, const MouseArgs& mouse, const ClipSize& clip) {
    const std::string place = " X: " + CStr(mouse.x) + " " + " Y: " + CStr(mouse.y);
    if (!form.CropDragging.IsTrue()) return "Mouse-down-click or drag to sample:" + place;
    return "Mouse:" + place + " | " + "Clip width: " + TextOf(clip.width) + " " +
           "Clip height: " + TextOf(clip.height);
}

} // namespace

SamplingCrop::SamplingCrop(FrmPicX& form) : form_(form) {
    form_.MouseDown.Connect([this](const MouseArgs& mouse) { MouseDown(mouse); });
    form_.MouseMove.Connect([this](const MouseArgs& mouse) { MouseMove(mouse); });
    form_.MouseUp.Connect([this](const MouseArgs&) { MouseUp(); });
    form_.Click.Connect([this] { Click(); });
}

void SamplingCrop::MouseDown(const MouseArgs& mouse) {
    form_.CropCancelled = false;
    if (mouse.button == kRightButton) return ExitCrop();
    if (form_.ckFloorBar.Value == kChecked) return MarkFloorBar(mouse);
    if (mouse.button == kLeftButton) StartCrop(mouse);
}

void SamplingCrop::ExitCrop() {
    form_.ports.dialogs.MsgBox(form_.Frame4.Visible ? "Exiting Crop" : "Exiting Crop; Showing Frames",
                               MessageButtons::Ok, App::Title);
    form_.Shape1.Visible = false;
    form_.CropCancelled = true;
}

void SamplingCrop::StartCrop(const MouseArgs& mouse) {
    form_.CropStartX = mouse.x;
    form_.CropStartY = mouse.y;
    form_.Shape2.Visible = false;
    form_.Shape1.Visible = true;
    form_.Shape1.Left = mouse.x;
    form_.Shape1.Top = mouse.y;
    TakeClickCropSize(form_, form_.Shape1);
    form_.CropDragging = true;
}

void SamplingCrop::MarkFloorBar(const MouseArgs& mouse) {
    form_.CropStartX = mouse.x;
    form_.CropStartY = mouse.y;
    form_.Shape1.Visible = false;
    form_.Shape2.Visible = false;
    form_.Shape3.Visible = true;
    form_.Shape3.Left = mouse.x;
    form_.Shape3.Top = mouse.y;
}

void SamplingCrop::MouseMove(const MouseArgs& mouse) {
    form_.MousePointer = kPointerDefault;
    form_.FrameRGBFX2.BackColor = 0;
    form_.ports.pump.DoEvents(PumpSite::Handler);
    if (form_.ports.keyboard.EscapeWentDown()) {
        form_.Shape1.Visible = false;
        form_.CropCancelled = true;
        return;
    }
    if (form_.ckFloorBar.Value != kUnchecked) return;
    if (!form_.CropDragging.IsTrue()) ShowClickCropOutline(mouse);
    const ClipSize clip = FollowPointer(form_.Shape1, static_cast<float>(form_.CropStartX.Number()),
                                        static_cast<float>(form_.CropStartY.Number()), mouse.x, mouse.y);
    form_.Caption = StatusOf(form_, mouse, clip);
}

void SamplingCrop::ShowClickCropOutline(const MouseArgs& mouse) {
    form_.Shape2.Visible = true;
    form_.Shape2.Left = mouse.x;
    form_.Shape2.Top = mouse.y;
    TakeClickCropSize(form_, form_.Shape2);
}

void SamplingCrop::MouseUp() {
    try {
        form_.CropDragging = false;
        if (!form_.CropCancelled) CopyCrop();
        form_.Shape1.Visible = false;
        form_.CropStartX = Integer(0);
        form_.CropStartY = Integer(0);
        TakeSuffix(form_, SuffixOfNewSample(form_));
    } catch (const RunTimeError& error) {
        form_.ports.dialogs.MsgBox(error.Description(), MessageButtons::Ok, App::Title);
    }
}

void SamplingCrop::CopyCrop() {
    const bool keep = form_.ckKeep.Value == kChecked;
    const bool lock = form_.ckLock.Value == kChecked;
    PictureBox* const materialBoxes[] = {&form_.picSmall, &form_.picSmall2};
    if (!keep) {
        for (PictureBox* box : materialBoxes)
            box->Picture = Picture();
    }
    if (!keep && !lock) {
        for (PictureBox* box : materialBoxes) {
            box->Width = form_.Shape1.Width;
            box->Height = form_.Shape1.Height;
        }
        for (PictureBox* box : materialBoxes)
            PaintCrop(*box);
    }
    if (!keep && lock) {
        form_.picSmall.AutoSize = false;
        for (PictureBox* box : materialBoxes)
            PaintCrop(*box);
        form_.picSmall.AutoSize = true;
    }
    form_.Refresh();
    FitThumbnail(form_, form_.Shape1.Width * 0.5F, form_.Shape1.Height * 0.5F);
    form_.Image1.Picture = form_.picSmall.Image();
}

void SamplingCrop::PaintCrop(PictureBox& box) {
    const Shape& area = form_.Shape1;
    box.PaintPicture(form_.PicImage.Picture, 0, 0, area.Width, area.Height, area.Left, area.Top);
    box.Refresh();
}

void SamplingCrop::Click() {
    form_.ClickX = form_.CropStartX;
    form_.ClickY = form_.CropStartY;
}

} // namespace mirelle
