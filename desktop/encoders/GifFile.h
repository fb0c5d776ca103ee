// Writes GIF files.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <vector>

namespace mirelle {

// The bytes of a GIF file of one frame: the picture's own colours where they are 256 or fewer, else an
// adaptive palette and dithering. The fourth byte is left out. Raises 481 for an empty bitmap and for one
// with a side above 65535, the greatest that the format can tell.
std::vector<std::uint8_t> GifFile(const Bitmap& bitmap);

} // namespace mirelle
