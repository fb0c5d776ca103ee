// Blending one surface over another at a constant alpha.
//
// A blend is (source * alpha + destination * (255 - alpha)) / 255, rounded to the nearest whole number, for
// each of the four bytes of a pixel, computed on the destination as it stands.
#pragma once

#include "forms/Picture.h"
#include "forms/PixelArea.h"

#include <cstdint>
#include <span>

namespace mirelle {

// One byte. The quotient by 255 is exact: for v up to 255 * 255 the nearest whole number to v / 255 is
// (w + (w >> 8)) >> 8 with w = v + 128. Everything fits in 16 bits.
constexpr std::uint8_t Blended(std::uint8_t source, std::uint8_t destination, std::uint8_t alpha) {
    const auto w = static_cast<std::uint16_t>(source * alpha + destination * (255 - alpha) + 128);
    return static_cast<std::uint8_t>((w + (w >> 8)) >> 8);
}

// A run of bytes over as many others.
void BlendRow(std::span<std::uint8_t> destination, std::span<const std::uint8_t> source, std::uint8_t alpha);

// Draws `from` of the source over `to` of the destination, clipped to both surfaces. Where the areas differ
// in size the source's is stretched in halftone mode first. An area that holds no pixel, or a negative alpha,
// draws nothing; an alpha above 255 counts as 255.
void AlphaBlend(Bitmap& destination, PixelArea to, const Bitmap& source, PixelArea from, int alpha);

} // namespace mirelle
