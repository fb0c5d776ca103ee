// Loops over pixels that a compiler turns into vector code, as bytes or as 32-bit words.
//
// A word is a pixel as the memory holds it: blue in the lowest byte, then green, red and the fourth byte.
// Work runs in blocks of a fixed number of pixels, so that no loop has a remainder; a part of a block is done
// in a copy. Every result's fourth byte is 0, whatever the work gives there.
#pragma once

#include "forms/FunctionVersions.h"
#include "forms/Picture.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>

namespace mirelle::fast {

static_assert(std::endian::native == std::endian::little, "words of pixels have blue in the lowest byte");

// More than 16, or GCC takes the loop over a block's words apart before it looks for vectors.
constexpr std::size_t kBlockPixels = 32;
constexpr std::size_t kBlockBytes = 4 * kBlockPixels;

constexpr std::uint32_t kColorBytes = 0x00FFFFFF;
constexpr std::uint32_t kEveryLowBit = 0x01010101;
constexpr std::uint32_t kEveryBitButHigh = 0x7F7F7F7F;

// One byte for each byte of a block, the same for every pixel.
struct BlockPattern {
    alignas(kBlockBytes) std::uint8_t bytes[kBlockBytes];

    static constexpr BlockPattern Of(std::uint8_t blue, std::uint8_t green, std::uint8_t red,
                                     std::uint8_t fourth = 0) {
        BlockPattern pattern{};
        const std::uint8_t pixel[4] = {blue, green, red, fourth};
        for (std::size_t k = 0; k < kBlockBytes; ++k)
            pattern.bytes[k] = pixel[k % 4];
        return pattern;
    }
    constexpr std::uint8_t operator[](std::size_t k) const { return bytes[k]; }
};
inline constexpr BlockPattern kColorPattern = BlockPattern::Of(255, 255, 255);

MIRELLE_INLINE const std::uint8_t* BytesOf(const Pixel* pixels) {
    return reinterpret_cast<const std::uint8_t*>(pixels);
}
MIRELLE_INLINE std::uint8_t* BytesOf(Pixel* pixels) {
    return reinterpret_cast<std::uint8_t*>(pixels);
}

MIRELLE_INLINE std::uint32_t Word(const std::uint8_t* pixel) {
    std::uint32_t word;
    std::memcpy(&word, pixel, sizeof word);
    return word;
}
MIRELLE_INLINE void SetWord(std::uint8_t* pixel, std::uint32_t word) {
    std::memcpy(pixel, &word, sizeof word);
}

// Runs work(count, out, in...) over so many pixels in parts of `part` pixels, of which the first `count` are
// the picture's: fewer than all of them in the last part, which is done in a copy.
template <std::size_t part, class Work, class... In>
MIRELLE_INLINE void EachPart(std::size_t pixels, Pixel* out, const Work& work, const In*... in) {
    std::size_t done = 0;
    for (; done + part <= pixels; done += part)
        work(part, BytesOf(out + done), BytesOf(in + done)...);
    if (const std::size_t rest = pixels - done; rest != 0) {
        const auto copied = [&](const Pixel* from) {
            std::array<Pixel, part> copy{};
            std::memcpy(copy.data(), from, rest * sizeof(Pixel));
            return copy;
        };
        std::array<Pixel, part> result;
        work(rest, BytesOf(result.data()), BytesOf(copied(in + done).data())...);
        std::memcpy(out + done, result.data(), rest * sizeof(Pixel));
    }
}

// Runs block(out, in...) over so many pixels; each call has kBlockPixels of them.
template <class Block, class... In>
MIRELLE_INLINE void EachBlock(std::size_t pixels, Pixel* out, const Block& block, const In*... in) {
    EachPart<kBlockPixels>(
        pixels, out,
        [&](std::size_t, std::uint8_t* to, const auto*... from) MIRELLE_LAMBDA { block(to, from...); },
        in...);
}

// out = byte(k, in...) for every byte; k is the place in the block, for patterns.
template <class Byte, class... In>
MIRELLE_INLINE void EachByte(std::size_t pixels, Pixel* out, const Byte& byte, const In*... in) {
    EachBlock(
        pixels, out,
        [&](std::uint8_t* to, const auto*... from) MIRELLE_LAMBDA {
            MIRELLE_INDEPENDENT
            for (std::size_t k = 0; k < kBlockBytes; ++k) {
                to[k] = static_cast<std::uint8_t>(byte(k, from[k]...) & kColorPattern[k]);
            }
        },
        in...);
}

// Two bytes of a pixel, the one in the lower half first.
MIRELLE_INLINE std::uint16_t TwoBytes(const std::uint8_t* bytes) {
    std::uint16_t two;
    std::memcpy(&two, bytes, sizeof two);
    return two;
}
MIRELLE_INLINE void SetTwoBytes(std::uint8_t* bytes, std::uint16_t two) {
    std::memcpy(bytes, &two, sizeof two);
}

// The lower byte, the upper one, and the two of them joined. Results are cut to 16 bits at every step: left
// to the usual promotion a compiler goes on in 32.
MIRELLE_INLINE std::uint16_t LowByte(std::uint16_t two) {
    return static_cast<std::uint16_t>(two & 0xFF);
}
MIRELLE_INLINE std::uint16_t HighByte(std::uint16_t two) {
    return static_cast<std::uint16_t>(two >> 8);
}
MIRELLE_INLINE std::uint16_t Joined(std::uint16_t low, std::uint16_t high) {
    return static_cast<std::uint16_t>(low | static_cast<std::uint16_t>(high << 8));
}

// The bits of the colour bytes among the two at place k of a block.
MIRELLE_INLINE std::uint16_t ColorBits(std::size_t k) {
    return TwoBytes(kColorPattern.bytes + k);
}

// out = value(in...) for every byte, worked out in 16 bits: bytes come as std::uint16_t, and the value must
// be one from 0 to 255. Even and odd bytes are taken apart in place, which costs vector code less than
// widening bytes in their order.
template <class Value, class... In>
MIRELLE_INLINE void EachWideByte(std::size_t pixels, Pixel* out, const Value& value, const In*... in) {
    EachBlock(
        pixels, out,
        [&](std::uint8_t* to, const auto*... from) MIRELLE_LAMBDA {
            MIRELLE_INDEPENDENT
            for (std::size_t k = 0; k < kBlockBytes; k += 2) {
                const std::uint16_t even = value(LowByte(TwoBytes(from + k))...);
                const std::uint16_t odd = value(HighByte(TwoBytes(from + k))...);
                SetTwoBytes(to + k, static_cast<std::uint16_t>(Joined(even, odd) & ColorBits(k)));
            }
        },
        in...);
}

// out = word(k, in...) for every pixel; k is the place in the block.
template <class WordWork, class... In>
MIRELLE_INLINE void EachWord(std::size_t pixels, Pixel* out, const WordWork& word, const In*... in) {
    EachBlock(
        pixels, out,
        [&](std::uint8_t* to, const auto*... from) MIRELLE_LAMBDA {
            MIRELLE_INDEPENDENT
            for (std::size_t k = 0; k < kBlockPixels; ++k) {
                SetWord(to + 4 * k, word(k, Word(from + 4 * k)...) & kColorBytes);
            }
        },
        in...);
}

// The smaller, the larger, the difference, and sums that stop at the ends of a byte.
MIRELLE_INLINE std::uint8_t Least(std::uint8_t a, std::uint8_t b) {
    return a < b ? a : b;
}
MIRELLE_INLINE std::uint8_t Most(std::uint8_t a, std::uint8_t b) {
    return a > b ? a : b;
}
MIRELLE_INLINE std::uint8_t Distance(std::uint8_t a, std::uint8_t b) {
    return static_cast<std::uint8_t>(Most(a, b) - Least(a, b));
}
MIRELLE_INLINE std::uint8_t SumTo255(std::uint8_t a, std::uint8_t b) {
    return static_cast<std::uint8_t>(Least(a, static_cast<std::uint8_t>(~b)) + b);
}
MIRELLE_INLINE std::uint8_t DifferenceTo0(std::uint8_t a, std::uint8_t b) {
    return static_cast<std::uint8_t>(Most(a, b) - b);
}

// Half a byte, a tie to the even number: the half cut down, and one more where both it and the byte are odd.
MIRELLE_INLINE std::uint8_t HalfToEven(std::uint8_t value) {
    const auto half = static_cast<std::uint8_t>(value >> 1);
    return static_cast<std::uint8_t>(half + (half & value & 1));
}

// The means of the four bytes of two words, cut down: the bytes' common bits and half of the others.
MIRELLE_INLINE std::uint32_t MeanCutDown(std::uint32_t a, std::uint32_t b) {
    return (a & b) + (((a ^ b) >> 1) & kEveryBitButHigh);
}

// The same with ties to even: where the sum is odd and the mean cut down is odd too, the tie goes up.
MIRELLE_INLINE std::uint32_t MeanToEven(std::uint32_t a, std::uint32_t b) {
    const std::uint32_t cut = MeanCutDown(a, b);
    return cut + (cut & (a ^ b) & kEveryLowBit);
}

// Steps in 16 bits. The high half of a product; the distance of two bytes; the smaller one.
MIRELLE_INLINE std::uint16_t HighProduct(std::uint16_t a, std::uint16_t b) {
    return static_cast<std::uint16_t>((std::uint32_t{a} * std::uint32_t{b}) >> 16);
}

MIRELLE_INLINE std::uint16_t WideDistance(std::uint16_t a, std::uint16_t b) {
    const auto difference = static_cast<std::int16_t>(a - b);
    return static_cast<std::uint16_t>(std::abs(difference));
}
MIRELLE_INLINE std::uint16_t WideLeast(std::uint16_t a, std::uint16_t b) {
    return a < b ? a : b;
}

} // namespace mirelle::fast
