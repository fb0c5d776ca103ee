#include "codecs/jpeg/Symbols.h"

#include "codecs/jpeg/Huffman.h"
#include "codecs/jpeg/ScanGroups.h"
#include "forms/RunTimeError.h"

#include <bit>

namespace mirelle::jpeg {
namespace {

std::size_t SymbolOfDc(int value, int last) {
    return static_cast<std::size_t>(BitLength(value - last));
}

// Adds what was counted without a check. A component has fewer than 2^31 values, so that only sums over
// components can leave 32 bits.
void Add(const std::array<std::uint32_t, 256>& counted, Frequencies& frequency) {
    for (std::size_t i = 0; i < counted.size(); ++i) {
        const std::int64_t sum = std::int64_t{frequency[i]} + counted[i];
        if (sum > INT32_MAX) throw RunTimeError(ErrorNumber::Overflow);
        frequency[i] = static_cast<std::int32_t>(sum);
    }
}

} // namespace

void CountDcSymbols(const Component& component, Frequencies& frequency) {
    std::array<std::uint32_t, 256> counted{};
    int last = 0;
    for (std::size_t block = 0; block < component.NonZero.Size(); ++block) {
        const int value = component.Coefficients[64 * block];
        ++counted[SymbolOfDc(value, last)];
        last = value;
    }
    Add(counted, frequency);
}

void CountDcSymbolsMCU(const Frame& frame, const Component& component, Frequencies& frequency) {
    std::array<std::uint32_t, 256> counted{};
    const InterleavedBlocks blocks(frame, component);
    const McuCount mcus = CountMcus(frame);
    int last = 0;
    const auto count = [&](std::size_t block) {
        const int value = block == kDummyBlock ? last : component.Coefficients[64 * block];
        ++counted[SymbolOfDc(value, last)];
        last = value;
    };
    for (std::int32_t row = 0; row < mcus.down; ++row) {
        for (std::int32_t column = 0; column < mcus.across; ++column)
            blocks.ForEachInMcu(row, column, count);
    }
    Add(counted, frequency);
}

void CountAcSymbols(const Component& component, Frequencies& frequency) {
    std::array<std::uint32_t, 256> counted{};
    for (std::size_t block = 0; block < component.NonZero.Size(); ++block) {
        const std::int16_t* values = &component.Coefficients[64 * block];
        int last = 0;
        for (std::uint64_t rest = component.NonZero[block] & ~std::uint64_t{1}; rest != 0; rest &= rest - 1) {
            const int k = std::countr_zero(rest);
            const int run = k - last - 1;
            counted[0xF0] += static_cast<std::uint32_t>(run / 16);
            ++counted[static_cast<std::size_t>(run % 16 * 16 + BitLength(values[k]))];
            last = k;
        }
        if (last != 63) ++counted[0];
    }
    Add(counted, frequency);
}

} // namespace mirelle::jpeg
