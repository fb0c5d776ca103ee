// The form gradient: two colours from six sliders, painted over the form so that it can be sampled, and the
// small controls that feed the image gradient.
#pragma once

#include "forms/Picture.h"

#include <cstdint>

namespace mirelle {

class FrmPicX;
class PictureBox;

struct GradientColors {
    std::int16_t red1 = 0, green1 = 0, blue1 = 0; // the start
    std::int16_t red2 = 0, green2 = 0, blue2 = 0; // the finish
};

// Paints the gradient over a surface of any size: rows 0 to 1023, or columns 0 to 1522 where it runs across;
// what lies beyond is left as it is. The ramp is in 1024 steps; it starts 410 steps in, or 14 ahead where it
// runs across, and overshoots the finish.
void PaintFormGradient(Bitmap& surface, const GradientColors& colors, bool across);

// The colour of a step of the ramp, counted from the start colour.
Color FormGradientColor(const GradientColors& colors, std::int16_t step);

class FormGradient {
public:
    explicit FormGradient(FrmPicX& form);

private:
    void ApplyFormGradient();

    FrmPicX& form_;
};

} // namespace mirelle
