// Huffman tables that are the best for given frequencies: ITU T.81, Annex K.2 and Annex C.
#pragma once

#include "codecs/jpeg/Frame.h"

#include <bit>
#include <cstdint>
#include <cstdlib>

namespace mirelle::jpeg {

// Number of significant bits of |value|; 0 for 0. |value| lies below 65536.
inline int BitLength(std::int32_t value) {
    return static_cast<int>(std::bit_width(static_cast<std::uint32_t>(std::abs(value))));
}

// The same for a value that is not 0: without the question.
inline int BitLengthOfNonZero(std::int32_t value) {
    return static_cast<int>(std::bit_width(static_cast<std::uint32_t>(std::abs(value)) | 1U));
}

// The bits that follow the symbol of a value with `size` significant bits: its own, or for a negative one
// those of value - 1.
inline std::uint32_t OwnBits(std::int32_t value, unsigned size) {
    return static_cast<std::uint32_t>(value + (value >> 31)) & ((1U << size) - 1);
}

// Sets Bits and HuffVal for the frequencies of the symbols 0..255, with no code longer than 16 bits and none
// that is all ones: the code of a reserved symbol is made with the others and then taken away. Leaves the
// frequencies all zero. Raises error 6 where a sum of frequencies leaves 32 bits.
void OptimizeHuffman(HuffmanTable& table, Frequencies& frequency);

// Sets Size, Mask and Code from Bits and HuffVal. Raises "Bad Huffman Table" for more than 256 codes, for
// none, for a symbol above the largest or twice there, and for codes that a length has no room for.
void ExpandHuffman(HuffmanTable& table, int largestSymbol);

// How many bytes a scan with these frequencies takes, roughly: the bits that follow a symbol are counted by
// the symbol's own bit length. Raises error 6 where the number of bits leaves 32 bits.
std::int32_t CountScanBytes(const HuffmanTable& table, const Frequencies& frequency);

} // namespace mirelle::jpeg
