#include "forms/Picture.h"

#include "forms/RunTimeError.h"

namespace mirelle {
namespace {

// Beyond two gigabytes a bitmap is refused before the system has to end the program for want of memory.
constexpr std::int64_t kMostPixels = std::int64_t{1} << 29;

std::size_t PixelCount(int width, int height) {
    if (width < 0 || height < 0) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    if (std::int64_t{width} * height > kMostPixels) throw RunTimeError(ErrorNumber::OutOfMemory);
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

} // namespace

Bitmap::Bitmap(int width, int height, Pixel fill) : width_(width), height_(height) {
    const std::size_t count = PixelCount(width, height);
    WithinMemory([&] { pixels_.assign(count, fill); });
}

Bitmap Bitmap::Unwritten(int width, int height) {
    Bitmap bitmap;
    const std::size_t count = PixelCount(width, height);
    WithinMemory([&] { bitmap.pixels_.resize(count); });
    bitmap.width_ = width;
    bitmap.height_ = height;
    return bitmap;
}

Bitmap::Bitmap(Bitmap&& other) noexcept
    : width_(std::exchange(other.width_, 0)), height_(std::exchange(other.height_, 0)),
      pixels_(std::move(other.pixels_)) {}

Bitmap& Bitmap::operator=(Bitmap&& other) noexcept {
    width_ = std::exchange(other.width_, 0);
    height_ = std::exchange(other.height_, 0);
    pixels_ = std::move(other.pixels_);
    return *this;
}

Picture::Picture(Bitmap&& bitmap)
    : bitmap_(WithinMemory([&] { return std::make_shared<Bitmap>(std::move(bitmap)); })) {}

Bitmap Picture::CopyBitmap() const {
    return WithinMemory([this] { return Pixels(); });
}

const Bitmap& Picture::Pixels() const {
    static const Bitmap kNoPixels;
    return bitmap_ ? *bitmap_ : kNoPixels;
}

} // namespace mirelle
