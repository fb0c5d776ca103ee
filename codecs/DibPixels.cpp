#include "codecs/DibPixels.h"

#include "codecs/LittleEndian.h"
#include "codecs/PictureLimits.h"

#include <algorithm>
#include <bit>

namespace mirelle {
namespace {

using FullPalette = std::array<Pixel, 256>;
using Bytes = std::span<const std::uint8_t>;

// The part of a pixel's bits that a mask tells, brought to eight bits: fewer are repeated downwards, so that
// the greatest value becomes 255, of more the upper eight count.
class MaskedChannel {
public:
    explicit MaskedChannel(std::uint32_t mask)
        : mask_(mask), shift_(mask == 0 ? 0 : std::countr_zero(mask)), bits_(std::bit_width(mask >> shift_)) {
        if (bits_ > 8) {
            shift_ += bits_ - 8;
            bits_ = 8;
        }
        for (std::uint32_t value = 0; value < eightBits_.size(); ++value)
            eightBits_[value] = Widened(value);
    }

    std::uint8_t Of(std::uint32_t pixel) const { return eightBits_[((pixel & mask_) >> shift_) & 0xFF]; }

private:
    std::uint8_t Widened(std::uint32_t value) const {
        if (bits_ == 0) return 0;
        std::uint32_t wide = 0;
        for (int shift = 8 - bits_; shift > -bits_; shift -= bits_)
            wide |= shift >= 0 ? value << shift : value >> -shift;
        return static_cast<std::uint8_t>(wide);
    }

    std::uint32_t mask_;
    int shift_;
    int bits_;
    std::array<std::uint8_t, 256> eightBits_{};
};

struct MaskedChannels {
    MaskedChannel red;
    MaskedChannel green;
    MaskedChannel blue;
    MaskedChannel alpha;
};

void UnpackNumbers(Bytes row, int bitCount, const FullPalette& palette, std::span<Pixel> pixels) {
    const auto bits = static_cast<std::size_t>(bitCount);
    const std::size_t perByte = 8 / bits;
    const unsigned mask = (1u << bits) - 1;
    for (std::size_t x = 0; x < pixels.size(); ++x) {
        const std::size_t shift = 8 - bits - (x % perByte) * bits;
        pixels[x] = palette[(row[x / perByte] >> shift) & mask];
    }
}

void UnpackTriples(Bytes row, std::span<Pixel> pixels) {
    for (std::size_t x = 0; x < pixels.size(); ++x)
        pixels[x] = {row[3 * x], row[3 * x + 1], row[3 * x + 2], 0};
}

// A pixel's bytes, the low one first; without a check, as the rows' length has been checked.
std::uint32_t NumberAt(Bytes row, std::size_t offset, std::size_t count) {
    std::uint32_t number = 0;
    for (std::size_t i = count; i-- > 0;)
        number = (number << 8) | row[offset + i];
    return number;
}

void UnpackMasked(Bytes row, int bitCount, const MaskedChannels& channels, std::span<Pixel> pixels) {
    const std::size_t size = bitCount == 16 ? 2 : 4;
    for (std::size_t x = 0; x < pixels.size(); ++x) {
        const std::uint32_t value = NumberAt(row, x * size, size);
        pixels[x] = {channels.blue.Of(value), channels.green.Of(value), channels.red.Of(value),
                     channels.alpha.Of(value)};
    }
}

std::size_t RowBytes(int width, int bitCount) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitCount) + 7) / 8;
}

void ReadRows(const DibHeader& header, const FullPalette& palette, Bytes data, DibAlpha alpha,
              Bitmap& bitmap) {
    const MaskedChannels channels{MaskedChannel(header.masks[0]), MaskedChannel(header.masks[1]),
                                  MaskedChannel(header.masks[2]),
                                  MaskedChannel(alpha == DibAlpha::Kept ? header.masks[3] : 0)};
    const std::size_t stride = DibStride(header.width, header.bitCount);
    for (int i = 0; i < header.height; ++i) {
        const Bytes row =
            data.subspan(static_cast<std::size_t>(i) * stride, RowBytes(header.width, header.bitCount));
        const std::span<Pixel> pixels = bitmap.Row(header.isTopDown ? i : header.height - 1 - i);
        if (header.bitCount <= 8) {
            UnpackNumbers(row, header.bitCount, palette, pixels);
        } else if (header.bitCount == 24) {
            UnpackTriples(row, pixels);
        } else {
            UnpackMasked(row, header.bitCount, channels, pixels);
        }
    }
}

} // namespace

std::size_t DibStride(int width, int bitCount) {
    return (RowBytes(width, bitCount) + 3) / 4 * 4;
}

std::size_t DibRowsSize(int width, int height, int bitCount) {
    return DibStride(width, bitCount) * static_cast<std::size_t>(height - 1) + RowBytes(width, bitCount);
}

Bitmap ReadDibPixels(const DibHeader& header, std::span<const Pixel> palette, Bytes data, DibAlpha alpha) {
    CheckPictureSize(header.width, header.height);
    FullPalette colours{};
    std::copy_n(palette.begin(), std::min(palette.size(), colours.size()), colours.begin());

    const bool hasRuns =
        header.compression == DibCompression::Rle8 || header.compression == DibCompression::Rle4;
    if (!hasRuns) PartOf(data, 0, DibRowsSize(header.width, header.height, header.bitCount));
    Bitmap bitmap(header.width, header.height, colours[0]);
    if (hasRuns) {
        ReadDibRuns(header, colours, data, bitmap);
    } else {
        ReadRows(header, colours, data, alpha, bitmap);
    }
    return bitmap;
}

} // namespace mirelle
