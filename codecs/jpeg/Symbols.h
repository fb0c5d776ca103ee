// Counts how often a component's blocks need each Huffman symbol: ITU T.81, F.1.2. What dummy blocks need of
// the AC symbols is not counted.
#pragma once

#include "codecs/jpeg/Frame.h"

namespace mirelle::jpeg {

// Adds counts to frequencies. Raises error 6 where a sum leaves 32 bits.
void AddSymbols(const SymbolCounts& counts, Frequencies& frequency);

// The differences of neighbouring DC values in the order of the blocks.
void CountDcSymbols(const Component& component, Frequencies& frequency);

// The same in the order of an interleaved scan; a dummy block counts as no difference.
void CountDcSymbolsMCU(const Frame& frame, const Component& component, Frequencies& frequency);

} // namespace mirelle::jpeg
