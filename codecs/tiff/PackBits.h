// PackBits as this reader decodes it. It is not the decoding of the standard: the no-op code 128 repeats the
// step of the code before it, and a strip always comes out with one byte for each pixel, whatever the bits of
// a pixel are.
#pragma once

#include "codecs/tiff/ByteArray.h"

#include <cstdint>

namespace mirelle::tiff {

// Replaces the strip by its decoded bytes: rows x width units of bits / 8 bytes, 0 where the strip ends
// early. Bytes that have no place in the output, or none in the strip, are left out. Nothing is raised: for a
// size of 0 the strip becomes a single 0, for a negative one or one beyond `longest` an array without
// elements.
void DecodePackBits(ByteArray& strip, int bits, std::int32_t rows, std::int32_t width,
                    std::int64_t longest = kLongestArray);

} // namespace mirelle::tiff
