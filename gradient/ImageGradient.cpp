#include "gradient/ImageGradient.h"

#include "app/FrmPicX.h"
#include "gradient/BandRows.h"
#include "gradient/GradientBands.h"

namespace mirelle {

ImageGradient::ImageGradient(FrmPicX& form) : form_(form) {
    form_.cmdGradV.OnClick([this](int index) { StartGradient(index); });
    form_.chkStretch.Click.Connect([this] { RestorePictures(); });
    for (Event<>* event : {&form_.cmbDirection.Change, &form_.cmbDirection.Click}) {
        event->Connect([this] { TakeDirection(); });
    }
    for (Event<>* event :
         {&form_.hStart.Change, &form_.hStart.Scroll, &form_.hEnd.Change, &form_.hEnd.Scroll}) {
        event->Connect([this] { ShowGradient(); });
    }
}

void ImageGradient::StartGradient(int index) {
    form_.GradDirectionH = index == kHorizontal;
    form_.GradDirectionV = index == kVertical;
    form_.optDirection(index).Value = true;
    form_.StoredCanvasPicture = form_.pic1grad.Picture;
    form_.StoredGradientPicture = form_.pic2grad.Picture;
    stretchToFit_(form_.pic1grad, form_.pic1grad.Picture);
    stretchToFit_(form_.pic2grad, form_.pic2grad.Picture);
    stretchToFit_(form_.picDest, form_.pic1grad.Picture);
    form_.chkStretch.Click();
    if (form_.optDirection(kVertical).Value) form_.cmbDirection.SetListIndex(kVertical);
    if (form_.optDirection(kHorizontal).Value) form_.cmbDirection.SetListIndex(kHorizontal);
    form_.hStart.Scroll();
}

// The sliders run along the result, in pixels.
void ImageGradient::TakeDirection() {
    const int direction = form_.cmbDirection.ListIndex();
    if (direction != kHorizontal && direction != kVertical) return;
    const float length = direction == kHorizontal ? form_.picDest.ScaleWidth() : form_.picDest.ScaleHeight();
    ResumeNext([&] { form_.hStart.Max = ToInteger(double{length}); });
    ResumeNext([&] { form_.hEnd.Max = ToInteger(double{length}); });
}

void ImageGradient::RestorePictures() {
    form_.pic1grad.Picture = form_.StoredCanvasPicture;
    form_.pic2grad.Picture = form_.StoredGradientPicture;
    if (form_.chkStretch.Value == kChecked) {
        stretchToFit_(form_.pic1grad, form_.pic1grad.Picture);
        stretchToFit_(form_.pic2grad, form_.pic2grad.Picture);
    }
    ShowGradient();
    form_.picDest.Refresh();
}

void ImageGradient::ShowGradient() {
    form_.picDest.Cls();
    form_.pic1grad.Picture = form_.StoredCanvasPicture;
    if (form_.chkStretch.Value == kChecked) {
        stretchToFit_(form_.pic1grad, form_.StoredCanvasPicture);
        stretchToFit_(form_.pic2grad, form_.StoredGradientPicture);
    }
    DrawGradient();
    form_.PicImage.Refresh();
    form_.picDest.Refresh();
}

void ImageGradient::DrawGradient() {
    ResumeNext([this] {
        const PictureBox& result = form_.picDest;
        const PictureBox& fade = form_.pic2grad;
        const BandSizes sizes{double{result.ScaleWidth()}, double{result.ScaleHeight()},
                              double{fade.ScaleWidth()}, double{fade.ScaleHeight()}};
        const auto bands =
            BandsOf(sizes, form_.hStart.Value(), form_.hEnd.Value(), form_.cmbDirection.ListIndex());
        if (bands.empty()) return;
        const Picture source = fade.Image();
        const auto rows = BandRows::Of(bands, result.PixelWidth(), result.PixelHeight(), source.Pixels());
        if (rows)
            form_.picDest.PaintRows([&](int y, auto was, auto row) { rows->Draw(y, was, row); });
        else
            DrawBandsPlain(form_.picDest.Paint(), source.Pixels(), bands);
    });
    ResumeNext([this] { form_.PicImage.Picture = form_.picDest.Image(); });
    form_.PicImage.Refresh();
    ResumeNext([this] { form_.Picture = form_.picDest.Image(); });
}

} // namespace mirelle
