// The Huffman tables of a frame, made for its own symbols.
#pragma once

#include "codecs/jpeg/Frame.h"
#include "codecs/jpeg/ScanGroups.h"

namespace mirelle::jpeg {

// Table 0 belongs to the first component, table 1 to the others.
struct HuffmanTables {
    std::array<HuffmanTable, 2> DcTables;
    std::array<HuffmanTable, 2> AcTables;
};

// Makes the tables that the components need, and gives an estimate of the scans' bytes that is good enough
// for the size of a buffer. Raises error 9 for a component without blocks, "Bad Huffman Table", error 6
// where a number leaves 32 bits.
std::int32_t OptimizeTables(const Frame& frame, const std::vector<ScanGroup>& groups, HuffmanTables& tables);

} // namespace mirelle::jpeg
