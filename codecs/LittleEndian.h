// Numbers in the byte order of BMP, ICO and TIFF files: the low byte first.
#pragma once

#include "forms/RunTimeError.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace mirelle {

// The part of a file from `offset` on, `size` bytes of it. Raises 481 where the file ends before.
inline std::span<const std::uint8_t> PartOf(std::span<const std::uint8_t> bytes, std::size_t offset,
                                            std::size_t size) {
    if (offset > bytes.size() || size > bytes.size() - offset)
        throw RunTimeError(ErrorNumber::InvalidPicture);
    return bytes.subspan(offset, size);
}

inline std::uint16_t U16At(std::span<const std::uint8_t> bytes, std::size_t offset) {
    const auto part = PartOf(bytes, offset, 2);
    return static_cast<std::uint16_t>(part[0] | (part[1] << 8));
}

inline std::uint32_t U32At(std::span<const std::uint8_t> bytes, std::size_t offset) {
    const auto part = PartOf(bytes, offset, 4);
    return part[0] | (std::uint32_t{part[1]} << 8) | (std::uint32_t{part[2]} << 16) |
           (std::uint32_t{part[3]} << 24);
}

inline std::int32_t S32At(std::span<const std::uint8_t> bytes, std::size_t offset) {
    return static_cast<std::int32_t>(U32At(bytes, offset));
}

inline void AppendU16(std::vector<std::uint8_t>& bytes, std::uint32_t value) {
    bytes.push_back(static_cast<std::uint8_t>(value));
    bytes.push_back(static_cast<std::uint8_t>(value >> 8));
}

inline void AppendU32(std::vector<std::uint8_t>& bytes, std::uint32_t value) {
    AppendU16(bytes, value);
    AppendU16(bytes, value >> 16);
}

} // namespace mirelle
