// The AC values of blocks as the symbols that they are coded as: ITU T.81, F.1.2.2. They are found once,
// right behind the transform; the tables are then made of their counts, and the scans of themselves.
#pragma once

#include "codecs/jpeg/Array.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace mirelle::jpeg {

// A Huffman symbol in the lowest byte, sixteen times the run of zeros plus the number of the value's own
// bits, and those bits above it.
using AcSymbol = std::uint32_t;

inline constexpr AcSymbol kEndOfBlock = 0x00;
inline constexpr AcSymbol kSixteenZeros = 0xF0;

// How often each symbol occurs. A picture has fewer than 2^31 values.
using SymbolCounts = std::array<std::uint32_t, 256>;

class AcSymbolStore {
public:
    // The symbols of a block: 64 values in zig-zag order, all above -32768, and a bit for each that is not 0.
    // They stay where they are as long as the store, or the one that it is joined to. Where the memory can't
    // be had it raises error 7 or throws std::bad_alloc.
    std::span<const AcSymbol> Add(const std::int16_t* values, std::uint64_t nonZero);
    // The same for blocks one behind the other: those of the first go to symbols[0].
    void AddAll(const std::int16_t* values, std::span<const std::uint64_t> nonZero,
                std::span<const AcSymbol>* symbols);

    // Takes over all that the other holds.
    void Join(AcSymbolStore&& other);

    const SymbolCounts& Counts() const { return counts_; }

private:
    inline std::span<const AcSymbol> AddBlock(const std::int16_t* values, std::uint64_t nonZero);

    std::vector<Array<AcSymbol>> chunks_;
    std::size_t used_ = 0; // of the last chunk
    SymbolCounts counts_{};
};

} // namespace mirelle::jpeg
