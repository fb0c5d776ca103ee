// libjpeg-turbo as it is fastest for what is asked: all rows handed over at once, blue-green-red-unused
// pixels taken as they lie, and a target that needs no growing.
#pragma once

#include "forms/Picture.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace mirelle::bench {

// The accurate integer transform, tables made for the picture, luma sampled luma x luma times as often as
// colour. The number of bytes in `target`, which has to have room for all of them.
std::size_t EncodeByLibJpeg(const Bitmap& picture, int quality, int luma, std::span<std::uint8_t> target);

// As a whole file with the library's standard settings.
std::vector<std::uint8_t> PlainJpegFile(const Bitmap& picture, int quality);

// Into four bytes a pixel with the library's standard settings; `pixels` has to have room for all of them.
void DecodeByLibJpeg(std::span<const std::uint8_t> file, std::span<std::uint8_t> pixels);

} // namespace mirelle::bench
