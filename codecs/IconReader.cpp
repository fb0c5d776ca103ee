#include "codecs/IconReader.h"

#include "codecs/DibPixels.h"
#include "codecs/LittleEndian.h"
#include "codecs/OverWhite.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace mirelle {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kDirectorySize = 6;
constexpr std::size_t kEntrySize = 16;
constexpr std::uint16_t kIcons = 1;
constexpr std::uint16_t kCursors = 2;
constexpr std::array<std::uint8_t, 4> kPngSignature = {0x89, 'P', 'N', 'G'};
constexpr Pixel kWhite = {255, 255, 255, 0};

struct Entry {
    int pixelCount = 0;
    int bitCount = 0; // 0 where the directory does not tell it
    std::uint32_t size = 0;
    std::uint32_t offset = 0;
};

std::vector<Entry> ReadDirectory(Bytes file) {
    const std::uint16_t kind = U16At(file, 2);
    if (U16At(file, 0) != 0 || (kind != kIcons && kind != kCursors))
        throw RunTimeError(ErrorNumber::InvalidPicture);
    std::vector<Entry> entries(U16At(file, 4));
    const Bytes directory = PartOf(file, kDirectorySize, entries.size() * kEntrySize);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const Bytes at = directory.subspan(i * kEntrySize, kEntrySize);
        const int width = at[0] == 0 ? 256 : at[0];
        const int height = at[1] == 0 ? 256 : at[1];
        // A cursor has its hot spot where an icon has its depth.
        entries[i] = {width * height, kind == kIcons ? U16At(at, 6) : 0, U32At(at, 8), U32At(at, 12)};
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return a.pixelCount != b.pixelCount ? a.pixelCount > b.pixelCount : a.bitCount > b.bitCount;
    });
    return entries;
}

bool IsClear(Bytes mask, std::size_t stride, int x, int rowFromBelow) {
    const std::size_t at = static_cast<std::size_t>(rowFromBelow) * stride + static_cast<std::size_t>(x) / 8;
    return at < mask.size() && ((mask[at] >> (7 - x % 8)) & 1) != 0;
}

// Below the pixels stands a mask of one bit each, set where nothing is to be drawn.
void LayOnWhite(Bitmap& bitmap, Bytes mask) {
    const std::size_t stride = DibStride(bitmap.Width(), 1);
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (int x = 0; x < bitmap.Width(); ++x) {
            if (IsClear(mask, stride, x, bitmap.Height() - 1 - y)) bitmap.At(x, y) = kWhite;
        }
    }
}

Bitmap ReadIconDib(Bytes dib) {
    DibHeader header = ReadDibHeader(dib);
    header.height = std::max(header.height / 2, 1); // the mask is counted in
    if (header.bitCount == 32 && header.compression == DibCompression::None) header.masks[3] = 0xFF000000;
    const auto palette = ReadDibPalette(dib, header, header.endOfPalette);
    const Bytes pixels = PartOf(dib, std::min(header.endOfPalette, dib.size()),
                                dib.size() - std::min(header.endOfPalette, dib.size()));
    Bitmap bitmap = ReadDibPixels(header, palette, pixels, DibAlpha::Kept);

    const auto hasCover = [](Pixel pixel) { return pixel.fourth != 0; };
    if (std::any_of(bitmap.Pixels().begin(), bitmap.Pixels().end(), hasCover)) {
        std::transform(bitmap.Pixels().begin(), bitmap.Pixels().end(), bitmap.Pixels().begin(), OverWhite);
        return bitmap;
    }
    const bool hasRows =
        header.compression != DibCompression::Rle8 && header.compression != DibCompression::Rle4;
    const std::size_t maskOffset =
        DibStride(header.width, header.bitCount) * static_cast<std::size_t>(header.height);
    if (hasRows && maskOffset < pixels.size()) LayOnWhite(bitmap, pixels.subspan(maskOffset));
    return bitmap;
}

} // namespace

Bitmap ReadIcon(Bytes file, const PngDecoder& readPng) {
    for (const Entry& entry : ReadDirectory(file)) {
        std::optional<Bitmap> bitmap;
        ResumeNext([&] {
            const Bytes picture = PartOf(file, entry.offset, entry.size);
            const bool isPng = picture.size() >= kPngSignature.size() &&
                               std::equal(kPngSignature.begin(), kPngSignature.end(), picture.begin());
            bitmap = isPng ? readPng(picture) : ReadIconDib(picture);
        });
        if (bitmap) return std::move(*bitmap);
    }
    throw RunTimeError(ErrorNumber::InvalidPicture);
}

} // namespace mirelle
