#include "codecs/jpeg/Symbols.h"

#include "codecs/jpeg/Huffman.h"
#include "codecs/jpeg/ScanGroups.h"
#include "codecs/jpeg/Share.h"
#include "forms/RunTimeError.h"

#include <bit>
#include <vector>

namespace mirelle::jpeg {
namespace {

// The least number of blocks that is worth a thread.
constexpr std::size_t kShortestSlice = 4096;

using Counts = std::array<std::uint32_t, 256>;

std::size_t SymbolOfDc(int value, int last) {
    return static_cast<std::size_t>(BitLength(value - last));
}

// Adds what was counted without a check. A component has fewer than 2^31 values, so that only sums over
// components can leave 32 bits.
void Add(const Counts& counted, Frequencies& frequency) {
    for (std::size_t i = 0; i < counted.size(); ++i) {
        const std::int64_t sum = std::int64_t{frequency[i]} + counted[i];
        if (sum > INT32_MAX) throw RunTimeError(ErrorNumber::Overflow);
        frequency[i] = static_cast<std::int32_t>(sum);
    }
}

void CountAcSymbolsOfBlock(const std::int16_t* values, std::uint64_t nonZero, Counts& counts) {
    int last = 0;
    for (std::uint64_t rest = nonZero & ~std::uint64_t{1}; rest != 0; rest &= rest - 1) {
        const int k = std::countr_zero(rest);
        int run = k - last - 1;
        for (; run > 15; run -= 16)
            ++counts[0xF0];
        const int symbol = run * 16 + BitLengthOfNonZero(values[k]);
        ++counts[static_cast<std::size_t>(symbol)];
        last = k;
    }
    if (last != 63) ++counts[0];
}

} // namespace

void CountDcSymbols(const Component& component, Frequencies& frequency) {
    Counts counted{};
    int last = 0;
    for (std::size_t block = 0; block < component.NonZero.Size(); ++block) {
        const int value = component.Coefficients[64 * block];
        ++counted[SymbolOfDc(value, last)];
        last = value;
    }
    Add(counted, frequency);
}

void CountDcSymbolsMCU(const Frame& frame, const Component& component, Frequencies& frequency) {
    Counts counted{};
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
    const Slices slices(component.NonZero.Size(), kShortestSlice);
    std::vector<Counts> counted(slices.Number());
    RunShared(slices, [&](std::size_t slice) {
        Counts counts{};
        for (std::size_t block = slices.Begin(slice); block < slices.End(slice); ++block) {
            CountAcSymbolsOfBlock(&component.Coefficients[64 * block], component.NonZero[block], counts);
        }
        counted[slice] = counts;
    });
    for (const Counts& counts : counted)
        Add(counts, frequency);
}

} // namespace mirelle::jpeg
