// The byte arrays of the TIFF reader, sized as a checked run time sizes them.
//
// An array has at least one element once it is sized; one that never was has no bounds, and asking for them
// raises error 9, as an element outside of them does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace mirelle::tiff {

using ByteArray = std::vector<std::uint8_t>;

// The longest array in bytes. A file of a few bytes can claim any size; two of these have room where a
// program of 32 bits runs.
constexpr std::int64_t kLongestArray = std::int64_t{1} << 29;

// Raises 9 for a number of elements below 1, 7 for one above `longest`.
void CheckLength(std::int64_t count, std::int64_t longest = kLongestArray);

// Gives the array `count` elements; present ones stay, new ones are 0. Raises what CheckLength raises, 7 also
// where the memory can't be had.
void Resize(ByteArray& array, std::int64_t count, std::int64_t longest = kLongestArray);

// The index of the last element. Raises 9 where the array was never sized.
std::int64_t UpperBound(const ByteArray& array);

} // namespace mirelle::tiff
