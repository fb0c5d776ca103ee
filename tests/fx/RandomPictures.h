// Random pictures that reach the corners of the kernels: sizes from 1 x 1 to 40 x 40, channels near the ends,
// the middle and the root of 32767.
#pragma once

#include "forms/Picture.h"

#include <array>
#include <cstdint>
#include <random>

namespace mirelle::test {

constexpr int kGreatestSide = 40;
constexpr int kAllSizes = kGreatestSide * kGreatestSide;

// Number 0..kAllSizes-1 has each size once; the same number and seed give the same picture.
inline Bitmap RandomPicture(int number, std::uint32_t seed) {
    const int width = number % kGreatestSide + 1;
    const int height = number / kGreatestSide % kGreatestSide + 1;
    std::mt19937 random(seed * 1000003U + static_cast<std::uint32_t>(number));
    constexpr std::array<std::uint8_t, 8> corners{0, 1, 127, 128, 181, 182, 254, 255};
    // How many of 16 channels come from the corners: all, many, few or none.
    constexpr std::array<std::uint32_t, 4> shares{16, 8, 2, 0};
    const std::uint32_t share = shares[random() % shares.size()];
    const auto channel = [&] {
        const std::uint32_t bits = random();
        return (bits >> 8) % 16 < share ? corners[bits >> 12 & 7] : static_cast<std::uint8_t>(bits);
    };
    Bitmap bitmap(width, height);
    for (Pixel& pixel : bitmap.Pixels())
        pixel = {channel(), channel(), channel(), channel()};
    return bitmap;
}

} // namespace mirelle::test
