#include "fx/PixelFrame.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <cstring>

namespace mirelle {
namespace {

std::size_t BytesToCopy(const PixelFrame& frame, const Bitmap& bitmap) {
    if (frame.bytes.Pixels().empty()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const auto asked = static_cast<std::size_t>(std::max<std::int64_t>(frame.ByteCount(), 0));
    return std::min({asked, bitmap.ByteCount(), frame.bytes.Pixels().size_bytes()});
}

} // namespace

BitmapRecord RecordOf(const Bitmap& bitmap) {
    constexpr int bytesPerPixel = static_cast<int>(sizeof(Pixel));
    return {
        .bmWidth = bitmap.Width(),
        .bmHeight = bitmap.Height(),
        .bmWidthBytes = Long(bitmap.Width()) * Long(bytesPerPixel),
        .bmPlanes = 1,
        .bmBitsPixel = 8 * bytesPerPixel,
    };
}

void PixelArray::Redim(const BitmapRecord& record) {
    if (record.bmWidth == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
    const double quotient = static_cast<double>(record.bmWidthBytes) / record.bmWidth;
    const bool sound = ToLong(quotient - 1) == kChannels - 1 && record.bmWidth > 0 && record.bmHeight > 0;
    if (!sound) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    pixels_ = Bitmap(record.bmWidth, record.bmHeight);
}

void PixelArray::CheckSubscripts(int channel, int x, int y) const {
    if (channel < 0 || channel >= kChannels || !pixels_.Contains(x, y)) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
}

std::uint8_t& PixelArray::At(int channel, int x, int y) {
    CheckSubscripts(channel, x, y);
    Pixel& pixel = pixels_.At(x, y);
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

std::uint8_t PixelArray::At(int channel, int x, int y) const {
    return const_cast<PixelArray&>(*this).At(channel, x, y);
}

void PixelFrame::SizeFor(const Bitmap& bitmap) {
    info = RecordOf(bitmap);
    bytes.Redim(info);
}

void GetBitmapBits(const Bitmap& from, PixelFrame& to) {
    const std::size_t count = BytesToCopy(to, from);
    if (count != 0) std::memcpy(to.bytes.Pixels().data(), from.Pixels().data(), count);
}

void SetBitmapBits(Bitmap& to, const PixelFrame& from) {
    const std::size_t count = BytesToCopy(from, to);
    if (count != 0) std::memcpy(to.Pixels().data(), from.bytes.Pixels().data(), count);
}

} // namespace mirelle
