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
// The pixels are decoded in the place where they stay: reading costs little more than the decoding itself.
Bitmap ReadJpeg(std::span<const std::uint8_t> file);

} // namespace mirelle
