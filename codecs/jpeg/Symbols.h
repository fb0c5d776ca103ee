// Counts how often a component's blocks need each Huffman symbol: ITU T.81, F.1.2.
#pragma once

#include "codecs/jpeg/Frame.h"

namespace mirelle::jpeg {

// Runs and values of one block's AC values: 64 values in zig-zag order, and a bit for each that is not 0.
void CountAcSymbols(const std::int16_t* values, std::uint64_t nonZero, SymbolCounts& counts);

// Adds counts to frequencies; what dummy blocks need is not counted. Raises error 6 where a sum leaves 32
// bits.
void AddSymbols(const SymbolCounts& counts, Frequencies& frequency);

// The differences of neighbouring DC values in the order of the blocks.
void CountDcSymbols(const Component& component, Frequencies& frequency);

// The same in the order of an interleaved scan; a dummy block counts as no difference.
void CountDcSymbolsMCU(const Frame& frame, const Component& component, Frequencies& frequency);

} // namespace mirelle::jpeg
