// What point effects and kernels do to a run of pixels, a row or a whole picture, each pixel for itself.
// `from` and `to` have `pixels` pixels and do not overlap; the fourth byte of every result is 0.
#pragma once

#include "forms/Picture.h"
#include "fx/fast/Lanes.h"

#include <array>
#include <cstddef>

namespace mirelle::fast {

void CopyPixels(const Pixel* from, Pixel* to, std::size_t pixels);
void InvertPixels(const Pixel* from, Pixel* to, std::size_t pixels);
// The last pixel first.
void ReversePixels(const Pixel* from, Pixel* to, std::size_t pixels);
void GreyPixels(const Pixel* from, Pixel* to, std::size_t pixels);
// Channels of `from`, 0..3, for channels 0, 1, 2 of `to`.
void ExchangeChannels(const Pixel* from, Pixel* to, std::size_t pixels, const std::array<int, 3>& swap);

// What is added to channels, byte by byte: what each gains and what it loses. One of the two is 0.
struct ChannelShift {
    BlockPattern gain;
    BlockPattern loss;

    // From amounts, of which no more than 255 counts.
    static ChannelShift Of(int blue, int green, int red);
};
// Each channel moved by its amount, limited to a byte.
void ShiftPixels(const Pixel* from, Pixel* to, std::size_t pixels, const ChannelShift& shift);

} // namespace mirelle::fast
