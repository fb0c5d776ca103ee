#include "fx/FXBits.h"

#include "app/FrmPicX.h"

namespace mirelle {
namespace {

void FillSource(FrmPicX& form) {
    form.Pic1.Height = form.PicImage.Height;
    form.Pic1.Width = form.PicImage.Width;
    form.Pic1.Picture = form.PicImage.Image();
    GetBitmapBits(form.Pic1.Image(), form.FXSource);
}

// Bits that are all of the image come to be the image, without a copy.
void SetImageBits(PictureBox& box, PixelFrame& bits) {
    if (bits.IsAllOf(box.PixelWidth(), box.PixelHeight()))
        box.ShowImage(bits.bytes.Share());
    else
        SetBitmapBits(box.Paint(), bits);
}

void ShowDestination(FrmPicX& form) {
    SetImageBits(form.PicImage, form.FXDest);
    form.Picture3.Picture = form.PicImage.Image();
    form.PicImage.Refresh();
    form.Pic1.Picture = form.PicImage.Picture;
    form.Picture = form.PicImage.Image();
    form.PicImage.Picture = form.PicImage.Image();
    form.Refresh();
    form.cmdSetMain.Click();
    form.MousePointer = kPointerDefault;
}

} // namespace

void GetFXBits(FrmPicX& form) {
    form.MousePointer = kPointerHourglass;
    ResumeNext([&] { FillSource(form); });
}

void PutFXBits(FrmPicX& form) {
    ResumeNext([&] { ShowDestination(form); });
}

} // namespace mirelle
