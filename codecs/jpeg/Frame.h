// What the stages of the JPEG encoder hand on to each other: the frame and its components, and the two kinds
// of tables.
#pragma once

#include "codecs/jpeg/Array.h"

#include <array>
#include <cstdint>
#include <vector>

namespace mirelle::jpeg {

struct QuantTable {
    std::array<std::int16_t, 64> Qk{};    // table values in zig-zag order
    std::array<std::int32_t, 64> Fdtbl{}; // FDCTScale over Qk, rounded, in zig-zag order
};

struct HuffmanTable {
    std::array<std::uint8_t, 16> Bits{};     // number of codes of length 1..16
    std::array<std::uint8_t, 256> HuffVal{}; // symbols in code order
    // By symbol:
    std::array<std::uint8_t, 256> Size{}; // code length minus one
    std::array<std::int32_t, 256> Mask{}; // the top bit of the code, 0 while there is none
    std::array<std::int32_t, 256> Code{}; // the code, -1 while there is none
};

// How often each symbol occurs; the last place belongs to the symbol that OptimizeHuffman reserves.
using Frequencies = std::array<std::int32_t, 257>;

// The same of a component by itself, which has fewer than 2^31 values.
using SymbolCounts = std::array<std::uint32_t, 256>;

struct Component {
    std::int32_t Ci = 0; // identifier written to the file
    std::int32_t Hi = 1; // sampling factors
    std::int32_t Vi = 1;
    std::int32_t Tqi = 0; // index of the quantisation table
    // All blocks, left to right and then top to bottom, each 64 quantised values in zig-zag order.
    Array<std::int16_t> Coefficients;
    // For each block which of its values are not zero: bit k stands for zig-zag position k.
    Array<std::uint64_t> NonZero;
    // The DC value of each block once more, side by side for those who need nothing else of it.
    Array<std::int16_t> DcValues;
    // What the AC values of all blocks need.
    SymbolCounts AcSymbols{};
};

struct Frame {
    std::int32_t P = 8; // sample precision
    std::int32_t Y = 0; // height in pixels
    std::int32_t X = 0; // width in pixels
    std::int32_t Hmax = 1;
    std::int32_t Vmax = 1;
    std::vector<Component> Components; // 1 or 3

    std::int32_t Nf() const { return static_cast<std::int32_t>(Components.size()); }
};

} // namespace mirelle::jpeg
