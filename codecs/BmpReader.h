// Reads Windows and OS/2 bitmap files: 1 to 32 bits a pixel, bottom-up and top-down, run-length coded and
// with colour masks.
#pragma once

#include "codecs/DibPixels.h"
#include "forms/Picture.h"

#include <cstdint>
#include <span>

namespace mirelle {

// A file that begins with "BM". Raises 481 where it is no such picture or ends early, 7 where it is too
// large.
Bitmap ReadBmp(std::span<const std::uint8_t> file, DibAlpha alpha = DibAlpha::Dropped);

// The same without the file header, as DIB files and clipboards hold it.
Bitmap ReadDib(std::span<const std::uint8_t> dib, DibAlpha alpha = DibAlpha::Dropped);

} // namespace mirelle
