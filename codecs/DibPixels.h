// The pixels of a device-independent bitmap, unpacked.
#pragma once

#include "codecs/DibHeader.h"
#include "forms/Picture.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace mirelle {

// What becomes of an alpha channel that a header declares by a mask. The fourth byte of any other picture is
// 0.
enum class DibAlpha { Dropped, Kept };

// Bytes from one row to the next: rows begin at multiples of four bytes.
std::size_t DibStride(int width, int bitCount);

// How many bytes the rows of pixels that are not run-length coded take, the last one's padding not counted.
std::size_t DibRowsSize(int width, int height, int bitCount);

// Unpacks the pixels that stand at the start of `data`. A pixel whose number has no entry in the palette is
// black; a run-length coded picture may end early or leave pixels out, which then show entry 0. Raises 481
// where rows are missing, 7 where the picture is too large.
Bitmap ReadDibPixels(const DibHeader& header, std::span<const Pixel> palette,
                     std::span<const std::uint8_t> data, DibAlpha alpha);

// The run-length coded kinds: called by ReadDibPixels. `bitmap` has its size and is filled with entry 0.
void ReadDibRuns(const DibHeader& header, std::span<const Pixel, 256> palette,
                 std::span<const std::uint8_t> data, Bitmap& bitmap);

} // namespace mirelle
