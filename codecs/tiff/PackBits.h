// PackBits as this reader decodes it. It is not the decoding of the standard: the no-op code 128 repeats the
// step of the code before it, and a strip always comes out with one byte for each pixel, whatever the bits of
// a pixel are.
#pragma once

#include "codecs/tiff/ByteArray.h"
#include "codecs/tiff/NoOperations.h"

#include <cstdint>

namespace mirelle::tiff {

// Where a strip stands: its place counts from 0.
struct StripPlace {
    std::int64_t offset = 0;
    std::int64_t length = 0;
};

// The decoded bytes of a strip: rows x width units of bits / 8 bytes, 0 where the strip or the file ends
// early. Bytes that have no place in the output, or none in the strip, are left out. Nothing is raised: for a
// size of 0 a single 0 comes out, for a negative one or one beyond `longest` an array without elements. The
// time it takes is that of the bytes that come out, however long the strip says that it is.
ByteArray DecodePackBits(NoOperations& file, StripPlace strip, int bits, std::int32_t rows,
                         std::int32_t width, std::int64_t longest = kLongestArray);

} // namespace mirelle::tiff
