#include "fx/KernelEffects.h"

#include "app/FrmPicX.h"

#include <string>

namespace mirelle {

KernelEffects::KernelEffects(FrmPicX& form) : form_(form), module_(form.ports.pump) {
    for (const KernelButton& button : kKernelButtons) {
        form_.Find(std::string(button.control))->Click.Connect([this, &button] { RunKernelFX(button); });
    }
    form_.cmdPointalism.Click.Connect([this] { Smudge([this] { form_.cmdBlur2.Click(); }); });
    form_.cmdPointalismVert.Click.Connect([this] { Smudge([this] { RunKernelFX(kBlurVertical); }); });
}

void KernelEffects::RunKernelFX(const KernelButton& button) {
    form_.MousePointer = kPointerHourglass;
    if (button.takesUndoCopy) form_.Picture3.Picture = form_.PicImage.Picture;
    PaintKernel(button);
    ResumeNext([this] { form_.PicImage.Picture = form_.picTemp.Image(); });
    form_.Picture = form_.PicImage.Picture;
    if (form_.ckApplyRGB.Value == kChecked) form_.cmdSetMain.Click();
    form_.MousePointer = kPointerDefault;
}

void KernelEffects::PaintKernel(const KernelButton& button) {
    Picture result;
    ResumeNext([&] { module_.Run(button.kernel, form_.Picture1.Picture, result, button.arguments); });
    form_.picTemp.Picture = Picture();
    form_.picTemp.Width = static_cast<float>(module_.FXWidth) * kTwipsPerPixel;
    form_.picTemp.Height = static_cast<float>(module_.FXHeight) * kTwipsPerPixel;
    if (!result.IsEmpty()) form_.picTemp.ShowImage(result);
}

template <class Blur>
void KernelEffects::Smudge(Blur blur) {
    form_.MousePointer = kPointerHourglass;
    form_.Picture3.Picture = form_.PicImage.Picture;
    for (int pass = 0; pass < kSmudgerPasses; ++pass) {
        blur();
        form_.cmdSetMain.Click();
        form_.ports.pump.DoEvents(PumpSite::Pass);
        if (form_.ports.keyboard.EscapeWentDown()) return;
    }
    form_.MousePointer = kPointerDefault;
}

} // namespace mirelle
