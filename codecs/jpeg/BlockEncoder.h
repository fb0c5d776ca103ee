// Writes blocks as Huffman codes: ITU T.81, F.1.2.
#pragma once

#include "codecs/jpeg/BitString.h"
#include "codecs/jpeg/Frame.h"
#include "codecs/jpeg/Huffman.h"
#include "forms/FunctionVersions.h"

#include <array>
#include <bit>
#include <cstdint>

namespace mirelle::jpeg {

// The codes of a table, ready to be appended. A symbol without a code has no bits but those that follow it.
class SymbolCodes {
public:
    // How many bits follow a symbol.
    static constexpr unsigned OwnLength(std::size_t symbol) { return symbol & 15; }

    explicit SymbolCodes(const HuffmanTable& table) {
        for (std::size_t symbol = 0; symbol < codes_.size(); ++symbol) {
            const unsigned own = OwnLength(symbol);
            codes_[symbol].length = own;
            if (table.Mask[symbol] == 0) continue;
            codes_[symbol] = {static_cast<std::uint32_t>(table.Code[symbol]) << own,
                              table.Size[symbol] + 1 + own};
        }
    }

    void Write(BitString& out, std::size_t symbol, std::uint32_t own = 0) const {
        out.Append(codes_[symbol].bits | own, codes_[symbol].length);
    }

private:
    // With room for the symbol's own bits behind the code.
    struct Code {
        std::uint32_t bits = 0;
        std::uint32_t length = 0;
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

// `lastDc` is the DC value of the component's block before and becomes this one's.
MIRELLE_INLINE void EncodeBlock(BitString& out, int dc, std::span<const AcSymbol> symbols, int& lastDc,
                                const ComponentCodes& codes) {
    out.Reserve(kMostBitsOfBlock);
    const int difference = dc - lastDc;
    lastDc = dc;
    const auto dcSize = static_cast<unsigned>(BitLength(difference));
    codes.dc.Write(out, dcSize, OwnBits(difference, dcSize));
    for (const AcSymbol symbol : symbols)
        codes.ac.Write(out, symbol & 0xFF, symbol >> 8);
}

// A block that the component lacks: no difference, and nothing but an end of block. If no real block has ever
// ended in zeros, that symbol has no code, and nothing is written for it.
inline void EncodeDummyBlock(BitString& out, const ComponentCodes& codes) {
    out.Reserve(kMostBitsOfBlock);
    codes.dc.Write(out, 0);
    codes.ac.Write(out, 0);
}

} // namespace mirelle::jpeg
