// Pictures that are drawn rather than stored: Windows metafiles, WMF and EMF.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <optional>
#include <span>

namespace mirelle::windows {

// The picture of an EMF file, or of a WMF file that tells its own size, at 96 dots to the inch over white;
// the fourth byte is 0. Nothing where the bytes begin like neither of the two. Raises 481 where they can't be
// played, 7 where the picture is too large.
std::optional<Bitmap> ReadMetafile(std::span<const std::uint8_t> file);

} // namespace mirelle::windows
