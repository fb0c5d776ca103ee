// Writes TIFF files, after TIFF Revision 6.0, section 6: RGB full-colour images.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <vector>

namespace mirelle {

// How many bytes the TIFF file of a bitmap of that size has. Raises 6 where that is beyond what the file's
// 32-bit offsets can tell.
std::uint32_t TiffFileSize(int width, int height);

// The bytes of an uncompressed little-endian TIFF file of 24 bits a pixel, in strips; the fourth byte is left
// out. Raises 481 for an empty bitmap, 6 where TiffFileSize does, 7 where the memory for it can't be had.
std::vector<std::uint8_t> TiffFile(const Bitmap& bitmap);

} // namespace mirelle
