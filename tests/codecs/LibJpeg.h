// A foreign JPEG library behind a few plain functions: what decodes our files and what they are compared
// with.
#pragma once

#include "forms/Picture.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace mirelle::test {

struct Decoded {
    Bitmap picture; // fourth byte 0; a grey picture has three equal bytes
    int components = 0;
    std::vector<std::array<int, 2>> factors;
    std::string comment;
    long warnings = 0;
};

// Throws std::runtime_error with the library's message when the file can't be decoded. What is only odd about
// it counts as a warning.
Decoded DecodeJpeg(std::span<const std::uint8_t> file);

struct ForeignOptions {
    int quality = 75;
    std::array<int, 2> lumaFactors = {2, 2};
};
// Accurate integer transform, tables made for the picture.
std::vector<std::uint8_t> EncodeJpegForeign(const Bitmap& picture, const ForeignOptions& options);

// Quantisation tables at a scale of 100 percent, in natural order.
struct BaseTables {
    std::array<int, 64> luminance{};
    std::array<int, 64> chrominance{};
};
BaseTables ForeignBaseTables();

} // namespace mirelle::test
