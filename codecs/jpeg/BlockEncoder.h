// Writes blocks as Huffman codes: ITU T.81, F.1.2.
#pragma once

#include "codecs/jpeg/BitString.h"
#include "codecs/jpeg/Frame.h"
#include "codecs/jpeg/Huffman.h"

#include <array>
#include <bit>
#include <cstdint>

namespace mirelle::jpeg {

// The codes of a table, ready to be appended. A symbol without a code has no bits at all.
class SymbolCodes {
public:
    explicit SymbolCodes(const HuffmanTable& table) {
        for (std::size_t symbol = 0; symbol < codes_.size(); ++symbol) {
            if (table.Mask[symbol] == 0) continue;
            codes_[symbol] = {static_cast<std::uint16_t>(table.Code[symbol]),
                              static_cast<std::uint16_t>(table.Size[symbol] + 1)};
        }
    }

    void Write(BitString& out, std::size_t symbol) const {
        out.Append(codes_[symbol].bits, codes_[symbol].length);
    }
    // The symbol and then the value's own `size` bits, those of value - 1 for a negative one.
    void WriteWithValue(BitString& out, std::size_t symbol, int value, unsigned size) const {
        const std::uint32_t own = static_cast<std::uint32_t>(value + (value >> 31)) & ((1U << size) - 1);
        const std::uint32_t code = codes_[symbol].bits;
        out.Append(code << size | own, codes_[symbol].length + size);
    }

private:
    struct Code {
        std::uint16_t bits = 0;
        std::uint16_t length = 0;
    };
    std::array<Code, 256> codes_{};
};

// No block takes more bits than 64 * 32: 64 values with codes of 16 bits and 16 bits of their own, and the
// symbols of long runs, of which each stands for sixteen values.
inline constexpr std::size_t kMostBitsOfBlock = 2048;

struct ComponentCodes {
    SymbolCodes dc;
    SymbolCodes ac;
};

// `values` are 64 in zig-zag order, `nonZero` has a bit for each that is not 0. `lastDc` is the DC value of
// the component's block before and becomes this one's.
inline void EncodeBlock(BitString& out, const std::int16_t* values, std::uint64_t nonZero, int& lastDc,
                        const ComponentCodes& codes) {
    out.Reserve(kMostBitsOfBlock);
    const int difference = values[0] - lastDc;
    lastDc = values[0];
    const auto dcSize = static_cast<unsigned>(BitLength(difference));
    codes.dc.WriteWithValue(out, dcSize, difference, dcSize);

    int last = 0;
    for (std::uint64_t rest = nonZero & ~std::uint64_t{1}; rest != 0; rest &= rest - 1) {
        const int k = std::countr_zero(rest);
        int run = k - last - 1;
        for (; run > 15; run -= 16)
            codes.ac.Write(out, 0xF0);
        const int value = values[k];
        const auto size = static_cast<unsigned>(BitLengthOfNonZero(value));
        codes.ac.WriteWithValue(out, static_cast<std::size_t>(run) * 16 + size, value, size);
        last = k;
    }
    if (last != 63) codes.ac.Write(out, 0);
}

// A block that the component lacks: no difference, and nothing but an end of block. If no real block has ever
// ended in zeros, that symbol has no code, and nothing is written for it.
inline void EncodeDummyBlock(BitString& out, const ComponentCodes& codes) {
    out.Reserve(kMostBitsOfBlock);
    codes.dc.Write(out, 0);
    codes.ac.Write(out, 0);
}

} // namespace mirelle::jpeg
