// Between the toolkit's images and the program's bitmaps.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <span>

#include <QImage>

namespace mirelle {

// The first picture of a file of that format ("gif", "png"). Raises 481 where it can't be read, 7 where it is
// too large.
QImage ReadImage(std::span<const std::uint8_t> file, const char* format);

// The image over white; the fourth byte is 0.
Bitmap OpaqueBitmap(const QImage& image);

// The image with its alpha channel in the fourth byte; 0 there where the image has no alpha channel.
Bitmap BitmapWithAlpha(const QImage& image);

// An opaque image that looks on the bitmap's own memory: it is good for as long as the bitmap is.
QImage ImageOver(const Bitmap& bitmap);

} // namespace mirelle
