// Small pictures that show what each effect of the "Image FX" panel does: a sample, and the sample as the
// effect itself leaves it.
#pragma once

#include "forms/Picture.h"

#include <string_view>

namespace mirelle {

// The sample: a landscape of many hues, light and dark, with edges and without symmetry, drawn to a square of
// `side` pixels, above 0. Its fourth bytes are 0.
Bitmap EffectSample(int side);

// Whether a click on that control changes a picture.
bool HasEffectSample(std::string_view control);
// The sample after a click on that control, once, and contrast at the percent that its question proposes.
// Empty for a control that has no effect. Nothing is kept: whoever shows it again and again does that.
Bitmap SampleAfter(std::string_view control, int side);

} // namespace mirelle
