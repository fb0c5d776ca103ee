// An array of 32-bit numbers that stands in a TIFF file: where its strips begin, or how long they are.
//
// However many elements the file claims, only those that it holds take memory; the others are 0.
#pragma once

#include "codecs/tiff/BinaryFile.h"

#include <cstdint>
#include <vector>

namespace mirelle::tiff {

class LongArray {
public:
    // One element.
    static LongArray Of(std::int32_t value);
    // `count` elements from a position of the file on; `swapped` reverses the bytes of each. Raises 9 for a
    // count below 1, 7 for more than a gibibyte of them, and what BinaryFile::Seek raises.
    static LongArray From(BinaryFile& file, std::int64_t position, std::int32_t count, bool swapped);

    // The index of the last element. Raises 9 where the array was never sized.
    std::int32_t UpperBound() const;
    // Any index from 0 to the upper bound.
    std::int32_t operator[](std::int32_t index) const;

private:
    std::int32_t count_ = 0;
    std::vector<std::int32_t> present_;
};

} // namespace mirelle::tiff
