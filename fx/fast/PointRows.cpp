#include "fx/fast/PointRows.h"

namespace mirelle::fast {
namespace {

// Added to a float of less than 2^22, or a double of less than 2^51, it rounds it to a whole number, a tie to
// the even one, that stands in the lowest bits.
constexpr float kFloatToWhole = 12582912.0F;          // 1.5 x 2^23
constexpr double kDoubleToWhole = 6755399441055744.0; // 1.5 x 2^52

MIRELLE_INLINE std::uint32_t InAllChannels(std::uint32_t value) {
    return value | value << 8 | value << 16;
}

MIRELLE_INLINE void GreyBlockInDoubles(std::uint8_t* to, const std::uint8_t* from) {
    for (std::size_t k = 0; k < kBlockPixels; ++k) {
        const std::uint8_t* pixel = from + 4 * k;
        const double grey = pixel[2] * 0.222 + pixel[1] * 0.707 + pixel[0] * 0.071;
        const auto bits = std::bit_cast<std::uint64_t>(grey + kDoubleToWhole);
        SetWord(to + 4 * k, InAllChannels(static_cast<std::uint32_t>(bits & 0xFF)));
    }
}

// In thousandths the weighted sum is a whole number n, and a float can round its thousandth part for every n
// but those that end in 500. Such a tie is decided by the rounding errors of the sum in doubles; the few
// blocks that hold one are done over in that way.
MIRELLE_INLINE void GreyBlock(std::uint8_t* to, const std::uint8_t* from) {
    std::uint32_t ties = 0;
    MIRELLE_INDEPENDENT
    for (std::size_t k = 0; k < kBlockPixels; ++k) {
        const std::uint32_t pixel = Word(from + 4 * k);
        const auto channel = [pixel](int shift) MIRELLE_LAMBDA {
            return static_cast<float>(static_cast<std::int32_t>(pixel >> shift & 0xFF));
        };
        const float n = channel(16) * 222.0F + channel(8) * 707.0F + channel(0) * 71.0F;
        const float rounded = n * 0.001F + kFloatToWhole;
        const float rest = n - (rounded - kFloatToWhole) * 1000.0F;
        ties |= rest * rest == 500.0F * 500.0F ? 1U : 0U;
        SetWord(to + 4 * k, InAllChannels(std::bit_cast<std::uint32_t>(rounded) & 0xFF));
    }
    if (ties != 0) GreyBlockInDoubles(to, from);
}

} // namespace

MIRELLE_VERSIONS void CopyRow(const Pixel* from, Pixel* to, std::size_t pixels) {
    EachWord(
        pixels, to, [](std::size_t, std::uint32_t s) MIRELLE_LAMBDA { return s; }, from);
}

MIRELLE_VERSIONS void InvertRow(const Pixel* from, Pixel* to, std::size_t pixels) {
    EachWord(
        pixels, to, [](std::size_t, std::uint32_t s) MIRELLE_LAMBDA { return ~s; }, from);
}

MIRELLE_VERSIONS void ReverseRow(const Pixel* from, Pixel* to, std::size_t pixels) {
    const std::uint8_t* in = BytesOf(from);
    std::uint8_t* out = BytesOf(to);
    MIRELLE_INDEPENDENT
    for (std::size_t x = 0; x < pixels; ++x) {
        SetWord(out + 4 * x, Word(in + 4 * (pixels - 1 - x)) & kColorBytes);
    }
}

MIRELLE_VERSIONS void GreyRow(const Pixel* from, Pixel* to, std::size_t pixels) {
    EachBlock(
        pixels, to, [](std::uint8_t* out, const std::uint8_t* in) MIRELLE_LAMBDA { GreyBlock(out, in); },
        from);
}

MIRELLE_VERSIONS void SwapRow(const Pixel* from, Pixel* to, std::size_t pixels,
                              const std::array<int, 3>& swap) {
    const int blue = 8 * swap[0];
    const int green = 8 * swap[1];
    const int red = 8 * swap[2];
    EachWord(
        pixels, to,
        [=](std::size_t, std::uint32_t s) MIRELLE_LAMBDA {
            return (s >> blue & 0xFF) | (s >> green & 0xFF) << 8 | (s >> red & 0xFF) << 16;
        },
        from);
}

MIRELLE_VERSIONS void ShiftRow(const Pixel* from, Pixel* to, std::size_t pixels, const BlockPattern& gain,
                               const BlockPattern& loss) {
    const BlockPattern gains = gain;
    const BlockPattern losses = loss;
    EachByte(
        pixels, to,
        [&](std::size_t k, std::uint8_t c)
            MIRELLE_LAMBDA { return DifferenceTo0(SumTo255(c, gains[k]), losses[k]); },
        from);
}

} // namespace mirelle::fast
