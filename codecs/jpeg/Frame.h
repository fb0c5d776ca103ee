// What the stages of the JPEG encoder hand on to each other: the frame and its components, and the two kinds
// of tables.
#pragma once

#include "codecs/jpeg/AcSymbols.h"
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

struct Component {
    std::int32_t Ci = 0; // identifier written to the file
    std::int32_t Hi = 1; // sampling factors
    std::int32_t Vi = 1;
    std::int32_t Tqi = 0; // index of the quantisation table
    // The quantised values of all blocks, left to right and then top to bottom: the first of each, and the
    // symbols that the others are coded as, which the store holds.
    Array<std::int16_t> DcValues;
    Array<std::span<const AcSymbol>> BlockSymbols;
    AcSymbolStore AcStore;

    std::size_t Blocks() const { return DcValues.Size(); }
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
