// How large a picture read from a file may be.
#pragma once

#include "forms/RunTimeError.h"

#include <cstdint>

namespace mirelle {

// A gibibyte of pixels. A file of a few bytes can claim any size; nothing larger is made for it.
#ifndef MIRELLE_FUZZ
constexpr std::int64_t kGreatestPixelCount = std::int64_t{1} << 28;
#else
constexpr std::int64_t kGreatestPixelCount = std::int64_t{1} << 20; // a fuzzer has time for many small ones
#endif

// Of sides that are not positive no picture is too large.
inline bool IsTooLarge(std::int64_t width, std::int64_t height, std::int64_t most = kGreatestPixelCount) {
    return width > 0 && height > 0 && (width > most || height > most / width);
}

// Raises 481 where one of the sides is not positive, 7 where the picture is too large.
inline void CheckPictureSize(std::int64_t width, std::int64_t height) {
    if (width <= 0 || height <= 0) throw RunTimeError(ErrorNumber::InvalidPicture);
    if (IsTooLarge(width, height)) throw RunTimeError(ErrorNumber::OutOfMemory);
}

} // namespace mirelle
