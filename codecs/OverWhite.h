// Pictures that let something shine through come out as if they lay on white paper.
#pragma once

#include "forms/Picture.h"

namespace mirelle {

// The opaque pixel that `pixel` gives over white, its fourth byte (0 clear, 255 solid) taken as its cover.
// The result's fourth byte is 0.
constexpr Pixel OverWhite(Pixel pixel) {
    const auto blended = [cover = pixel.fourth](std::uint8_t colour) {
        return static_cast<std::uint8_t>((colour * cover + 255 * (255 - cover) + 127) / 255);
    };
    return {blended(pixel.blue), blended(pixel.green), blended(pixel.red), 0};
}

} // namespace mirelle
