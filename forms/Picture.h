// Pictures: bitmaps of 32-bit pixels, immutable and shared.
//
// A Bitmap is the plain memory: width x height pixels, rows from the top, no padding between rows.
// A Picture is a handle on a Bitmap that nobody writes any more: copying one is free, any number of holders
// can share one decoding, and whoever wants to write takes a Bitmap of its own (Picture::CopyBitmap). A
// Picture without a bitmap is the empty picture ("nothing").
#pragma once

#include "forms/PixelMemory.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace mirelle {

// A colour value 0x00BBGGRR, as RGB and Point give it; -1 stands for "off the picture".
using Color = std::int32_t;

constexpr Color kOffPicture = -1;

// One pixel in memory order: byte 0 blue, 1 green, 2 red, 3 the fourth byte.
struct Pixel {
    std::uint8_t blue = 0;
    std::uint8_t green = 0;
    std::uint8_t red = 0;
    std::uint8_t fourth = 0;

    friend bool operator==(const Pixel&, const Pixel&) = default;
};
static_assert(sizeof(Pixel) == 4 && alignof(Pixel) == 1);

constexpr Color ColorOf(Pixel pixel) {
    return (static_cast<Color>(pixel.blue) << 16) | (static_cast<Color>(pixel.green) << 8) | pixel.red;
}
constexpr Pixel PixelOf(Color color) {
    return {static_cast<std::uint8_t>(color >> 16), static_cast<std::uint8_t>(color >> 8),
            static_cast<std::uint8_t>(color), 0};
}

// RGB(red, green, blue): a component above 255 counts as 255, a negative one as 0.
constexpr Color RGB(int red, int green, int blue) {
    const auto limited = [](int component) { return component < 0 ? 0 : component > 255 ? 255 : component; };
    return (limited(blue) << 16) | (limited(green) << 8) | limited(red);
}

class Bitmap {
public:
    Bitmap() = default;
    // Every pixel is `fill`. Raises error 7 when the memory for it can't be had, 5 for a negative size.
    Bitmap(int width, int height, Pixel fill = {});
    // Its pixels hold anything until they are written. Raises the same errors.
    static Bitmap Unwritten(int width, int height);

    Bitmap(const Bitmap&) = default;
    Bitmap& operator=(const Bitmap&) = default;
    // What is moved from has no size.
    Bitmap(Bitmap&& other) noexcept;
    Bitmap& operator=(Bitmap&& other) noexcept;

    int Width() const { return width_; }
    int Height() const { return height_; }
    bool IsEmpty() const { return pixels_.empty(); }
    std::size_t ByteCount() const { return pixels_.size() * sizeof(Pixel); }

    // x in 0..Width()-1, y in 0..Height()-1, unchecked.
    Pixel& At(int x, int y) { return pixels_[Index(x, y)]; }
    const Pixel& At(int x, int y) const { return pixels_[Index(x, y)]; }
    std::span<Pixel> Row(int y) { return {pixels_.data() + Index(0, y), static_cast<std::size_t>(width_)}; }
    std::span<const Pixel> Row(int y) const {
        return {pixels_.data() + Index(0, y), static_cast<std::size_t>(width_)};
    }
    std::span<Pixel> Pixels() { return pixels_; }
    std::span<const Pixel> Pixels() const { return pixels_; }
    bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

    friend bool operator==(const Bitmap&, const Bitmap&) = default;

private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<Pixel, PixelAllocator<Pixel>> pixels_;
};

class Picture {
public:
    Picture() = default;
    // Raises error 7 when the memory for the handle can't be had; the bitmap is the caller's then.
    explicit Picture(Bitmap&& bitmap);

    bool IsEmpty() const { return bitmap_ == nullptr; }
    int Width() const { return bitmap_ ? bitmap_->Width() : 0; }
    int Height() const { return bitmap_ ? bitmap_->Height() : 0; }
    // The pixels; of the empty picture a bitmap of no size.
    const Bitmap& Pixels() const;
    // A bitmap of the caller's own to write in. Raises error 7 when the memory for it can't be had.
    Bitmap CopyBitmap() const;
    bool SharesPixelsWith(const Picture& other) const { return bitmap_ == other.bitmap_; }

private:
    // A surface shows and hands out its image as a picture; it writes only where nobody else holds the
    // bitmap.
    friend class Surface;
    explicit Picture(std::shared_ptr<Bitmap> bitmap) : bitmap_(std::move(bitmap)) {}

    std::shared_ptr<Bitmap> bitmap_;
};

} // namespace mirelle
