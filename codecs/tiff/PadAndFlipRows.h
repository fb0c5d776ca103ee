// From the rows of a TIFF file to those of a device-independent bitmap.
#pragma once

#include "codecs/tiff/ByteArray.h"

#include <cstdint>

namespace mirelle::tiff {

// Makes each row of `rowBytes` bytes a multiple of four long, filled up with zeros, and turns the order of
// the rows round, so that the top row ends up last. Bytes behind the last row are dropped. Where both sizes
// are negative their product is a length like any other: so many zeros come out. Raises 9 where the length is
// below 1 or the image is shorter than its rows, 6 where a size leaves 32 bits, 7 as Resize does.
void PadAndFlipRows(ByteArray& image, std::int32_t rows, std::int32_t rowBytes,
                    std::int64_t longest = kLongestArray);

} // namespace mirelle::tiff
