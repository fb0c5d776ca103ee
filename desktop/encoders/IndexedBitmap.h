// Pictures of at most 256 colours, as GIF files hold them.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace mirelle {

struct IndexedBitmap {
    int width = 0;
    int height = 0;
    std::vector<Pixel> palette;        // 1 to 256 colours, the fourth byte 0
    std::vector<std::uint8_t> numbers; // of the palette's colours, rows from the top
};

// The bitmap as it is; nothing where it has more than 256 colours.
std::optional<IndexedBitmap> IndexExactly(const Bitmap& bitmap);

// The bitmap in a palette of 256 colours that is chosen for it. What a pixel's colour lacks is passed on to
// its neighbours (Floyd and Steinberg, "An Adaptive Algorithm for Spatial Grey Scale", 1976; every other row
// from right to left), so that the eye, which mixes neighbours, sees the colours of the bitmap without bands.
IndexedBitmap IndexByDithering(const Bitmap& bitmap);

} // namespace mirelle
