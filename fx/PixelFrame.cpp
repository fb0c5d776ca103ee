#include "fx/PixelFrame.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace mirelle {
namespace {

std::size_t BytesToCopy(const PixelFrame& frame, const Bitmap& bitmap) {
    if (frame.bytes.IsEmpty()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const auto asked = static_cast<std::size_t>(std::max<std::int64_t>(frame.ByteCount(), 0));
    return std::min({asked, bitmap.ByteCount(), frame.bytes.Pixels().size_bytes()});
}

// Pixel& or const Pixel&.
template <class APixel>
auto& Channel(APixel& pixel, int channel) {
    switch (channel) {
    case 0:
        return pixel.blue;
    case 1:
        return pixel.green;
    case 2:
        return pixel.red;
    default:
        return pixel.fourth;
    }
}

} // namespace

BitmapRecord RecordOf(int width, int height) {
    constexpr int bytesPerPixel = static_cast<int>(sizeof(Pixel));
    return {
        .bmWidth = width,
        .bmHeight = height,
        .bmWidthBytes = Long(width) * Long(bytesPerPixel),
        .bmPlanes = 1,
        .bmBitsPixel = 8 * bytesPerPixel,
    };
}

void PixelArray::Redim(const BitmapRecord& record) {
    if (record.bmWidth == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
    const double quotient = static_cast<double>(record.bmWidthBytes) / record.bmWidth;
    const bool sound = ToLong(quotient - 1) == kChannels - 1 && record.bmWidth > 0 && record.bmHeight > 0;
    if (!sound) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    width_ = record.bmWidth;
    height_ = record.bmHeight;
    shared_ = {};
    own_ = {};
}

const Bitmap& PixelArray::Bytes() const {
    if (!shared_.IsEmpty()) return shared_.Pixels();
    if (own_.IsEmpty()) own_ = Bitmap(width_, height_);
    return own_;
}

Bitmap& PixelArray::OwnBytes() {
    if (own_.IsEmpty()) {
        own_ = shared_.IsEmpty() ? Bitmap(width_, height_) : shared_.CopyBitmap();
        shared_ = {};
    }
    return own_;
}

void PixelArray::Share(const Picture& picture) {
    shared_ = picture;
    own_ = {};
}

Picture PixelArray::Share() {
    if (shared_.IsEmpty()) shared_ = Picture(std::exchange(OwnBytes(), {}));
    return shared_;
}

void PixelArray::ForgetElements() {
    if (own_.IsEmpty()) own_ = Bitmap::Unwritten(width_, height_);
    shared_ = {};
}

void PixelArray::CheckSubscripts(int channel, int x, int y) const {
    const bool inside = channel >= 0 && channel < kChannels && x >= 0 && x < width_ && y >= 0 && y < height_;
    if (!inside) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
}

std::uint8_t& PixelArray::At(int channel, int x, int y) {
    CheckSubscripts(channel, x, y);
    return Channel(OwnBytes().At(x, y), channel);
}

std::uint8_t PixelArray::At(int channel, int x, int y) const {
    CheckSubscripts(channel, x, y);
    return Channel(Bytes().At(x, y), channel);
}

void PixelFrame::SizeFor(int width, int height) {
    info = RecordOf(width, height);
    bytes.Redim(info);
}

void GetBitmapBits(const Bitmap& from, PixelFrame& to) {
    const std::size_t count = BytesToCopy(to, from);
    if (count != 0) std::memcpy(to.bytes.Pixels().data(), from.Pixels().data(), count);
}

void GetBitmapBits(const Picture& from, PixelFrame& to) {
    if (to.IsAllOf(from.Width(), from.Height())) return to.bytes.Share(from);
    GetBitmapBits(from.Pixels(), to);
}

void SetBitmapBits(Bitmap& to, const PixelFrame& from) {
    const std::size_t count = BytesToCopy(from, to);
    if (count != 0) std::memcpy(to.Pixels().data(), from.bytes.Pixels().data(), count);
}

} // namespace mirelle
