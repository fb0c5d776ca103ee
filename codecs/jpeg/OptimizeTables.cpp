#include "codecs/jpeg/OptimizeTables.h"

#include "codecs/jpeg/Huffman.h"
#include "codecs/jpeg/Symbols.h"
#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

namespace mirelle::jpeg {
namespace {

constexpr int kLargestAcSymbol = 255;

int LargestDcSymbol(int precision) {
    return precision == 12 ? 15 : 11;
}

std::int32_t MakeTable(HuffmanTable& table, Frequencies& frequency, int largestSymbol) {
    const Frequencies kept = frequency;
    OptimizeHuffman(table, frequency);
    ExpandHuffman(table, largestSymbol);
    return CountScanBytes(table, kept);
}

} // namespace

std::int32_t OptimizeTables(const Frame& frame, const std::vector<ScanGroup>& groups, HuffmanTables& tables) {
    for (const Component& component : frame.Components) {
        if (component.DcValues.IsEmpty()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
    Long estimate = 0;
    Frequencies frequency{};
    for (std::size_t t = 0; t <= TableOf(frame.Components.size() - 1); ++t) {
        for (const ScanGroup& group : groups) {
            for (std::size_t k = group.first; k <= group.last; ++k) {
                if (TableOf(k) != t) continue;
                if (group.IsInterleaved()) {
                    CountDcSymbolsMCU(frame, frame.Components[k], frequency);
                } else {
                    CountDcSymbols(frame.Components[k], frequency);
                }
            }
        }
        estimate += Long(MakeTable(tables.DcTables[t], frequency, LargestDcSymbol(frame.P)));

        for (std::size_t k = 0; k < frame.Components.size(); ++k) {
            if (TableOf(k) == t) AddSymbols(frame.Components[k].AcStore.Counts(), frequency);
        }
        estimate += Long(MakeTable(tables.AcTables[t], frequency, kLargestAcSymbol));
    }
    return estimate;
}

} // namespace mirelle::jpeg
