// Pixels of images have all bits set in their fourth byte, or anything; those of pictures have none.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <span>

namespace mirelle {

void ClearFourthBytes(std::span<Pixel> row);

// Copies a row of pixels from other memory with their fourth bytes 0.
void CopyWithFourthBytesClear(const std::uint8_t* from, std::span<Pixel> row);

} // namespace mirelle
