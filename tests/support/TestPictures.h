// Bitmaps for tests, each computed from its size alone so that every run sees the same one.
#pragma once

#include "forms/Picture.h"

#include <cmath>
#include <cstdint>
#include <random>

namespace mirelle::test {

// Every byte of every pixel at random.
inline Bitmap NoiseBitmap(int width, int height, std::uint32_t seed) {
    Bitmap bitmap(width, height);
    std::mt19937 random(seed);
    for (Pixel& pixel : bitmap.Pixels()) {
        const std::uint32_t bits = random();
        pixel = {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
                 static_cast<std::uint8_t>(bits >> 16), static_cast<std::uint8_t>(bits >> 24)};
    }
    return bitmap;
}

// Slow waves, another one for each colour, with periods of `period` pixels and more.
inline Bitmap SmoothBitmap(int width, int height, double period = 40.0) {
    Bitmap bitmap(width, height);
    const auto wave = [](double phase) { return static_cast<std::uint8_t>(127.5 + 110.0 * std::sin(phase)); };
    const double step = 6.283185307179586 / period;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            bitmap.At(x, y) = {wave(step * 0.7 * x), wave(step * (0.5 * x + 0.6 * y)), wave(step * 0.8 * y),
                               0};
        }
    }
    return bitmap;
}

} // namespace mirelle::test
