#include "desktop/windows/DeviceBitmap.h"

#include "forms/RunTimeError.h"

#include <array>
#include <cstring>

namespace mirelle::windows {
namespace {

constexpr WORD kBitsOfNumbers = 8;
constexpr WORD kBitsOfFile = 24;
constexpr WORD kBitsOfScreen = 32;
constexpr std::size_t kPaletteSize = 256;

std::size_t RowLength(int width, WORD bits) {
    return (static_cast<std::size_t>(width) * bits / 8 + 3) / 4 * 4;
}

// A bitmap's header with room for a palette behind it.
struct Header {
    BITMAPINFOHEADER header;
    std::array<RGBQUAD, kPaletteSize> palette;
};

} // namespace

DeviceBitmap::DeviceBitmap(const Bitmap& bitmap) : width_(bitmap.Width()), height_(bitmap.Height()) {
    Make(kBitsOfFile);
    for (int y = 0; y < height_; ++y) {
        std::uint8_t* to = bytes_ + RowLength(width_, kBitsOfFile) * static_cast<std::size_t>(y);
        for (const Pixel& pixel : bitmap.Row(y)) {
            *to++ = pixel.blue;
            *to++ = pixel.green;
            *to++ = pixel.red;
        }
    }
}

DeviceBitmap::DeviceBitmap(const IndexedBitmap& bitmap) : width_(bitmap.width), height_(bitmap.height) {
    Make(kBitsOfNumbers, bitmap.palette);
    const auto width = static_cast<std::size_t>(width_);
    for (std::size_t y = 0; y < static_cast<std::size_t>(height_); ++y)
        std::memcpy(bytes_ + RowLength(width_, kBitsOfNumbers) * y, bitmap.numbers.data() + width * y, width);
}

DeviceBitmap::DeviceBitmap(int width, int height) : width_(width), height_(height) {
    Make(kBitsOfScreen);
    std::memset(bytes_, 0xFF,
                static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * sizeof(Pixel));
}

DeviceBitmap::~DeviceBitmap() {
    DeleteObject(handle_);
}

void DeviceBitmap::Make(WORD bits, const std::vector<Pixel>& palette) {
    Header info{};
    info.header.biSize = sizeof(info.header);
    info.header.biWidth = width_;
    info.header.biHeight = -height_; // rows from the top
    info.header.biPlanes = 1;
    info.header.biBitCount = bits;
    info.header.biCompression = BI_RGB;
    info.header.biClrUsed = static_cast<DWORD>(palette.size());
    for (std::size_t i = 0; i < palette.size(); ++i)
        info.palette[i] = {palette[i].blue, palette[i].green, palette[i].red, 0};
    void* bytes = nullptr;
    handle_ = CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS, &bytes,
                               nullptr, 0);
    if (handle_ == nullptr) throw RunTimeError(ErrorNumber::OutOfMemory);
    bytes_ = static_cast<std::uint8_t*>(bytes);
}

Bitmap DeviceBitmap::Pixels() const {
    GdiFlush();
    Bitmap bitmap(width_, height_);
    std::memcpy(bitmap.Pixels().data(), bytes_, bitmap.ByteCount());
    for (Pixel& pixel : bitmap.Pixels())
        pixel.fourth = 0;
    return bitmap;
}

} // namespace mirelle::windows
