// Counts how often a component's blocks need each Huffman symbol: ITU T.81, F.1.2.
#pragma once

#include "codecs/jpeg/Frame.h"

namespace mirelle::jpeg {

// The differences of neighbouring DC values in the order of the blocks.
void CountDcSymbols(const Component& component, Frequencies& frequency);

// The same in the order of an interleaved scan; a dummy block counts as no difference.
void CountDcSymbolsMCU(const Frame& frame, const Component& component, Frequencies& frequency);

// Runs and values of the AC values. Dummy blocks are not counted.
void CountAcSymbols(const Component& component, Frequencies& frequency);

} // namespace mirelle::jpeg
