// Chooses the colours that serve a picture best.
#pragma once

#include "desktop/encoders/ColourGrid.h"
#include "forms/Picture.h"

#include <vector>

namespace mirelle {

// 1 to `count` colours, the fourth byte 0, chosen so that the squared distances of the bitmap's colours to
// the nearest of them are small. The bitmap is not empty, and `count` is above 32.
std::vector<Pixel> AdaptivePalette(const Bitmap& bitmap, const ColourGrid& grid, std::size_t count);

} // namespace mirelle
