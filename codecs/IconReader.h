// Reads icons and cursors (ICO and CUR files): the largest picture in the file, over white.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <functional>
#include <span>

namespace mirelle {

// Gives the opaque picture in the bytes of a PNG file, over white; raises 481 or 7. Icons may hold such.
using PngDecoder = std::function<Bitmap(std::span<const std::uint8_t> png)>;

// The largest of the file's pictures, of several as large the deepest; one that can't be read is passed over.
// What its mask or its alpha channel leaves clear is white; the fourth byte is 0. Raises 481 where the file
// is no icon or none of its pictures can be read.
Bitmap ReadIcon(std::span<const std::uint8_t> file, const PngDecoder& readPng);

} // namespace mirelle
