#include "codecs/jpeg/Huffman.h"

#include "codecs/jpeg/Errors.h"
#include "forms/Numbers.h"

#include <algorithm>
#include <limits>

namespace mirelle::jpeg {
namespace {

constexpr int kReserved = 256;
constexpr int kLongestCode = 16;

using CodeSizes = std::array<int, 257>;

std::size_t At(int index) {
    return static_cast<std::size_t>(index);
}

struct Smallest {
    int c1 = -1; // the symbol with the smallest frequency
    int c2 = -1; // the one with the next
};

// One pass; among equal frequencies the higher symbol is the smaller one.
Smallest TwoSmallest(const Frequencies& frequency) {
    Smallest found;
    std::int32_t m1 = std::numeric_limits<std::int32_t>::max();
    std::int32_t m2 = m1;
    for (int i = 0; i <= kReserved; ++i) {
        const std::int32_t f = frequency[At(i)];
        if (f == 0 || f > m2) continue;
        if (f > m1) {
            m2 = f;
            found.c2 = i;
        } else {
            found.c2 = found.c1;
            m2 = m1;
            m1 = f;
            found.c1 = i;
        }
    }
    return found;
}

// T.81 Figure K.1: merges the two rarest until one is left, and lengthens the codes of all that take part.
CodeSizes CodeSizesFor(Frequencies& frequency) {
    CodeSizes codesize{};
    std::array<int, 257> others{};
    others.fill(-1);
    const auto lengthenChain = [&](int i) {
        ++codesize[At(i)];
        while (others[At(i)] != -1) {
            i = others[At(i)];
            ++codesize[At(i)];
        }
        return i;
    };
    frequency[kReserved] = 1;
    while (true) {
        const auto [c1, c2] = TwoSmallest(frequency);
        if (c2 == -1) {
            frequency[At(c1)] = 0;
            return codesize;
        }
        frequency[At(c1)] = Long(frequency[At(c1)]) + Long(frequency[At(c2)]);
        frequency[At(c2)] = 0;
        others[At(lengthenChain(c1))] = c2;
        lengthenChain(c2);
    }
}

// T.81 Figure K.3: takes pairs of codes that are too long from the end of the tree and hangs them in below a
// shorter code.
void LimitCodeSizes(CodeSizes& count, int longest) {
    for (int i = longest; i > kLongestCode; --i) {
        while (count[At(i)] > 0) {
            int j = i - 2;
            while (j > 0 && count[At(j)] == 0)
                --j;
            count[At(i)] -= 2;
            count[At(i - 1)] += 1;
            count[At(j + 1)] += 2;
            count[At(j)] -= 1;
        }
    }
}

void Require(bool good) {
    if (!good) RaiseCodecFailure(kBadHuffmanTable);
}

} // namespace

void OptimizeHuffman(HuffmanTable& table, Frequencies& frequency) {
    const CodeSizes codesize = CodeSizesFor(frequency);
    CodeSizes count{};
    for (const int size : codesize) {
        if (size != 0) ++count[At(size)];
    }
    const int longest = *std::max_element(codesize.begin(), codesize.end());
    LimitCodeSizes(count, longest);
    count[At(std::min(longest, kLongestCode))] -= 1;
    for (int l = 1; l <= kLongestCode; ++l)
        table.Bits[At(l - 1)] = static_cast<std::uint8_t>(count[At(l)]);

    std::size_t k = 0;
    for (int size = 1; size <= longest; ++size) {
        for (int symbol = 0; symbol < kReserved; ++symbol) {
            if (codesize[At(symbol)] == size) table.HuffVal[k++] = static_cast<std::uint8_t>(symbol);
        }
    }
}

void ExpandHuffman(HuffmanTable& table, int largestSymbol) {
    table.Size.fill(0);
    table.Mask.fill(0);
    table.Code.fill(-1);
    std::int32_t mask = 1;
    std::int32_t code = 0;
    std::size_t k = 0;
    for (std::size_t l = 0; l < table.Bits.size(); ++l) {
        const std::size_t end = k + table.Bits[l];
        Require(end <= table.HuffVal.size());
        for (; k < end; ++k, ++code) {
            const std::uint8_t symbol = table.HuffVal[k];
            Require(symbol <= largestSymbol && table.Code[symbol] == -1);
            table.Size[symbol] = static_cast<std::uint8_t>(l);
            table.Mask[symbol] = mask;
            table.Code[symbol] = code;
        }
        mask *= 2;
        Require(code < mask);
        code *= 2;
    }
    Require(k != 0);
}

std::int32_t CountScanBytes(const HuffmanTable& table, const Frequencies& frequency) {
    Long bits = 0;
    for (int symbol = 0; symbol < kReserved; ++symbol) {
        if (frequency[At(symbol)] == 0) continue;
        bits += Long(frequency[At(symbol)]) * Long(table.Size[At(symbol)] + BitLength(symbol));
    }
    return (bits + Long(7)) / Long(8);
}

} // namespace mirelle::jpeg
