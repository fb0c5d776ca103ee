#include "codecs/DibHeader.h"

#include "codecs/LittleEndian.h"

#include <algorithm>

namespace mirelle {
namespace {

constexpr std::uint32_t kCoreHeaderSize = 12;
constexpr std::uint32_t kHeaderWithMasksSize = 52;
constexpr std::uint32_t kHeaderWithAlphaMaskSize = 56;
constexpr std::uint32_t kGreatestHeaderSize = 124;
// An OS/2 header of its second version, whose compressions 3 and 4 are others.
constexpr std::uint32_t kOs2HeaderSize = 64;
constexpr std::size_t kMasksOffset = 40; // behind or in the header, by its size
constexpr std::uint32_t kGreatestPalette = 256;

constexpr std::array<std::uint32_t, 4> k555 = {0x7C00, 0x03E0, 0x001F, 0};
constexpr std::array<std::uint32_t, 4> k888 = {0xFF0000, 0x00FF00, 0x0000FF, 0};

struct Kind {
    DibCompression compression;
    std::array<int, 7> bitCounts;
};
constexpr std::array kKinds = {
    Kind{DibCompression::None, {1, 2, 4, 8, 16, 24, 32}},
    Kind{DibCompression::Rle8, {8}},
    Kind{DibCompression::Rle4, {4}},
    Kind{DibCompression::Masks, {16, 32}},
    Kind{DibCompression::MasksWithAlpha, {16, 32}},
};

[[noreturn]] void Refuse() {
    throw RunTimeError(ErrorNumber::InvalidPicture);
}

DibCompression CompressionOf(std::uint32_t value, int bitCount) {
    const auto kind = std::find_if(kKinds.begin(), kKinds.end(), [&](const Kind& each) {
        const bool hasCount =
            std::find(each.bitCounts.begin(), each.bitCounts.end(), bitCount) != each.bitCounts.end();
        return static_cast<std::uint32_t>(each.compression) == value && hasCount;
    });
    if (kind == kKinds.end() || bitCount == 0) Refuse();
    return kind->compression;
}

bool HasMasks(DibCompression compression) {
    return compression == DibCompression::Masks || compression == DibCompression::MasksWithAlpha;
}

DibHeader ReadCoreHeader(std::span<const std::uint8_t> dib) {
    DibHeader header;
    header.width = U16At(dib, 4);
    header.height = U16At(dib, 6);
    header.bitCount = U16At(dib, 10);
    header.compression = CompressionOf(0, header.bitCount);
    header.paletteOffset = kCoreHeaderSize;
    header.paletteEntrySize = 3;
    header.paletteEntryCount = header.bitCount <= 8 ? std::size_t{1} << header.bitCount : 0;
    return header;
}

DibHeader ReadInfoHeader(std::span<const std::uint8_t> dib, std::uint32_t size) {
    const auto field = [&](std::uint32_t offset) { return offset + 4 <= size ? U32At(dib, offset) : 0; };
    DibHeader header;
    header.width = S32At(dib, 4);
    const std::int32_t height = S32At(dib, 8);
    if (height == INT32_MIN) Refuse();
    header.isTopDown = height < 0;
    header.height = height < 0 ? -height : height;
    header.bitCount = U16At(dib, 14);
    const std::uint32_t compression = field(16);
    if (size == kOs2HeaderSize && compression > 2) Refuse();
    header.compression = CompressionOf(compression, header.bitCount);

    header.paletteOffset = size;
    header.masks = header.bitCount == 16 ? k555 : k888;
    if (HasMasks(header.compression)) {
        const bool hasAlpha =
            size >= kHeaderWithAlphaMaskSize || header.compression == DibCompression::MasksWithAlpha;
        const std::size_t count = hasAlpha ? 4 : 3;
        header.masks = {};
        for (std::size_t i = 0; i < count; ++i)
            header.masks[i] = U32At(dib, kMasksOffset + 4 * i);
        if (size < kHeaderWithMasksSize) header.paletteOffset = kMasksOffset + 4 * count;
    }

    const std::uint32_t used = field(32);
    const std::uint32_t possible = header.bitCount <= 8 ? std::uint32_t{1} << header.bitCount : 0;
    // Deeper pictures can bring a palette too, for poorer screens; it is only passed over.
    header.paletteEntryCount = used == 0 ? possible : used;
    if (header.bitCount <= 8)
        header.paletteEntryCount = std::min<std::size_t>(header.paletteEntryCount, kGreatestPalette);
    return header;
}

} // namespace

DibHeader ReadDibHeader(std::span<const std::uint8_t> dib) {
    const std::uint32_t size = U32At(dib, 0);
    if (size != kCoreHeaderSize && (size < 16 || size > kGreatestHeaderSize)) Refuse();
    PartOf(dib, 0, size);
    const bool isCore = size == kCoreHeaderSize;
    if (U16At(dib, isCore ? 8 : 12) != 1) Refuse(); // planes
    DibHeader header = isCore ? ReadCoreHeader(dib) : ReadInfoHeader(dib, size);
    if (header.width <= 0 || header.height <= 0) Refuse();
    header.endOfPalette = header.paletteOffset + header.paletteEntryCount * header.paletteEntrySize;
    return header;
}

std::vector<Pixel> ReadDibPalette(std::span<const std::uint8_t> dib, const DibHeader& header,
                                  std::size_t end) {
    std::vector<Pixel> palette;
    if (header.bitCount > 8) return palette;
    std::size_t offset = header.paletteOffset;
    for (std::size_t i = 0; i < header.paletteEntryCount; ++i) {
        if (offset + header.paletteEntrySize > std::min(end, dib.size())) break;
        palette.push_back({dib[offset], dib[offset + 1], dib[offset + 2], 0});
        offset += header.paletteEntrySize;
    }
    return palette;
}

} // namespace mirelle
