// The colour map of a TIFF file (TIFF 6.0, section 5): all reds, then all greens, then all blues, 16 bits
// each. It is cut to the high bytes of a file of low bytes first.
#pragma once

#include "codecs/tiff/BinaryFile.h"
#include "codecs/tiff/ByteArray.h"

#include <cstdint>

namespace mirelle::tiff {

// More colours than these no pixel can name.
constexpr std::int64_t kMostColors = 256;

// Triples of red, green and blue from a map of `count` numbers at `place`, which counts from 0: count / 3 - 1
// of them, to the nearest whole number, and one more. The array has `count` bytes, those behind the last
// triple 0; of a map of more than 256 colours it has the first 256. Raises 9 where there are no triples or
// the last one ends behind the array, 7 for a count above `longest`, and what BinaryFile::Seek raises.
ByteArray ReadColorMap(BinaryFile& file, std::int32_t place, std::int32_t count,
                       std::int64_t longest = kLongestArray);

} // namespace mirelle::tiff
