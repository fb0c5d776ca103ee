#include "forms/RunTimeError.h"
#include "fx/fast/PixelRuns.h"
#include "fx/PointSet.h"

#include <algorithm>
#include <cstdlib>

namespace mirelle {
namespace fast {
namespace {

enum class ReadOrder { LeftToRight, RightToLeft };

// How many pixels of row y the plain loop writes before a subscript leaves one of the arrays. Read from the
// right, a source array that is narrower than its record fails at once.
int PixelsOfRow(const PixelFrame& source, const PixelFrame& destination, int y, int sourceY,
                ReadOrder order) {
    const PixelArray& from = source.bytes;
    const PixelArray& to = destination.bytes;
    const int width = source.info.bmWidth;
    if (y >= to.Height() || sourceY >= from.Height()) return 0;
    if (order == ReadOrder::RightToLeft && width > from.Width()) return 0;
    return std::min({width, from.Width(), to.Width()});
}

// Every row is read and every element of the destination written, with 0 for its fourth byte.
bool WritesAll(const PixelFrame& source, const PixelFrame& destination) {
    return source.IsAllOf(destination.bytes.Width(), destination.bytes.Height());
}

// Runs work(from, to, pixels) on every row of the source's record, from the top. At the first pixel that lies
// beyond a bound it raises error 9; what comes before it is written.
template <class SourceRow, class Work>
void EachRow(const PixelFrame& source, PixelFrame& destination, ReadOrder order, const SourceRow& sourceRow,
             const Work& work) {
    const int width = source.info.bmWidth;
    if (width <= 0) return;
    if (WritesAll(source, destination)) destination.bytes.ForgetElements();
    for (int y = 0; y < source.info.bmHeight; ++y) {
        const int sourceY = sourceRow(y);
        const int pixels = PixelsOfRow(source, destination, y, sourceY, order);
        if (pixels > 0) {
            // From the right, the last of the pixels that are read is the one at the record's right end.
            const int first = order == ReadOrder::LeftToRight ? 0 : width - pixels;
            work(source.bytes.Row(sourceY).data() + first, destination.bytes.Row(y).data(),
                 static_cast<std::size_t>(pixels));
        }
        if (pixels < width) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
}

template <class Work>
void EachRow(const PixelFrame& source, PixelFrame& destination, const Work& work) {
    EachRow(
        source, destination, ReadOrder::LeftToRight, [](int y) { return y; }, work);
}

void Invert(const PixelFrame& source, PixelFrame& destination, const PointArguments&) {
    EachRow(source, destination, InvertPixels);
}

void FlipVertical(const PixelFrame& source, PixelFrame& destination, const PointArguments&) {
    const int last = source.info.bmHeight - 1;
    EachRow(
        source, destination, ReadOrder::LeftToRight, [last](int y) { return last - y; }, CopyPixels);
}

void FlipHorizontal(const PixelFrame& source, PixelFrame& destination, const PointArguments&) {
    EachRow(
        source, destination, ReadOrder::RightToLeft, [](int y) { return y; }, ReversePixels);
}

void GreyScale(const PixelFrame& source, PixelFrame& destination, const PointArguments&) {
    EachRow(source, destination, GreyPixels);
}

void SwapChannels(const PixelFrame& source, PixelFrame& destination, const PointArguments& arguments) {
    const auto& swap = arguments.swap;
    const bool sound =
        std::all_of(swap.begin(), swap.end(), [](int c) { return c >= 0 && c < PixelArray::kChannels; });
    if (!sound) return kPlainPoints.SwapChannels(source, destination, arguments);
    EachRow(source, destination, [&](const Pixel* from, Pixel* to, std::size_t pixels) {
        ExchangeChannels(from, to, pixels, swap);
    });
}

void ShiftColors(const PixelFrame& source, PixelFrame& destination, const PointArguments& arguments) {
    const auto& [blue, green, red] = arguments.shifts;
    constexpr int surelyWithin16Bits = 32000;
    if (std::max({blue, green, red}) > surelyWithin16Bits) {
        return kPlainPoints.ShiftColors(source, destination, arguments);
    }
    const ChannelShift shift = ChannelShift::Of(blue, green, red);
    EachRow(source, destination,
            [&](const Pixel* from, Pixel* to, std::size_t pixels) { ShiftPixels(from, to, pixels, shift); });
}

void Copy(const PixelFrame& source, PixelFrame& destination, const PointArguments&) {
    EachRow(source, destination, CopyPixels);
}

} // namespace
} // namespace fast

const PointSet kFastPoints{
    .Invert = fast::Invert,
    .FlipVertical = fast::FlipVertical,
    .FlipHorizontal = fast::FlipHorizontal,
    .GreyScale = fast::GreyScale,
    .SwapChannels = fast::SwapChannels,
    .ShiftColors = fast::ShiftColors,
    .Copy = fast::Copy,
};

} // namespace mirelle
