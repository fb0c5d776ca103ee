// An array of 32-bit numbers that stands in a TIFF file: where its strips begin, or how long they are.
//
// Its elements stay in the file and are read one by one, so that an array costs nothing, however many
// elements it claims and however often a file tells it. Those beyond the file's end are 0.
#pragma once

#include "codecs/tiff/BinaryFile.h"

#include <cstdint>
#include <optional>

namespace mirelle::tiff {

class LongArray {
public:
    // One element.
    static LongArray Of(std::int32_t value);
    // `count` elements from a position of the file on, whose bytes have to outlive the array; `swapped`
    // reverses the bytes of each. Raises 9 for a count below 1, 7 for more than a gibibyte of them, and what
    // BinaryFile::Seek raises.
    static LongArray From(BinaryFile& file, std::int64_t position, std::int32_t count, bool swapped);

    // The index of the last element. Raises 9 where the array was never sized.
    std::int32_t UpperBound() const;
    // Any index from 0 to the upper bound.
    std::int32_t operator[](std::int32_t index) const;

private:
    std::int32_t count_ = 0;
    std::optional<std::int32_t> onlyElement_;
    std::span<const std::uint8_t> bytes_; // from the first element on
    bool swapped_ = false;
};

} // namespace mirelle::tiff
