#include "fx/fast/FastKernels.h"
#include "fx/fast/Lanes.h"
#include "fx/plain/PlainKernels.h"

#include <algorithm>
#include <cstdlib>

namespace mirelle::fast {
namespace {

// 2.5 x (a - b), ties to even, limited to a byte: from a difference of 102 on it is 255 or more.
void Contrasted(const Pixel* a, const Pixel* b, Pixel* destination, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachByte(
            pixels, destination,
            [](std::size_t, std::uint8_t as, std::uint8_t bs) MIRELLE_LAMBDA {
                const std::uint8_t difference = Least(DifferenceTo0(as, bs), 102);
                return static_cast<std::uint8_t>(2 * difference + HalfToEven(difference));
            },
            a, b);
    });
}

// 2.5 x value, ties to even.
int TwoAndAHalfTimes(int value) {
    const int magnitude = std::abs(value);
    const int half = magnitude >> 1;
    const int scaled = 2 * magnitude + half + (half & magnitude & 1);
    return value < 0 ? -scaled : scaled;
}

// The third value of a pass, of a channel and the channel two rows below it.
std::uint8_t ThirdValue(std::uint8_t upper, std::uint8_t lower) {
    const int v = TwoAndAHalfTimes(lower - TwoAndAHalfTimes(upper - lower));
    return static_cast<std::uint8_t>(v < 0 ? 0 : v > 255 ? 255 : v);
}

// The effects that compare a pixel c with its neighbour n at the lower right: value(c, n) for every byte,
// worked out in 16 bits.
//
// In the last column and the last row there is no such neighbour, and that of the pixel before stands: in a
// row's last column the pixel below, in the last row all along the picture's last pixel. A picture of one row
// or one column has no neighbours at all, and 0 stands for them.
template <class Value>
MIRELLE_INLINE void WithNeighbours(const KernelFrame& frame, const Value& value) {
    const auto width = static_cast<std::size_t>(frame.width);
    const auto height = static_cast<std::size_t>(frame.height);
    const Pixel* source = frame.source.data();
    Pixel* destination = frame.destination.data();
    // The same neighbour for several pixels.
    const auto beside = [&](Pixel n, const Pixel* c, Pixel* to, std::size_t pixels) MIRELLE_LAMBDA {
        std::array<Pixel, kBlockPixels> neighbours;
        neighbours.fill(n);
        for (std::size_t done = 0; done < pixels; done += kBlockPixels) {
            const std::size_t part = std::min(kBlockPixels, pixels - done);
            EachWideByte(part, to + done, value, c + done, neighbours.data());
        }
    };

    if (width == 1 || height == 1) return beside(Pixel{}, source, destination, width * height);
    const std::size_t last = width - 1;
    for (std::size_t y = 0; y + 1 < height; ++y) {
        const Pixel* row = source + y * width;
        Pixel* to = destination + y * width;
        EachWideByte(last, to, value, row, row + width + 1);
        beside(row[width + last], row + last, to + last, 1);
    }
    const std::size_t lastRow = (height - 1) * width;
    beside(source[lastRow + last], source + lastRow, destination + lastRow, width);
}

// |c - n| / 2 + 100, ties to even; 100 is even itself.
void HalfDifferences(const KernelFrame& frame) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        WithNeighbours(frame, [](std::uint16_t c, std::uint16_t n) MIRELLE_LAMBDA {
            const std::uint16_t difference = WideDistance(c, n);
            const auto half = static_cast<std::uint16_t>(difference >> 1);
            return static_cast<std::uint16_t>(100 + half + (half & difference & 1));
        });
    });
}

void Embossed(const KernelFrame& frame, std::int16_t offset) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        WithNeighbours(frame, [offset](std::uint16_t c, std::uint16_t n) MIRELLE_LAMBDA {
            const std::uint16_t v = WideDistance(c, static_cast<std::uint16_t>(n + offset));
            const std::uint16_t fits = v <= 255 ? 255 : 0; // what does not fit the byte is not stored
            return static_cast<std::uint16_t>(v & fits);
        });
    });
}

} // namespace

// The first row, the third from below and the last one stay 0.
void FXFlatten(const KernelFrame& frame, const KernelArguments&) {
    if (frame.height < 5) return static_cast<void>(std::ranges::fill(frame.destination, Pixel{}));
    const auto width = static_cast<std::size_t>(frame.width);
    const auto height = static_cast<std::size_t>(frame.height);
    const Pixel* source = frame.source.data();
    Pixel* destination = frame.destination.data();
    const auto blacken = [&](std::size_t row) { std::fill_n(destination + row * width, width, Pixel{}); };
    blacken(0);
    Contrasted(source + width, source + 3 * width, destination + width, (height - 4) * width);
    for (std::size_t i = (height - 2) * width; i < (height - 1) * width; ++i) {
        const Pixel& upper = source[i - 2 * width];
        const Pixel& lower = source[i];
        destination[i] = {ThirdValue(upper.blue, lower.blue), ThirdValue(upper.green, lower.green),
                          ThirdValue(upper.red, lower.red), 0};
    }
    blacken(height - 3);
    blacken(height - 1);
}

void FXFlatten2(const KernelFrame& frame, const KernelArguments&) {
    HalfDifferences(frame);
}

void FXEmboss(const KernelFrame& frame, const KernelArguments& arguments) {
    constexpr int surelyWithin16Bits = 32000;
    const int offset = arguments.amounts[0];
    if (std::abs(offset) > surelyWithin16Bits) return plain::FXEmboss(frame, arguments);
    Embossed(frame, arguments.amounts[0]);
}

} // namespace mirelle::fast
