// What the benchmarks measure with: a picture of noise, and a time.
#pragma once

#include "forms/Picture.h"

#include <benchmark/benchmark.h>

#include <bit>
#include <chrono>
#include <cstdint>
#include <random>

namespace mirelle {

// The same noise for the same seed, the fourth bytes included.
inline Bitmap Noise(int width, int height, std::uint32_t seed = 1) {
    Bitmap bitmap(width, height);
    std::mt19937 random(seed);
    for (Pixel& pixel : bitmap.Pixels())
        pixel = std::bit_cast<Pixel>(static_cast<std::uint32_t>(random()));
    return bitmap;
}

// How long the work takes, in seconds.
template <class Work>
double Seconds(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    benchmark::ClobberMemory();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace mirelle
