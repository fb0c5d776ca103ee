#include "gradient/FormGradient.h"

#include "app/FrmPicX.h"

#include <algorithm>

namespace mirelle {
namespace {

constexpr double kRampSteps = 1024;
constexpr int kLastRow = 1023;
constexpr int kLastColumn = 1522;
constexpr int kStepAtTop = 410;
constexpr int kStepAtLeft = -14;

// A larger slider value means a darker colour.
std::int16_t ComponentOf(const ScrollBar& slider) {
    return ToInteger(256 - slider.Value() / 4.0);
}

} // namespace

Color FormGradientColor(const GradientColors& colors, std::int16_t step) {
    const auto component = [step](std::int16_t start, std::int16_t finish) {
        return ToInteger(start - step * ((start - finish) / kRampSteps));
    };
    return RGB(component(colors.red1, colors.red2), component(colors.green1, colors.green2),
               component(colors.blue1, colors.blue2));
}

void PaintFormGradient(Bitmap& surface, const GradientColors& colors, bool across) {
    const auto colorAt = [&colors](int step) {
        return PixelOf(FormGradientColor(colors, static_cast<std::int16_t>(step)));
    };
    if (surface.IsEmpty()) return;
    if (across) {
        // Box i ends at column i - 1 and covers all before it, so column c shows box c + 1.
        const int columns = std::min(surface.Width(), kLastColumn + 1);
        for (int column = 0; column < columns; ++column)
            surface.At(column, 0) = colorAt(column + 1 + kStepAtLeft);
        const auto first = surface.Row(0).first(static_cast<std::size_t>(columns));
        for (int y = 1; y < surface.Height(); ++y)
            std::ranges::copy(first, surface.Row(y).begin());
        return;
    }
    // Box i holds rows i - 1 and i, so row y shows box y + 1, and the last row the last box.
    const int rows = std::min(surface.Height(), kLastRow + 1);
    for (int row = 0; row < rows; ++row) {
        std::ranges::fill(surface.Row(row), colorAt(std::min(row + 1, kLastRow) + kStepAtTop));
    }
}

FormGradient::FormGradient(FrmPicX& form) : form_(form) {
    for (ScrollBar* slider : {&form_.RS, &form_.GS, &form_.BS, &form_.RF, &form_.GF, &form_.BF}) {
        for (Event<>* event : {&slider->Click, &slider->Change}) {
            event->Connect([this] { ApplyFormGradient(); });
        }
    }
}

void FormGradient::ApplyFormGradient() {
    form_.Cls();
    form_.RStart = ComponentOf(form_.RS);
    form_.GStart = ComponentOf(form_.GS);
    form_.BStart = ComponentOf(form_.BS);
    form_.RFinish = ComponentOf(form_.RF);
    form_.GFinish = ComponentOf(form_.GF);
    form_.BFinish = ComponentOf(form_.BF);
    form_.SetScaleModePixels();
    const GradientColors colors{form_.RStart,  form_.GStart,  form_.BStart,
                                form_.RFinish, form_.GFinish, form_.BFinish};
    ResumeNext([&] { PaintFormGradient(form_.Paint(), colors, form_.ckFormDirection.Value == kChecked); });
    // PicImage is painted alike, but nothing of that is ever seen: the form's drawing takes its place at
    // once.
    ResumeNext([this] { form_.PicImage.Picture = form_.Image(); });
    form_.PicImage.Refresh();
}

} // namespace mirelle
