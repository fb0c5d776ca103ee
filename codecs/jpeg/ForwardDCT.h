// The forward transform of an 8x8 block: a lifting scheme of shifts and additions on 32-bit integers, first
// over the columns and then over the rows. Its outputs are the cosine transform's but for a factor of their
// own each (FDCTScale). With 24-bit inputs, as the colour conversion gives them, nothing leaves 32 bits: an
// output of one direction is at most 8 times the largest input, so 64 times after both.
//
// Every division truncates toward zero. That makes the transform different from one that shifts, and it is
// part of the result to the bit.
#pragma once

#include "forms/FunctionVersions.h"

#include <cstddef>
#include <cstdint>

namespace mirelle::jpeg {

// Eight lanes side by side; value[i][lane].
struct Lanes {
    alignas(32) std::int32_t value[8][8];
};

// One direction: transforms the eight values of each lane by themselves. The loop's body has no branch and no
// call, so that the compiler does several lanes at once.
MIRELLE_INLINE void TransformLanes(Lanes& lanes) {
    for (std::size_t lane = 0; lane < 8; ++lane) {
        const auto x = [&](std::size_t i) -> std::int32_t& { return lanes.value[i][lane]; };
        const std::int32_t a0 = x(0) + x(7), a7 = x(0) - x(7);
        const std::int32_t a1 = x(1) + x(6), a6 = x(1) - x(6);
        const std::int32_t a2 = x(2) + x(5), a5 = x(2) - x(5);
        const std::int32_t a3 = x(3) + x(4), a4 = x(3) - x(4);

        // Even outputs.
        const std::int32_t s0 = a0 + a3, d0 = a0 - a3;
        const std::int32_t s1 = a1 + a2, d1 = a1 - a2;
        const std::int32_t y0 = s0 + s1;
        const std::int32_t y4 = y0 / 2 - s1;
        const std::int32_t y6 = d0 / 8 + d0 / 4 + d0 / 32 - d1;
        const std::int32_t y2 = d0 - (y6 / 16 + y6 / 4 + y6 / 32);

        // Odd outputs: two rotations in three lifting steps each, then sums.
        const std::int32_t b = a7 - (a4 / 4 + a4 / 32 + a4 / 64);
        const std::int32_t c = a4 + (b / 16 + b / 2);
        const std::int32_t e = b - (c / 4 + c / 32 + c / 64);
        const std::int32_t f = a6 - (a5 / 32 + a5 / 16);
        const std::int32_t g = a5 + (f / 8 + f / 16);
        const std::int32_t h = f - (g / 32 + g / 16);
        const std::int32_t u = c + h;
        const std::int32_t y1 = (e + g) + u;

        x(0) = y0;
        x(1) = y1;
        x(2) = y2;
        x(3) = e - g;
        x(4) = y4;
        x(5) = c - h;
        x(6) = y6;
        x(7) = y1 / 2 - u;
    }
}

MIRELLE_INLINE void Transpose(const Lanes& from, Lanes& to) {
    for (std::size_t i = 0; i < 8; ++i) {
        for (std::size_t j = 0; j < 8; ++j)
            to.value[j][i] = from.value[i][j];
    }
}

// From value[row][column] to value[column][row]: the result comes transposed.
MIRELLE_INLINE void ForwardDCT(Lanes& block) {
    TransformLanes(block);
    Lanes across;
    Transpose(block, across);
    TransformLanes(across);
    block = across;
}

} // namespace mirelle::jpeg
