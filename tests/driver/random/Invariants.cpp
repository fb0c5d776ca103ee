#include "tests/driver/random/Invariants.h"

#include "forms/Numbers.h"

#include <algorithm>

namespace mirelle::driver {
namespace {

using Broken = std::optional<std::string>;

bool IsWithin(int value, int one, int other) {
    return value >= std::min(one, other) && value <= std::max(one, other);
}

Broken OfControl(Control& control) {
    if (const auto* bar = dynamic_cast<const ScrollBar*>(&control)) {
        if (!IsWithin(bar->Value, bar->Min, bar->Max)) return control.FullName() + " is beyond its range";
    } else if (const auto* list = dynamic_cast<const ListControl*>(&control)) {
        if (!IsWithin(list->ListIndex(), kNoRow, list->ListCount() - 1))
            return control.FullName() + " has a row chosen that is not there";
    } else if (const auto* files = dynamic_cast<const FileListBox*>(&control)) {
        if (!IsWithin(files->ListIndex(), kNoRow, files->ListCount() - 1))
            return control.FullName() + " has a file chosen that is not there";
    } else if (const auto* box = dynamic_cast<const PictureBox*>(&control)) {
        const Picture& picture = box->Picture();
        const bool hasSize = picture.Width() == box->PixelWidth() && picture.Height() == box->PixelHeight();
        if (box->PixelWidth() < 0 || box->PixelHeight() < 0)
            return control.FullName() + " is less than empty";
        // A box that follows its picture and shows nothing else shares it.
        if (box->AutoSize && hasSize && !picture.IsEmpty() && box->Image().Width() != picture.Width())
            return control.FullName() + " shows another size than its picture's";
    }
    return {};
}

Broken OfCounter(FrmPicX& form) {
    double shown = 0;
    ResumeNext([&] { shown = Val(form.TextLoops.Text()); });
    if (shown < 0) return "TextLoops is below 0";
    double count = 0;
    ResumeNext([&] { count = Val(form.IncrementCounter.Text()); });
    if (count < 0) return "IncrementCounter is below 0";
    return {};
}

} // namespace

Broken BrokenInvariant(FrmPicX& form, bool hasToShowCanvas) {
    for (Control* control : form.Controls())
        if (Broken broken = OfControl(*control)) return broken;
    if (Broken broken = OfCounter(form)) return broken;
    if (hasToShowCanvas && form.Picture().Pixels() != form.PicImage.Picture().Pixels())
        return "the form does not show the canvas";
    return {};
}

} // namespace mirelle::driver
