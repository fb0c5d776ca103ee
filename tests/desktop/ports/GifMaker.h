// GIF files for tests, made and read by the GIF library itself.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace mirelle::test {

using FileBytes = std::vector<std::uint8_t>;

struct GifFrame {
    int left = 0;
    int top = 0;
    int width = 1;
    int height = 1;
    std::vector<int> numbers = {}; // of the palette's colours, row by row
    bool isInterlaced = false;
    std::optional<int> clear = std::nullopt; // the number of the colour that lets the ground shine through
};

struct GifMaking {
    int width = 1;
    int height = 1;
    int background = 0;
    std::vector<Color> palette = {}; // 2, 4, 8 ... colours
    std::vector<GifFrame> frames = {};
};

FileBytes MakeGif(const GifMaking& making);

struct DecodedGif {
    Bitmap bitmap;       // the first frame
    int colourCount = 0; // of the palette
    int frameCount = 0;
};

// Nothing where the library can't read the file to its end.
std::optional<DecodedGif> DecodeGif(std::span<const std::uint8_t> file);

} // namespace mirelle::test
