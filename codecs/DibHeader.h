// The header of a device-independent bitmap: what stands in BMP files behind the file header, in DIB files
// and in icons. Layout after the BITMAPCOREHEADER, BITMAPINFOHEADER, BITMAPV4HEADER and BITMAPV5HEADER
// structures.
#pragma once

#include "forms/Picture.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace mirelle {

enum class DibCompression { None = 0, Rle8 = 1, Rle4 = 2, Masks = 3, MasksWithAlpha = 6 };

struct DibHeader {
    int width = 0;  // 1 and more
    int height = 0; // 1 and more
    bool isTopDown = false;
    int bitCount = 0; // 1, 2, 4, 8, 16, 24 or 32
    DibCompression compression = DibCompression::None;
    // Which bits of a 16- or 32-bit pixel hold red, green, blue and alpha; no bits of alpha where there is
    // none.
    std::array<std::uint32_t, 4> masks{};
    std::size_t paletteOffset = 0;     // bytes from the header's start
    std::size_t paletteEntryCount = 0; // as the header tells it, at most 256 where it is for use
    std::size_t paletteEntrySize = 4;  // 3 in files of the oldest kind
    std::size_t endOfPalette = 0;      // where the pixels stand unless a file header says otherwise
};

// Reads the header at the start of `dib`. Raises 481 where it is none, or of a kind that is not read (pixels
// packed as JPEG or PNG, Huffman coding, planes); the size is not yet checked against any limit.
DibHeader ReadDibHeader(std::span<const std::uint8_t> dib);

// The palette of a header read from `dib`, as many entries as stand ahead of `end`.
std::vector<Pixel> ReadDibPalette(std::span<const std::uint8_t> dib, const DibHeader& header,
                                  std::size_t end);

} // namespace mirelle
