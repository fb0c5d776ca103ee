#include "fx/UndoAndRetain.h"

#include "app/FrmPicX.h"
#include "fx/FXBits.h"
#include "fx/PointSet.h"

namespace mirelle {
namespace {

// A bitmap that went away between the look and the read is an error: Revert then leaves everything as it is.
Picture ClipboardBitmap(FrmPicX& form) {
    Picture bitmap = form.ports.clipboard.GetData();
    if (bitmap.IsEmpty()) throw RunTimeError(ErrorNumber::InvalidPicture);
    return bitmap;
}

} // namespace

UndoAndRetain::UndoAndRetain(FrmPicX& form) : form_(form) {
    form_.cmdSetMain.Click.Connect([this] { Retain(); });
    form_.cmdSetMain2.Click.Connect([this] { form_.cmdSetMain.Click(); });
    form_.cmdRGBUndo.Click.Connect([this] { Undo(); });
    form_.cmdResetRGBSlider.Click.Connect([this] { ResetSliders(); });
    form_.cmdCopy.Click.Connect([this] { ResumeNext([this] { Revert(); }); });
}

void UndoAndRetain::Retain() {
    form_.MousePointer = kPointerHourglass;
    form_.Picture1.Picture = form_.PicImage.Picture;
    form_.Picture = form_.PicImage.Picture;
    form_.MousePointer = kPointerDefault;
}

void UndoAndRetain::Undo() {
    ResumeNext([this] { form_.Pic1.Picture = form_.Picture3.Image(); });
    ResumeNext([this] { form_.PicImage.Picture = form_.Picture3.Image(); });
    form_.Picture = form_.Picture3.Picture;
}

// A slider that moves back runs its change, which adds the values of the two others once more.
void UndoAndRetain::ResetSliders() {
    form_.HSColorShift.ForEach([](ScrollBar& slider) { slider.Value = 0; });
}

// The source array is filled before the picture is read again, and goes back after it: from a file, whose
// click sizes the arrays anew, those are zeros. Where the first filling fails for want of sized arrays, the
// rest still runs.
void UndoAndRetain::Revert() {
    GetFXBits(form_);
    ResetSliders();
    if (form_.ClipboardIsSource) ReadClipboardAgain();
    form_.MousePointer = kPointerHourglass;
    if (!form_.ClipboardIsSource) ReadFileAgain();
    ChosenPoints().Copy(form_.FXSource, form_.FXDest, {});
    PutFXBits(form_);
}

void UndoAndRetain::ReadClipboardAgain() {
    if (!form_.ports.clipboard.HasBitmap()) return;
    for (PictureBox* box : {&form_.Pic1, &form_.PicImage, &form_.Picture3})
        box->Picture = ClipboardBitmap(form_);
    form_.Picture = ClipboardBitmap(form_);
    form_.MousePointer = kPointerDefault;
}

void UndoAndRetain::ReadFileAgain() {
    form_.MousePointer = kPointerHourglass;
    form_.File5.RunClick();
    form_.MousePointer = kPointerDefault;
}

} // namespace mirelle
