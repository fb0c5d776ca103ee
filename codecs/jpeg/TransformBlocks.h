// The inner part of the transform: a row of blocks from eight rows of pixels to quantised values.
#pragma once

#include "codecs/jpeg/Frame.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace mirelle::jpeg {

// Quantisation factors in the order in which the transform leaves its outputs: row + 8 * column.
using TransposedFactors = std::array<std::int32_t, 64>;
TransposedFactors Transposed(const QuantTable& table);

// A row of blocks in a component's plane.
struct BlockRow {
    std::array<const std::uint8_t*, 8> pixels{}; // where each of its rows begins: blue, green, red, ...
    std::size_t pixelBytes = 4;                  // 3 or 4
    std::size_t component = 0;
    std::size_t blocks = 0;
};

// Writes 64 values in zig-zag order for each block to `values`, and for each block to `nonZero` which of them
// are not 0.
using TransformBlockRow = void (*)(const BlockRow& row, const TransposedFactors& factors,
                                   std::int16_t* values, std::uint64_t* nonZero);

// The ways in which this processor can do that, the best first. All give the same values.
std::array<TransformBlockRow, 2> WaysToTransform();

} // namespace mirelle::jpeg
