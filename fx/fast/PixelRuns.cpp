#include "fx/fast/PixelRuns.h"

#include <algorithm>

namespace mirelle::fast {
namespace {

// Added to a float of less than 2^22, or a double of less than 2^51, it rounds it to a whole number, a tie to
// the even one, that stands in the lowest bits.
constexpr float kFloatToWhole = 12582912.0F;          // 1.5 x 2^23
constexpr double kDoubleToWhole = 6755399441055744.0; // 1.5 x 2^52

// Pixels that are looked at for ties together.
constexpr std::size_t kGreyPixels = 2 * kBlockPixels;

MIRELLE_INLINE std::uint32_t InAllChannels(std::uint32_t value) {
    return (value & 0xFF) * 0x010101;
}

MIRELLE_INLINE void GreyInDoubles(const Pixel* from, Pixel* to, std::size_t pixels) {
    const std::uint8_t* in = BytesOf(from);
    std::uint8_t* out = BytesOf(to);
    MIRELLE_INDEPENDENT
    for (std::size_t i = 0; i < pixels; ++i) {
        const std::uint8_t* pixel = in + 4 * i;
        const double grey = pixel[2] * 0.222 + pixel[1] * 0.707 + pixel[0] * 0.071;
        const auto bits = std::bit_cast<std::uint64_t>(grey + kDoubleToWhole);
        SetWord(out + 4 * i, InAllChannels(static_cast<std::uint32_t>(bits)));
    }
}

// In thousandths the weighted sum is a whole number n, and a float can round its thousandth part for every n
// but those that end in 500. Gives whether there was such a tie.
MIRELLE_INLINE bool GreyInFloats(const Pixel* from, Pixel* to) {
    const std::uint8_t* in = BytesOf(from);
    std::uint8_t* out = BytesOf(to);
    std::uint32_t farthest = 0;
    MIRELLE_INDEPENDENT
    for (std::size_t i = 0; i < kGreyPixels; ++i) {
        const std::uint32_t pixel = Word(in + 4 * i);
        // Channels are left where they stand in the word: divided by a power of two a weight stays exact.
        const auto inPlace = [pixel](std::uint32_t mask) MIRELLE_LAMBDA {
            return static_cast<float>(static_cast<std::int32_t>(pixel & mask));
        };
        const float n = inPlace(0xFF0000) * (222.0F / 65536) + inPlace(0x00FF00) * (707.0F / 256) +
                        inPlace(0x0000FF) * 71.0F;
        const float rounded = n * 0.001F + kFloatToWhole;
        const float rest = n - (rounded - kFloatToWhole) * 1000.0F;
        // The bits of floats that are not negative have the order of the floats.
        const std::uint32_t distance = std::bit_cast<std::uint32_t>(rest) & 0x7FFFFFFF;
        farthest = farthest > distance ? farthest : distance;
        SetWord(out + 4 * i, InAllChannels(std::bit_cast<std::uint32_t>(rounded)));
    }
    return farthest == std::bit_cast<std::uint32_t>(500.0F);
}

} // namespace

void CopyPixels(const Pixel* from, Pixel* to, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachWord(
            pixels, to, [](std::size_t, std::uint32_t s) MIRELLE_LAMBDA { return s; }, from);
    });
}

void InvertPixels(const Pixel* from, Pixel* to, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachWord(
            pixels, to, [](std::size_t, std::uint32_t s) MIRELLE_LAMBDA { return ~s; }, from);
    });
}

void ReversePixels(const Pixel* from, Pixel* to, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        const std::uint8_t* in = BytesOf(from);
        std::uint8_t* out = BytesOf(to);
        MIRELLE_INDEPENDENT
        for (std::size_t x = 0; x < pixels; ++x) {
            SetWord(out + 4 * x, Word(in + 4 * (pixels - 1 - x)) & kColorBytes);
        }
    });
}

// A tie is decided by the rounding errors of the sum in doubles, so that the few groups of pixels that hold
// one are done over in that way.
void GreyPixels(const Pixel* from, Pixel* to, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        std::size_t done = 0;
        for (; done + kGreyPixels <= pixels; done += kGreyPixels) {
            const bool anyTie = GreyInFloats(from + done, to + done);
            if (anyTie) GreyInDoubles(from + done, to + done, kGreyPixels);
        }
        GreyInDoubles(from + done, to + done, pixels - done);
    });
}

void ExchangeChannels(const Pixel* from, Pixel* to, std::size_t pixels, const std::array<int, 3>& swap) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        const int blue = 8 * swap[0];
        const int green = 8 * swap[1];
        const int red = 8 * swap[2];
        EachWord(
            pixels, to,
            [=](std::size_t, std::uint32_t s) MIRELLE_LAMBDA {
                return (s >> blue & 0xFF) | (s >> green & 0xFF) << 8 | (s >> red & 0xFF) << 16;
            },
            from);
    });
}

ChannelShift ChannelShift::Of(int blue, int green, int red) {
    const auto byte = [](int amount) { return static_cast<std::uint8_t>(std::clamp(amount, 0, 255)); };
    return {BlockPattern::Of(byte(blue), byte(green), byte(red)),
            BlockPattern::Of(byte(-blue), byte(-green), byte(-red))};
}

void ShiftPixels(const Pixel* from, Pixel* to, std::size_t pixels, const ChannelShift& shift) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachByte(
            pixels, to,
            [&](std::size_t k, std::uint8_t c)
                MIRELLE_LAMBDA { return DifferenceTo0(SumTo255(c, shift.gain[k]), shift.loss[k]); },
            from);
    });
}

} // namespace mirelle::fast
