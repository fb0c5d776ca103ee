#include "canvas/PictureCanvasCrop.h"

#include "app/FrmPicX.h"

namespace mirelle {
namespace {

constexpr int kLeftButton = 1;

} // namespace

PictureCanvasCrop::PictureCanvasCrop(FrmPicX& form) : form_(form) {
    form_.PicImage.MouseDown.Connect([this](const MouseArgs& mouse) { MouseDown(mouse); });
    form_.PicImage.MouseMove.Connect([this](const MouseArgs& mouse) { MouseMove(mouse); });
    form_.PicImage.MouseUp.Connect([this](const MouseArgs&) { MouseUp(); });
    form_.ckUseFormCanvas.Click.Connect([this] { UseFormCanvas(); });
}

void PictureCanvasCrop::MouseDown(const MouseArgs& mouse) {
    if (mouse.button != kLeftButton) return;
    form_.CropStartX = mouse.x;
    form_.CropStartY = mouse.y;
    form_.Shape1.Visible = true;
    form_.Shape1.Left = mouse.x;
    form_.Shape1.Top = mouse.y;
}

void PictureCanvasCrop::MouseMove(const MouseArgs& mouse) {
    Shape& shape = form_.Shape1;
    const auto startX = static_cast<float>(form_.CropStartX.Number());
    const auto startY = static_cast<float>(form_.CropStartY.Number());
    std::string clipWidth;
    std::string clipHeight;
    if (mouse.x > startX) {
        clipHeight = CStr(shape.Height());
        clipWidth = CStr(shape.Width());
        shape.Width = mouse.x - startX;
        ResumeNext([&] { shape.Height = mouse.y - startY; });
    }
    if (mouse.x < startX) {
        shape.Width = startX - mouse.x;
        ResumeNext([&] { shape.Height = startY - mouse.y; });
    }
    form_.Caption = std::string("CROPMODE-Pixel coord:") + " width x:" + CStr(mouse.x) + "   " +
                    " height y: " + CStr(mouse.y) + "   |  " + "Clip dimension x width: " + clipWidth +
                    "    " + "Clip dimension x height: " + clipHeight;
}

void PictureCanvasCrop::MouseUp() {
    const Shape& area = form_.Shape1;
    if (form_.ckKeep.Value == kUnchecked) {
        PictureBox* const materialBoxes[] = {&form_.picSmall, &form_.picSmall2};
        for (PictureBox* box : materialBoxes) {
            ResumeNext([&] { box->Width = area.Width; });
            ResumeNext([&] { box->Height = area.Height; });
        }
        for (PictureBox* box : materialBoxes) {
            ResumeNext([&] {
                box->PaintPicture(form_.PicImage.Picture, 0, 0, area.Width, area.Height, area.Left, area.Top);
            });
            box->Refresh();
        }
    }
    form_.Shape1.Visible = false;
    form_.CropStartX = Integer(0);
    form_.CropStartY = Integer(0);
}

void PictureCanvasCrop::UseFormCanvas() {
    ResumeNext([this] { form_.PicImage.Picture = form_.Image(); });
    ResumeNext([this] { form_.Picture3.Picture = form_.Image(); });
}

} // namespace mirelle
