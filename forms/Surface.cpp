#include "forms/Surface.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"
#include "forms/Stretch.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace mirelle {
namespace {

// What of a run of pixels exists on both sides, as a part of the run.
struct Clipped {
    int skip = 0;
    int length = 0;
};

// The run goes from one place to another; both may lie anywhere, so that their sums need the wider numbers.
Clipped Clip(int length, std::int64_t from, int sourceLength, std::int64_t to, int targetLength) {
    const std::int64_t skip = std::max({std::int64_t{0}, -from, -to});
    const std::int64_t end = std::min({std::int64_t{length}, sourceLength - from, targetLength - to});
    if (end <= skip) return {};
    return {static_cast<int>(skip), static_cast<int>(end - skip)};
}

// In one go: of std::ranges::copy from constant pixels GCC 12 makes a step for each.
void CopyRow(std::span<const Pixel> from, std::span<Pixel> to) {
    std::copy(from.begin(), from.end(), to.begin());
}

void CopyRect(const Bitmap& source, PixelArea from, Bitmap& target, int left, int top) {
    const Clipped across = Clip(from.width, from.x, source.Width(), left, target.Width());
    const Clipped down = Clip(from.height, from.y, source.Height(), top, target.Height());
    if (across.length == 0) return;
    for (int y = down.skip; y < down.skip + down.length; ++y) {
        const auto row = source.Row(from.y + y)
                             .subspan(static_cast<std::size_t>(from.x + across.skip),
                                      static_cast<std::size_t>(across.length));
        CopyRow(row, target.Row(top + y).subspan(static_cast<std::size_t>(left + across.skip)));
    }
}

PixelArea WholeOf(const Bitmap& bitmap) {
    return {0, 0, bitmap.Width(), bitmap.Height()};
}

template <class... Arguments>
std::shared_ptr<Bitmap> NewBitmap(Arguments&&... arguments) {
    return WithinMemory([&] { return std::make_shared<Bitmap>(std::forward<Arguments>(arguments)...); });
}

} // namespace

void Surface::Resize(int width, int height) {
    width = std::max(width, 0);
    height = std::max(height, 0);
    if (width == width_ && height == height_) return;
    std::shared_ptr<Bitmap> resized;
    if (image_ && painted_) {
        resized = NewBitmap(width, height, PixelOf(background_));
        CopyRect(*image_, WholeOf(*image_), *resized, 0, 0);
    }
    image_ = std::move(resized);
    width_ = width;
    height_ = height;
}

void Surface::Assign(Picture picture) {
    picture_ = std::move(picture);
    image_ = nullptr;
    painted_ = false;
}

void Surface::SetBackground(Color background) {
    background_ = background;
    image_ = nullptr;
    painted_ = false;
}

void Surface::Clear() {
    image_ = nullptr;
    painted_ = false;
}

Picture Surface::Image() const {
    if (!image_ && picture_.Width() == width_ && picture_.Height() == height_ && !picture_.IsEmpty())
        return picture_;
    if (!image_) image_ = Compose();
    return Picture(image_);
}

Bitmap& Surface::Paint() {
    if (!image_) {
        image_ = Compose();
    } else if (image_.use_count() > 1) {
        image_ = NewBitmap(*image_);
    }
    painted_ = true;
    return *image_;
}

void Surface::PaintRows(const PaintRow& paint) {
    const bool inPlace = image_ && image_.use_count() == 1;
    const auto painted = inPlace ? image_ : NewBitmap(Bitmap::Unwritten(width_, height_));
    for (int y = 0; y < height_; ++y) {
        const std::span<Pixel> row = painted->Row(y);
        paint(y, image_ ? std::as_const(*image_).Row(y) : ComposedRow(y, row), row);
    }
    image_ = painted;
    painted_ = true;
}

void Surface::Show(const Picture& image) {
    if (image.Width() == width_ && image.Height() == height_ && !image.IsEmpty()) {
        image_ = image.bitmap_;
        painted_ = true;
    } else {
        Copy(image.Pixels(), WholeOf(image.Pixels()), 0, 0);
    }
}

Color Surface::Point(double x, double y) const {
    const double column = RoundHalfEven(x);
    const double row = RoundHalfEven(y);
    const bool inside = column >= 0 && column < width_ && row >= 0 && row < height_;
    if (!inside) return kOffPicture;
    const int left = static_cast<int>(column);
    const int top = static_cast<int>(row);
    if (image_) return ColorOf(image_->At(left, top));
    const Bitmap& assigned = picture_.Pixels();
    return assigned.Contains(left, top) ? ColorOf(assigned.At(left, top)) : background_;
}

void Surface::Copy(const Bitmap& source, PixelArea from, int left, int top) {
    if (from.IsEmpty()) return;
    const bool paintsAll = Clip(from.width, from.x, source.Width(), left, width_).length == width_ &&
                           Clip(from.height, from.y, source.Height(), top, height_).length == height_;
    const bool hasOwn = image_ && image_.use_count() == 1;
    // Where nothing is left of what was there, it need not be made first.
    if (paintsAll && !hasOwn) image_ = NewBitmap(Bitmap::Unwritten(width_, height_));
    // The source may be this surface's own image, which whoever asks for the copy holds: so it is not painted
    // in.
    CopyRect(source, from, Paint(), left, top);
}

void Surface::Stretch(const Picture& picture) {
    const bool wasPainted = painted_;
    try {
        StretchHalftone(picture.Pixels(), WholeOf(picture.Pixels()), Paint(), {0, 0, width_, height_});
    } catch (...) {
        painted_ = wasPainted;
        throw;
    }
}

std::shared_ptr<Bitmap> Surface::Compose() const {
    auto composed = NewBitmap(Bitmap::Unwritten(width_, height_));
    for (int y = 0; y < height_; ++y) {
        const std::span<Pixel> row = composed->Row(y);
        const std::span<const Pixel> shown = ComposedRow(y, row);
        if (shown.data() != row.data()) CopyRow(shown, row);
    }
    return composed;
}

std::span<const Pixel> Surface::ComposedRow(int y, std::span<Pixel> row) const {
    const Bitmap& assigned = picture_.Pixels();
    const std::span<const Pixel> shown = y < assigned.Height() ? assigned.Row(y) : std::span<const Pixel>();
    if (shown.size() >= row.size()) return shown.first(row.size());
    CopyRow(shown, row);
    std::ranges::fill(row.subspan(shown.size()), PixelOf(background_));
    return row;
}

} // namespace mirelle
