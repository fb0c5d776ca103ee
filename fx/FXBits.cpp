#include "fx/FXBits.h"

#include "app/FrmPicX.h"

namespace mirelle {
namespace {

void FillSource(FrmPicX& form) {
    form.Pic1.Height = form.PicImage.Height;
    form.Pic1.Width = form.PicImage.Width;
    form.Pic1.Picture = form.PicImage.Image();
    GetBitmapBits(form.Pic1.Image().Pixels(), form.FXSource);
}

void ShowDestination(FrmPicX& form) {
    SetBitmapBits(form.PicImage.Paint(), form.FXDest);
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
