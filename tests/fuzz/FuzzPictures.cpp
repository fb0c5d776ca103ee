// Any bytes as a picture file, of whatever kind they begin like: a picture without a fourth byte, or error
// 481 or 7. A JPEG file gives the same however it is decoded.
#include "desktop/pictures/ImageFileLoader.h"
#include "desktop/pictures/JpegReader.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const mirelle::Picture picture = mirelle::DecodePicture({data, size});
        if (picture.Pixels().IsEmpty()) std::abort();
        const auto pixels = picture.Pixels().Pixels();
        const bool isJpeg = data[0] == 0xFF;
        if (isJpeg && mirelle::ReadJpegInTwo({data, size}, picture.Height() * 3 / 4) != picture.Pixels())
            std::abort();
        if (std::ranges::any_of(pixels, [](const mirelle::Pixel& pixel) { return pixel.fourth != 0; }))
            std::abort();
    } catch (const mirelle::RunTimeError& error) {
        const bool isExpected = error.Number() == mirelle::ErrorNumber::InvalidPicture ||
                                error.Number() == mirelle::ErrorNumber::OutOfMemory;
        if (!isExpected) std::abort();
    }
    return 0;
}
