// JPEG files for tests, made by the JPEG library itself.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <span>
#include <vector>

namespace mirelle::test {

using FileBytes = std::vector<std::uint8_t>;

struct JpegMaking {
    enum class Colours { Grey, Three, Four, FourUnmarked } colours = Colours::Three;
    int quality = 90;
    bool isProgressive = false;
    // How often luma is sampled where colour is sampled once, across and down.
    int lumaAcross = 2;
    int lumaDown = 2;
    int rowsBetweenRestarts = 0; // rows of blocks; 0: no restart
    // One scan for each coefficient and each of its bits: more than any camera or program writes.
    bool hasCountlessScans = false;
    FileBytes exif = {}; // an APP1 segment's content
};

// The bitmap's colours as a JPEG file; of a grey one its green, of four colours the inks are 255 minus blue,
// green and red, and the fourth byte is black.
FileBytes MakeJpeg(const Bitmap& bitmap, const JpegMaking& making = {});

// The picture of a JPEG file as the library gives it in its plainest way, three bytes a pixel.
Bitmap DecodeJpegPlainly(std::span<const std::uint8_t> file);

} // namespace mirelle::test
