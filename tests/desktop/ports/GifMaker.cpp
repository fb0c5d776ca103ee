#include "tests/desktop/ports/GifMaker.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <stdexcept>

#include <gif_lib.h>

namespace mirelle::test {
namespace {

void Check(int result) {
    if (result == GIF_ERROR) throw std::runtime_error("the GIF library made no file");
}

int WriteTo(GifFileType* gif, const GifByteType* bytes, int count) {
    auto* file = static_cast<FileBytes*>(gif->UserData);
    file->insert(file->end(), bytes, bytes + count);
    return count;
}

int ReadFrom(GifFileType* gif, GifByteType* bytes, int count) {
    auto* rest = static_cast<std::span<const std::uint8_t>*>(gif->UserData);
    const std::size_t size = std::min(rest->size(), static_cast<std::size_t>(count));
    std::copy_n(rest->begin(), size, bytes);
    *rest = rest->subspan(size);
    return static_cast<int>(size);
}

std::vector<int> OrderOfRows(const GifFrame& frame) {
    std::vector<int> order;
    const auto add = [&](int first, int step) {
        for (int y = first; y < frame.height; y += step)
            order.push_back(y);
    };
    if (!frame.isInterlaced) {
        add(0, 1);
        return order;
    }
    add(0, 8);
    add(4, 8);
    add(2, 4);
    add(1, 2);
    return order;
}

void PutFrame(GifFileType* gif, const GifFrame& frame) {
    const GraphicsControlBlock control = {DISPOSAL_UNSPECIFIED, false, 0,
                                          frame.clear.value_or(NO_TRANSPARENT_COLOR)};
    std::array<GifByteType, 4> extension{};
    EGifGCBToExtension(&control, extension.data());
    Check(EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, extension.size(), extension.data()));
    Check(
        EGifPutImageDesc(gif, frame.left, frame.top, frame.width, frame.height, frame.isInterlaced, nullptr));
    for (const int y : OrderOfRows(frame)) {
        const auto begin = frame.numbers.begin() + static_cast<std::ptrdiff_t>(y) * frame.width;
        std::vector<GifPixelType> row(begin, begin + frame.width);
        Check(EGifPutLine(gif, row.data(), frame.width));
    }
}

} // namespace

FileBytes MakeGif(const GifMaking& making) {
    FileBytes file;
    int error = 0;
    GifFileType* gif = EGifOpen(&file, WriteTo, &error);
    if (gif == nullptr) throw std::runtime_error("the GIF library made no file");
    EGifSetGifVersion(gif, true);
    std::vector<GifColorType> colours;
    for (const Color color : making.palette) {
        const Pixel pixel = PixelOf(color);
        colours.push_back({pixel.red, pixel.green, pixel.blue});
    }
    ColorMapObject* map = GifMakeMapObject(static_cast<int>(colours.size()), colours.data());
    Check(EGifPutScreenDesc(gif, making.width, making.height, 8, making.background, map));
    GifFreeMapObject(map);
    for (const GifFrame& frame : making.frames)
        PutFrame(gif, frame);
    Check(EGifCloseFile(gif, &error));
    return file;
}

std::optional<DecodedGif> DecodeGif(std::span<const std::uint8_t> file) {
    int error = 0;
    GifFileType* gif = DGifOpen(&file, ReadFrom, &error);
    if (gif == nullptr) return std::nullopt;
    std::optional<DecodedGif> decoded;
    if (DGifSlurp(gif) == GIF_OK && gif->ImageCount > 0) {
        const SavedImage& frame = gif->SavedImages[0];
        const ColorMapObject* map =
            frame.ImageDesc.ColorMap != nullptr ? frame.ImageDesc.ColorMap : gif->SColorMap;
        decoded = {Bitmap(frame.ImageDesc.Width, frame.ImageDesc.Height), map->ColorCount, gif->ImageCount};
        const std::span<Pixel> pixels = decoded->bitmap.Pixels();
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const GifColorType& colour = map->Colors[frame.RasterBits[i]];
            pixels[i] = {colour.Blue, colour.Green, colour.Red, 0};
        }
    }
    DGifCloseFile(gif, &error);
    return decoded;
}

} // namespace mirelle::test
