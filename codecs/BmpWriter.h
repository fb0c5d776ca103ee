// Writes bitmap files.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <vector>

namespace mirelle {

// How many bytes the BMP file of a bitmap of that size has. Raises 6 where that is beyond what the file's
// header can tell.
std::uint32_t BmpFileSize(int width, int height);

// The bytes of a BMP file of 24 bits a pixel, rows from the bottom; the fourth byte is left out. Raises 481
// for an empty bitmap, 6 where BmpFileSize does, 7 where the memory for
// it can't be had.
std::vector<std::uint8_t> BmpFile(const Bitmap& bitmap);

} // namespace mirelle
