#include "forms/Numbers.h"
#include "forms/RunTimeError.h"
#include "tests/codecs/reference/PlainJpeg.h"

#include <cmath>
#include <cstdlib>

namespace mirelle::reference {

// clang-format off
const std::array<int, 64> kNaturalLuminance = {
    16, 11, 10, 16,  24,  40,  51,  61,
    12, 12, 14, 19,  26,  58,  60,  55,
    14, 13, 16, 24,  40,  57,  69,  56,
    14, 17, 22, 29,  51,  87,  80,  62,
    18, 22, 37, 56,  68, 109, 103,  77,
    24, 35, 55, 64,  81, 104, 113,  92,
    49, 64, 78, 87, 103, 121, 120, 101,
    72, 92, 95, 98, 112, 100, 103,  99,
};
const std::array<int, 64> kNaturalChrominance = {
    17, 18, 24, 47, 99, 99, 99, 99,
    18, 21, 26, 66, 99, 99, 99, 99,
    24, 26, 56, 99, 99, 99, 99, 99,
    47, 66, 99, 99, 99, 99, 99, 99,
    99, 99, 99, 99, 99, 99, 99, 99,
    99, 99, 99, 99, 99, 99, 99, 99,
    99, 99, 99, 99, 99, 99, 99, 99,
    99, 99, 99, 99, 99, 99, 99, 99,
};
// clang-format on

// Along each diagonal, up to the right and down to the left by turns; at an edge to the next diagonal.
std::array<int, 64> WalkedZigZag() {
    std::array<int, 64> zigZag{};
    int column = 0;
    int row = 0;
    int step = 1;
    for (int position = 0; position < 64; ++position) {
        zigZag[static_cast<std::size_t>(column + 8 * row)] = position;
        const int nextColumn = column + step;
        const int nextRow = row - step;
        if (nextColumn >= 0 && nextColumn < 8 && nextRow >= 0 && nextRow < 8) {
            column = nextColumn;
            row = nextRow;
            continue;
        }
        if (step == 1) {
            ++(column < 7 ? column : row);
        } else {
            ++(row < 7 ? row : column);
        }
        step = -step;
    }
    return zigZag;
}

// The lifting steps leave each output of one direction at a norm of its own: a whole factor for the even
// outputs 0 and 4, factors of sin(pi/8) for 2 and 6, of sqrt(2) for the odd ones.
std::array<std::int32_t, 64> ComputedFdctScale() {
    const double eighth = std::sin(std::acos(-1.0) / 8);
    const std::array<double, 8> norm = {1, 1, 4 * eighth, std::sqrt(2.0), 2, std::sqrt(2.0), 0.5 / eighth, 2};
    std::array<std::int32_t, 64> scale{};
    for (std::size_t n = 0; n < 64; ++n) {
        scale[n] = static_cast<std::int32_t>(std::lround(16384.0 * norm[n % 8] * norm[n / 8]));
    }
    return scale;
}

int BitLength(int value) {
    int length = 0;
    for (int rest = std::abs(value); rest > 0; rest /= 2)
        ++length;
    return length;
}

void ScaleQuantTable(QuantRecord& table, int precision) {
    const auto zigZag = WalkedZigZag();
    const auto scale = ComputedFdctScale();
    for (std::size_t n = 0; n < 64; ++n) {
        const auto z = static_cast<std::size_t>(zigZag[n]);
        const int qk = table.Qk[z];
        if (qk < 1 || qk > (precision == 12 ? 65535 : 255)) {
            throw RunTimeError(ErrorNumber::CodecFailure, "Bad Quantization Table");
        }
        table.Fdtbl[z] = (scale[n] + qk / 2) / qk;
    }
}

void OptimizeHuffman(HuffmanRecord& table, Frequencies& frequency) {
    std::array<int, 257> codesize{};
    std::array<int, 257> others{};
    std::array<int, 257> count{};
    others.fill(-1);
    frequency[256] = 1;
    while (true) {
        std::int32_t m1 = 2147483647;
        std::int32_t m2 = 2147483647;
        int c1 = -1;
        int c2 = -1;
        for (int i = 0; i <= 256; ++i) {
            const std::int32_t f = frequency[static_cast<std::size_t>(i)];
            if (f == 0 || f > m2) continue;
            if (f > m1) {
                m2 = f;
                c2 = i;
            } else {
                c2 = c1;
                m2 = m1;
                m1 = f;
                c1 = i;
            }
        }
        if (c2 == -1) {
            frequency[static_cast<std::size_t>(c1)] = 0;
            break;
        }
        auto& f1 = frequency[static_cast<std::size_t>(c1)];
        auto& f2 = frequency[static_cast<std::size_t>(c2)];
        f1 = Long(f1) + Long(f2);
        f2 = 0;
        const auto lengthenChain = [&](int i) {
            ++codesize[static_cast<std::size_t>(i)];
            while (others[static_cast<std::size_t>(i)] >= 0) {
                i = others[static_cast<std::size_t>(i)];
                ++codesize[static_cast<std::size_t>(i)];
            }
            return i;
        };
        const int end = lengthenChain(c1);
        others[static_cast<std::size_t>(end)] = c2;
        lengthenChain(c2);
    }

    int longest = 0;
    for (const int size : codesize) {
        if (size != 0) ++count[static_cast<std::size_t>(size)];
        if (size > longest) longest = size;
    }
    for (int i = longest; i >= 17; --i) {
        while (count[static_cast<std::size_t>(i)] > 0) {
            int j = i - 2;
            while (j > 0 && count[static_cast<std::size_t>(j)] == 0)
                --j;
            count[static_cast<std::size_t>(i)] -= 2;
            count[static_cast<std::size_t>(i - 1)] += 1;
            count[static_cast<std::size_t>(j + 1)] += 2;
            count[static_cast<std::size_t>(j)] -= 1;
        }
    }
    count[static_cast<std::size_t>(longest < 16 ? longest : 16)] -= 1;
    for (std::size_t l = 1; l <= 16; ++l)
        table.Bits[l - 1] = count[l];
    std::size_t k = 0;
    for (int size = 1; size <= longest; ++size) {
        for (int symbol = 0; symbol < 256; ++symbol) {
            if (codesize[static_cast<std::size_t>(symbol)] == size) table.HuffVal[k++] = symbol;
        }
    }
}

void ExpandHuffman(HuffmanRecord& table, int largestSymbol) {
    const auto require = [](bool good) {
        if (!good) throw RunTimeError(ErrorNumber::CodecFailure, "Bad Huffman Table");
    };
    table.Size.fill(0);
    table.Mask.fill(0);
    table.Code.fill(-1);
    std::int32_t mask = 1;
    std::int32_t code = 0;
    int k = 0;
    for (int l = 0; l < 16; ++l) {
        const int j = k + table.Bits[static_cast<std::size_t>(l)];
        require(j <= 256);
        for (; k < j; ++k) {
            const int symbol = table.HuffVal[static_cast<std::size_t>(k)];
            require(symbol <= largestSymbol);
            const auto s = static_cast<std::size_t>(symbol);
            require(table.Code[s] == -1);
            table.Size[s] = l;
            table.Mask[s] = mask;
            table.Code[s] = code;
            ++code;
        }
        mask *= 2;
        require(code < mask);
        code *= 2;
    }
    require(k != 0);
}

std::int32_t CountScanBytes(const HuffmanRecord& table, const Frequencies& frequency) {
    Long sum = 0;
    for (int i = 0; i < 256; ++i) {
        const auto s = static_cast<std::size_t>(i);
        if (frequency[s] != 0) sum += Long(frequency[s]) * Long(table.Size[s] + BitLength(i));
    }
    return (sum + Long(7)) / Long(8);
}

} // namespace mirelle::reference
