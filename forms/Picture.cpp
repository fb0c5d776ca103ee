#include "forms/Picture.h"

#include "forms/OutOfMemory.h"

namespace mirelle {
namespace {

// Beyond two gigabytes a bitmap is refused before the system has to end the program for want of memory.
constexpr std::int64_t kMostPixels = std::int64_t{1} << 29;

std::vector<Pixel> MakePixels(int width, int height, Pixel fill) {
    if (width < 0 || height < 0) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    if (std::int64_t{width} * height > kMostPixels) throw RunTimeError(ErrorNumber::OutOfMemory);
    return WithinMemory([&] {
        return std::vector<Pixel>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), fill);
    });
}

} // namespace

Bitmap::Bitmap(int width, int height, Pixel fill)
    : width_(width), height_(height), pixels_(MakePixels(width, height, fill)) {}

const Bitmap& Picture::Pixels() const {
    static const Bitmap kNoPixels;
    return bitmap_ ? *bitmap_ : kNoPixels;
}

} // namespace mirelle
