// The colour chart of the pixel palette: hues across, lightness down, and a row of greys at its foot.
#pragma once

#include "forms/Picture.h"

namespace mirelle {

constexpr int kColorChartWidth = 256;
constexpr int kColorChartHeight = 208;

Picture MakeColorChart();

} // namespace mirelle
