#include "desktop/encoders/GifFile.h"

#include "desktop/encoders/IndexedBitmap.h"
#include "forms/RunTimeError.h"

#include <bit>
#include <cstddef>
#include <memory>
#include <new>

#include <gif_lib.h>

namespace mirelle {
namespace {

constexpr int kGreatestSide = 65535;
constexpr int kBitsOfColour = 8;

using Bytes = std::vector<std::uint8_t>;

void Check(bool isDone) {
    if (!isDone) throw RunTimeError(ErrorNumber::InvalidPicture);
}

// Called by the library, which is C and can't be left by an exception: no memory is an incomplete write.
int Append(GifFileType* gif, const GifByteType* bytes, int count) {
    auto* file = static_cast<Bytes*>(gif->UserData);
    try {
        file->insert(file->end(), bytes, bytes + count);
    } catch (const std::bad_alloc&) {
        return 0;
    }
    return count;
}

// Closing writes the file's end; one that is let go earlier has failed, and its bytes are of no use.
struct CloseGif {
    void operator()(GifFileType* gif) const {
        int error = 0;
        EGifCloseFile(gif, &error);
    }
};
struct FreeMap {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};

std::unique_ptr<ColorMapObject, FreeMap> MapOf(const std::vector<Pixel>& palette) {
    // As many entries as a power of two, the rest black.
    std::vector<GifColorType> colours(std::max<std::size_t>(std::bit_ceil(palette.size()), 2));
    for (std::size_t i = 0; i < palette.size(); ++i)
        colours[i] = {palette[i].red, palette[i].green, palette[i].blue};
    return std::unique_ptr<ColorMapObject, FreeMap>(
        GifMakeMapObject(static_cast<int>(colours.size()), colours.data()));
}

} // namespace

std::vector<std::uint8_t> GifFile(const Bitmap& bitmap) {
    Check(!bitmap.IsEmpty() && bitmap.Width() <= kGreatestSide && bitmap.Height() <= kGreatestSide);
    std::optional<IndexedBitmap> exact = IndexExactly(bitmap);
    IndexedBitmap indexed = exact ? std::move(*exact) : IndexByDithering(bitmap);

    Bytes file;
    int error = 0;
    std::unique_ptr<GifFileType, CloseGif> gif(EGifOpen(&file, Append, &error));
    Check(gif != nullptr);
    const auto map = MapOf(indexed.palette);
    Check(map != nullptr);
    Check(EGifPutScreenDesc(gif.get(), indexed.width, indexed.height, kBitsOfColour, 0, map.get()) == GIF_OK);
    Check(EGifPutImageDesc(gif.get(), 0, 0, indexed.width, indexed.height, false, nullptr) == GIF_OK);
    for (int y = 0; y < indexed.height; ++y) {
        const std::size_t row = static_cast<std::size_t>(y) * static_cast<std::size_t>(indexed.width);
        Check(EGifPutLine(gif.get(), indexed.numbers.data() + row, indexed.width) == GIF_OK);
    }
    Check(EGifCloseFile(gif.release(), &error) == GIF_OK);
    return file;
}

} // namespace mirelle
