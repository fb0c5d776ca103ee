// The inner part of the transform: a row of blocks from eight rows of pixels to quantised values.
#pragma once

#include "codecs/jpeg/Frame.h"
#include "forms/FunctionVersions.h"

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
    std::size_t component = 0;                   // 0, 1 or 2
    std::size_t blocks = 0;
};

// Writes 64 values in zig-zag order for each block to `values`, and for each block to `nonZero` which of them
// are not 0. The registers, which the processor has to have, change nothing but the time.
void TransformBlocks(const BlockRow& row, const TransposedFactors& factors, std::int16_t* values,
                     std::uint64_t* nonZero, Registers registers = RegistersInUse());

} // namespace mirelle::jpeg
