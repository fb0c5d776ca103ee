#include "codecs/jpeg/Symbols.h"

#include "codecs/jpeg/Huffman.h"
#include "codecs/jpeg/ScanGroups.h"
#include "forms/RunTimeError.h"

namespace mirelle::jpeg {
namespace {

std::size_t SymbolOfDc(int value, int last) {
    return static_cast<std::size_t>(BitLength(value - last));
}

} // namespace

void AddSymbols(const SymbolCounts& counts, Frequencies& frequency) {
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const std::int64_t sum = std::int64_t{frequency[i]} + counts[i];
        if (sum > INT32_MAX) throw RunTimeError(ErrorNumber::Overflow);
        frequency[i] = static_cast<std::int32_t>(sum);
    }
}

void CountDcSymbols(const Component& component, Frequencies& frequency) {
    SymbolCounts counted{};
    int last = 0;
    for (std::size_t block = 0; block < component.DcValues.Size(); ++block) {
        const int value = component.DcValues[block];
        ++counted[SymbolOfDc(value, last)];
        last = value;
    }
    AddSymbols(counted, frequency);
}

void CountDcSymbolsMCU(const Frame& frame, const Component& component, Frequencies& frequency) {
    SymbolCounts counted{};
    const InterleavedBlocks blocks(frame, component);
    const McuCount mcus = CountMcus(frame);
    int last = 0;
    const auto count = [&](std::size_t block) {
        const int value = block == kDummyBlock ? last : component.DcValues[block];
        ++counted[SymbolOfDc(value, last)];
        last = value;
    };
    for (std::int32_t row = 0; row < mcus.down; ++row) {
        for (std::int32_t column = 0; column < mcus.across; ++column)
            blocks.ForEachInMcu(row, column, count);
    }
    AddSymbols(counted, frequency);
}

} // namespace mirelle::jpeg
