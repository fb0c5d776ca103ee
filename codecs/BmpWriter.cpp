#include "codecs/BmpWriter.h"

#include "codecs/LittleEndian.h"

#include <limits>
#include <new>

namespace mirelle {
namespace {

constexpr std::uint32_t kFileHeaderSize = 14;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kHeaders = kFileHeaderSize + kInfoHeaderSize;
constexpr std::uint32_t kBitCount = 24;
constexpr std::uint32_t kPixelsPerMetre = 3780; // 96 to the inch

// Rows begin at multiples of four bytes.
std::uint64_t RowBytes(int width) {
    return (3 * static_cast<std::uint64_t>(width) + 3) / 4 * 4;
}

std::vector<std::uint8_t> EmptyFile(std::uint32_t size) {
    std::vector<std::uint8_t> file;
    try {
        file.reserve(size);
    } catch (const std::bad_alloc&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    }
    return file;
}

void AppendHeaders(std::vector<std::uint8_t>& file, const Bitmap& bitmap, std::uint32_t size) {
    file.push_back('B');
    file.push_back('M');
    AppendU32(file, size);
    AppendU32(file, 0); // reserved
    AppendU32(file, kHeaders);

    AppendU32(file, kInfoHeaderSize);
    AppendU32(file, static_cast<std::uint32_t>(bitmap.Width()));
    AppendU32(file, static_cast<std::uint32_t>(bitmap.Height()));
    AppendU16(file, 1); // planes
    AppendU16(file, kBitCount);
    AppendU32(file, 0); // no compression
    AppendU32(file, size - kHeaders);
    AppendU32(file, kPixelsPerMetre);
    AppendU32(file, kPixelsPerMetre);
    AppendU32(file, 0); // no palette
    AppendU32(file, 0);
}

} // namespace

std::uint32_t BmpFileSize(int width, int height) {
    const std::uint64_t size = kHeaders + RowBytes(width) * static_cast<std::uint64_t>(height);
    if (size > std::numeric_limits<std::uint32_t>::max()) throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<std::uint32_t>(size);
}

std::vector<std::uint8_t> BmpFile(const Bitmap& bitmap) {
    if (bitmap.IsEmpty()) throw RunTimeError(ErrorNumber::InvalidPicture);
    const std::uint32_t size = BmpFileSize(bitmap.Width(), bitmap.Height());
    std::vector<std::uint8_t> file = EmptyFile(size);
    AppendHeaders(file, bitmap, size);
    file.resize(size); // the padding of rows is 0
    auto row = static_cast<std::size_t>(kHeaders);
    for (int y = bitmap.Height() - 1; y >= 0; --y) {
        std::size_t at = row;
        for (const Pixel& pixel : bitmap.Row(y)) {
            file[at] = pixel.blue;
            file[at + 1] = pixel.green;
            file[at + 2] = pixel.red;
            at += 3;
        }
        row += static_cast<std::size_t>(RowBytes(bitmap.Width()));
    }
    return file;
}

} // namespace mirelle
