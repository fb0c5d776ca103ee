#include "fx/ContrastEffect.h"

#include "app/FrmPicX.h"
#include "fx/Contrast.h"

#include <string>

namespace mirelle {

ContrastEffect::ContrastEffect(FrmPicX& form) : form_(form) {
    form_.cmdCont.Click.Connect([this] { AskAndApply(); });
    form_.cmdCont33.Click.Connect([this] { ApplyFast(); });
}

void ContrastEffect::AskAndApply() {
    const std::string percent = form_.ports.dialogs.InputBox(
        "Enter contrast percent (-100>+100)", "Contrast Percentage", std::string(kProposedContrast));
    if (percent.empty()) {
        form_.MousePointer = kPointerDefault;
        return;
    }
    form_.MousePointer = kPointerHourglass;
    ApplyContrast(percent);
}

void ContrastEffect::ApplyFast() {
    form_.MousePointer = kPointerHourglass;
    ApplyContrast(Integer(kFastContrast));
    form_.Picture1b.Picture = form_.Picture3.Picture;
    form_.MousePointer = kPointerDefault;
}

void ContrastEffect::ApplyContrast(const Variant& percent) {
    form_.Picture1b.Picture = form_.PicImage.Picture;
    ResumeNext([&] {
        const Picture source = form_.Picture1b.Image();
        Bitmap result = Bitmap::Unwritten(source.Width(), source.Height());
        Contrast(percent).Apply(source.Pixels().Pixels(), result.Pixels());
        form_.Picture1b.ShowImage(Picture(std::move(result)));
    });
    form_.MousePointer = kPointerDefault;
    form_.Picture1b.Visible = false;
    form_.Picture1b.Refresh();
    ResumeNext([this] { form_.PicImage.Picture = form_.Picture1b.Image(); });
    ResumeNext([this] { form_.Picture = form_.Picture1b.Image(); });
    form_.Refresh();
}

} // namespace mirelle
