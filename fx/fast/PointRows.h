// The point effects on the pixels of one row. `from` and `to` have `pixels` pixels and do not overlap; the
// fourth byte of every result is 0.
#pragma once

#include "forms/Picture.h"
#include "fx/fast/Lanes.h"

#include <array>
#include <cstddef>

namespace mirelle::fast {

void CopyRow(const Pixel* from, Pixel* to, std::size_t pixels);
void InvertRow(const Pixel* from, Pixel* to, std::size_t pixels);
// The last pixel first.
void ReverseRow(const Pixel* from, Pixel* to, std::size_t pixels);
void GreyRow(const Pixel* from, Pixel* to, std::size_t pixels);
// Channels of `from`, 0..3, for channels 0, 1, 2 of `to`.
void SwapRow(const Pixel* from, Pixel* to, std::size_t pixels, const std::array<int, 3>& swap);
// Each byte plus its gain and less its loss, limited to a byte after each.
void ShiftRow(const Pixel* from, Pixel* to, std::size_t pixels, const BlockPattern& gain,
              const BlockPattern& loss);

} // namespace mirelle::fast
