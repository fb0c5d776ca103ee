#include "codecs/jpeg/AcSymbols.h"

#include "codecs/jpeg/Huffman.h"
#include "forms/FunctionVersions.h"

#include <bit>
#include <iterator>

namespace mirelle::jpeg {
namespace {

// 63 values, or fewer and an end of block.
constexpr std::size_t kMostSymbolsOfBlock = 63;
constexpr std::size_t kChunk = 1 << 14;

AcSymbol SymbolOf(int run, int value) {
    const int size = BitLengthOfNonZero(value);
    return static_cast<AcSymbol>(run * 16 + size) | OwnBits(value, static_cast<unsigned>(size)) << 8;
}

} // namespace

MIRELLE_INLINE std::span<const AcSymbol> AcSymbolStore::AddBlock(const std::int16_t* values,
                                                                 std::uint64_t nonZero) {
    if (chunks_.empty() || kChunk - used_ < kMostSymbolsOfBlock) {
        chunks_.emplace_back(kChunk);
        used_ = 0;
    }
    AcSymbol* const first = chunks_.back().Data() + used_;
    AcSymbol* next = first;
    const auto add = [&](AcSymbol symbol) {
        ++counts_[symbol & 0xFF];
        *next++ = symbol;
    };
    int last = 0;
    for (std::uint64_t rest = nonZero & ~std::uint64_t{1}; rest != 0; rest &= rest - 1) {
        const int k = std::countr_zero(rest);
        int run = k - last - 1;
        for (; run > 15; run -= 16)
            add(kSixteenZeros);
        add(SymbolOf(run, values[k]));
        last = k;
    }
    if (last != 63) add(kEndOfBlock);
    used_ += static_cast<std::size_t>(next - first);
    return {first, next};
}

std::span<const AcSymbol> AcSymbolStore::Add(const std::int16_t* values, std::uint64_t nonZero) {
    return AddBlock(values, nonZero);
}

void AcSymbolStore::AddAll(const std::int16_t* values, std::span<const std::uint64_t> nonZero,
                           std::span<const AcSymbol>* symbols) {
    InBestVersion<Registers::Of32Bytes>([=, this]() MIRELLE_LAMBDA {
        for (std::size_t block = 0; block < nonZero.size(); ++block)
            symbols[block] = AddBlock(values + 64 * block, nonZero[block]);
    });
}

void AcSymbolStore::Join(AcSymbolStore&& other) {
    // Before the own ones: the last chunk stays the one that is being filled, the other's where there is no
    // own.
    if (chunks_.empty()) used_ = other.used_;
    chunks_.insert(chunks_.begin(), std::move_iterator(other.chunks_.begin()),
                   std::move_iterator(other.chunks_.end()));
    for (std::size_t symbol = 0; symbol < counts_.size(); ++symbol)
        counts_[symbol] += other.counts_[symbol];
    other = {};
}

} // namespace mirelle::jpeg
