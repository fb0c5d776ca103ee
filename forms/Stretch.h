// Copies and stretches between bitmaps, as a device context makes them in its halftone mode.
//
// A stretch is a box average: each destination pixel is the mean of the source area under it, for each of the
// four bytes of a pixel by itself. The weights are exact rationals, so the mean is exact and then rounded to
// the nearest whole number; a tie goes up. Beyond the source bitmap's edge the source gives its nearest edge
// pixel, so an area may lie partly or wholly outside of the source. What lies outside of the target is not
// drawn.
//
// Source and target may be the same bitmap as long as the two areas have no pixel in common.
#pragma once

#include "forms/Picture.h"
#include "forms/PixelArea.h"

namespace mirelle {

// Draws `from` of the source over `to` of the target. Nothing is drawn where one of the areas or the source
// holds no pixel. Raises error 5 for an area longer than kLongestStretch on a side, and error 7 where the
// memory for the work can't be had.
void StretchHalftone(const Bitmap& source, const PixelArea& from, Bitmap& target, const PixelArea& to);
// The same, drawn only where `clip` of the target is.
void StretchHalftone(const Bitmap& source, const PixelArea& from, Bitmap& target, const PixelArea& to,
                     const PixelArea& clip);

// Sums of bytes weighted by areas up to this length on a side fit in 64 bits.
constexpr int kLongestStretch = 1 << 27;

} // namespace mirelle
