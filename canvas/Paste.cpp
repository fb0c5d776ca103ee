#include "canvas/Paste.h"

#include "app/FrmPicX.h"
#include "canvas/FitThumbnail.h"
#include "fx/SizeFXBits.h"

namespace mirelle {

Paste::Paste(FrmPicX& form) : form_(form) {
    form_.Command5.Click.Connect([this] { PasteFromClipboard(); });
    form_.Command8.Click.Connect([this] { form_.ports.clipboard.Clear(); });
    form_.Command12.Click.Connect([this] { CopyMaterialImage(); });
    form_.OLEDragDrop.Connect([this](const DroppedData& data) {
        if (!data.bitmap.IsEmpty()) PasteDropped(data.bitmap);
    });
}

void Paste::PasteFromClipboard() {
    if (ClipboardHasBitmap()) {
        TakeBitmap(form_.PicImage);
        TakeBitmap(form_.Picture1);
        TakeBitmap(form_.Picture3);
        form_.ClipboardIsSource = true;
        if (form_.FrameGradFX.Visible) PasteIntoGradient();
    }
    if (form_.ckAutoPaste.Value == kUnchecked && !ClipboardHasBitmap()) {
        form_.ports.dialogs.MsgBox("Clipboard contains no picture; Hit Printscreen button",
                                   MessageButtons::Ok, App::Title);
        return;
    }
    TakeBitmap(form_.PicImage);
    TakeBitmap(form_.Picture3);
    form_.Picture = form_.PicImage.Picture;
    form_.ports.pump.DoEvents(PumpSite::Handler);
    form_.PicImage.Refresh();
    form_.Picture = form_.PicImage.Picture;
    if (form_.ckKeep.Value == kUnchecked) {
        TakeBitmap(form_.picSmall);
        form_.picSmall.Refresh();
    }
    form_.Picture = form_.PicImage.Picture;
    FitThumbnail(form_, form_.picSmall.Width * 0.9F, form_.picSmall.Height * 0.9F);
    ResumeNext([this] { form_.Image1.Picture = form_.picSmall.Image(); });
    form_.Image1.Refresh();
    if (ClipboardHasBitmap()) {
        TakeBitmap(form_.Pic1);
        TakeBitmap(form_.PicImage);
        TakeBitmap(form_.Picture3);
    }
    ResumeNext([this] { SizeFXBits(form_); });
}

// By way of the clipboard, where the start state of the effects is read again from.
void Paste::PasteDropped(const Picture& bitmap) {
    form_.ports.clipboard.Clear();
    ResumeNext([&] { form_.ports.clipboard.SetData(bitmap); });
    form_.Command5.Click();
}

void Paste::PasteIntoGradient() {
    TakeBitmap(form_.Picture4);
    form_.Picture4.Refresh();
    for (PictureBox* box : {&form_.pic1grad, &form_.pic2grad, &form_.picDest}) {
        box->SizeInPixels(form_.Picture4.PixelWidth(), form_.Picture4.PixelHeight());
    }
    TakeBitmap(form_.pic1grad);
    form_.cmdGradV(1).Click();
    if (form_.GradDirectionV) form_.cmdGradV(1).Click();
    if (form_.GradDirectionH) form_.cmdGradV(0).Click();
}

void Paste::CopyMaterialImage() {
    form_.ports.clipboard.Clear();
    ResumeNext([this] { form_.ports.clipboard.SetData(form_.picSmall.Image()); });
}

bool Paste::ClipboardHasBitmap() const {
    return form_.ports.clipboard.HasBitmap();
}

void Paste::TakeBitmap(PictureBox& holder) {
    Picture bitmap;
    ResumeNext([&] { bitmap = form_.ports.clipboard.GetData(); });
    if (!bitmap.IsEmpty()) holder.Picture = bitmap;
}

} // namespace mirelle
