// Between the two byte orders of TIFF files.
#pragma once

#include <cstdint>

namespace mirelle::tiff {

// Reverse the bytes of the number in its place.
inline void SwapBytesInt(std::int16_t& value) {
    const auto bits = static_cast<std::uint16_t>(value);
    value = static_cast<std::int16_t>((bits << 8) | (bits >> 8));
}

inline void SwapBytesLong(std::int32_t& value) {
    const auto bits = static_cast<std::uint32_t>(value);
    value = static_cast<std::int32_t>((bits << 24) | ((bits & 0xFF00U) << 8) | ((bits >> 8) & 0xFF00U) |
                                      (bits >> 24));
}

} // namespace mirelle::tiff
