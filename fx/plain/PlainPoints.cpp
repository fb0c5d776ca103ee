#include "forms/Numbers.h"
#include "fx/ByteMe.h"
#include "fx/PointSet.h"

namespace mirelle {
namespace plain {
namespace {

constexpr std::array kWrittenChannels{2, 1, 0};

template <class Step>
void EachPixel(const PixelFrame& source, Step&& step) {
    for (int y = 0; y < source.info.bmHeight; ++y) {
        for (int x = 0; x < source.info.bmWidth; ++x)
            step(x, y);
    }
}

void Invert(const PixelFrame& source, PixelFrame& destination, const PointArguments&) {
    EachPixel(source, [&](int x, int y) {
        for (const int c : kWrittenChannels) {
            destination.bytes.At(c, x, y) = static_cast<std::uint8_t>(255 - source.bytes.At(c, x, y));
        }
    });
}

void FlipVertical(const PixelFrame& source, PixelFrame& destination, const PointArguments&) {
    const int last = source.info.bmHeight - 1;
    EachPixel(source, [&](int x, int y) {
        for (const int c : kWrittenChannels)
            destination.bytes.At(c, x, y) = source.bytes.At(c, x, last - y);
    });
}

void FlipHorizontal(const PixelFrame& source, PixelFrame& destination, const PointArguments&) {
    const int last = source.info.bmWidth - 1;
    EachPixel(source, [&](int x, int y) {
        for (const int c : kWrittenChannels)
            destination.bytes.At(c, x, y) = source.bytes.At(c, last - x, y);
    });
}

// The weights add up to 1, so the value stays within 0 to 255. The sum is taken in this order, in doubles:
// where it comes near a half, the order decides.
void GreyScale(const PixelFrame& source, PixelFrame& destination, const PointArguments&) {
    EachPixel(source, [&](int x, int y) {
        const double red = source.bytes.At(2, x, y);
        const double green = source.bytes.At(1, x, y);
        const double blue = source.bytes.At(0, x, y);
        const Integer grey = ToInteger(red * 0.222 + green * 0.707 + blue * 0.071);
        for (const int c : kWrittenChannels) {
            destination.bytes.At(c, x, y) = static_cast<std::uint8_t>(grey.Value());
        }
    });
}

void SwapChannels(const PixelFrame& source, PixelFrame& destination, const PointArguments& arguments) {
    EachPixel(source, [&](int x, int y) {
        for (const int c : kWrittenChannels) {
            destination.bytes.At(c, x, y) =
                source.bytes.At(arguments.swap[static_cast<std::size_t>(c)], x, y);
        }
    });
}

void ShiftColors(const PixelFrame& source, PixelFrame& destination, const PointArguments& arguments) {
    EachPixel(source, [&](int x, int y) {
        for (int c = 0; c <= 2; ++c) {
            Integer pixel =
                Integer(source.bytes.At(c, x, y)) + Integer(arguments.shifts[static_cast<std::size_t>(c)]);
            ByteMe(pixel);
            destination.bytes.At(c, x, y) = static_cast<std::uint8_t>(pixel.Value());
        }
    });
}

void Copy(const PixelFrame& source, PixelFrame& destination, const PointArguments&) {
    EachPixel(source, [&](int x, int y) {
        for (const int c : kWrittenChannels)
            destination.bytes.At(c, x, y) = source.bytes.At(c, x, y);
    });
}

} // namespace
} // namespace plain

const PointSet kPlainPoints{
    .Invert = plain::Invert,
    .FlipVertical = plain::FlipVertical,
    .FlipHorizontal = plain::FlipHorizontal,
    .GreyScale = plain::GreyScale,
    .SwapChannels = plain::SwapChannels,
    .ShiftColors = plain::ShiftColors,
    .Copy = plain::Copy,
};

} // namespace mirelle
