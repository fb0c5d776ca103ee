// Reads JPEG files: grey, colour and four-colour ones, plain and progressive.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <span>

namespace mirelle {

// The picture as it is stored; a tag that tells how the camera was held is not looked at. A file that ends
// early gives what it holds, the rest grey. The fourth byte is 0. Raises 481 where it is no JPEG file that
// can be read, 7 where the picture is too large.
//
// The pixels are decoded in the place where they stay: reading costs little more than the decoding itself. On
// more than one core a large picture takes less, as ReadJpegInTwo tells.
Bitmap ReadJpeg(std::span<const std::uint8_t> file);

// The same, pixel for pixel and error for error, with the rows from `split` on (1..height - 1) decoded in a
// thread of their own. Where rows begin stands nowhere in a file, so that thread takes the codes of all rows
// above apart as well, but makes no pixels of them: a third to a half of the work. A picture that comes in
// several scans is decoded in one thread.
Bitmap ReadJpegInTwo(std::span<const std::uint8_t> file, int split);

} // namespace mirelle
