#include "fx/fast/FastKernels.h"
#include "fx/fast/Lanes.h"

#include <algorithm>

namespace mirelle::fast {
namespace {

// What is left of all the stores of the effect, by place:
//   even x, even y: the source;
//   odd x, even y: the mean with the right neighbour, whose green is its red; in a last column the plain
//     mean with the left one;
//   even x, odd y: the mean with the pixel below;
//   odd x, odd y: the mean with the pixel at the lower right; in a last column with that at the lower left;
//   an odd y in the last row: nothing, it stays 0.

// All bits for the odd pixels of a block.
constexpr std::array<std::uint32_t, kBlockPixels> kOddPixels = [] {
    std::array<std::uint32_t, kBlockPixels> words{};
    for (std::size_t k = 1; k < kBlockPixels; k += 2)
        words[k] = ~std::uint32_t{0};
    return words;
}();

MIRELLE_INLINE std::uint32_t Chosen(std::size_t k, std::uint32_t odd, std::uint32_t even) {
    return (odd & kOddPixels[k]) | (even & ~kOddPixels[k]);
}

MIRELLE_INLINE Pixel MeanOf(Pixel a, Pixel b) {
    const std::uint32_t mean =
        MeanToEven(std::bit_cast<std::uint32_t>(a), std::bit_cast<std::uint32_t>(b)) & kColorBytes;
    return std::bit_cast<Pixel>(mean);
}

void EvenRow(const Pixel* row, Pixel* destination, std::size_t width) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        const std::size_t last = width - 1;
        EachWord(
            last, destination,
            [](std::size_t k, std::uint32_t s, std::uint32_t right) MIRELLE_LAMBDA {
                const std::uint32_t neighbour = (right & 0xFF00FF) | (right >> 8 & 0x00FF00);
                return Chosen(k, MeanToEven(s, neighbour), s);
            },
            row, row + 1);
        destination[last] = last % 2 == 0 ? Pixel{row[last].blue, row[last].green, row[last].red, 0}
                                          : MeanOf(row[last], row[last - 1]);
    });
}

void OddRow(const Pixel* row, const Pixel* below, Pixel* destination, std::size_t width) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        const std::size_t last = width - 1;
        EachWord(
            last, destination,
            [](std::size_t k, std::uint32_t s, std::uint32_t under, std::uint32_t lowerRight)
                MIRELLE_LAMBDA { return MeanToEven(s, Chosen(k, lowerRight, under)); },
            row, below, below + 1);
        destination[last] = MeanOf(row[last], last % 2 == 0 ? below[last] : below[last - 1]);
    });
}

} // namespace

void FXPixelated(const KernelFrame& frame, const KernelArguments&) {
    const auto width = static_cast<std::size_t>(frame.width);
    const auto height = static_cast<std::size_t>(frame.height);
    for (std::size_t y = 0; y < height; ++y) {
        const Pixel* row = frame.source.data() + y * width;
        Pixel* destination = frame.destination.data() + y * width;
        if (y % 2 == 0) {
            EvenRow(row, destination, width);
        } else if (y + 1 < height) {
            OddRow(row, row + width, destination, width);
        } else {
            std::fill_n(destination, width, Pixel{});
        }
    }
}

} // namespace mirelle::fast
