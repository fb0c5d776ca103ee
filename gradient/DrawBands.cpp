#include "gradient/GradientBands.h"

#include "forms/AlphaBlend.h"
#include "forms/FunctionVersions.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

// Neighbouring bands overlap, up to a pixel in some twenty of them. Drawn band by band, the picture would go
// through memory as often. Here each pixel is fetched once and takes all its blends, in the order of the
// bands: the alphas that meet a column (or a row) are listed first.

namespace mirelle {
namespace {

using Alphas = std::vector<std::uint8_t>;

bool IsStraight(const Band& band) {
    return band.to == band.from;
}

bool DrawsAnything(const Band& band) {
    return !band.to.IsEmpty() && !band.from.IsEmpty() && band.alpha > 0;
}

// For every place along the gradient's axis the alphas that meet it, in order. A solid one makes those ahead
// of it needless.
std::vector<Alphas> AlphasAlong(const std::vector<Band>& bands, int length, bool across) {
    std::vector<Alphas> alphas(static_cast<std::size_t>(length));
    for (const Band& band : bands) {
        if (!DrawsAnything(band)) continue;
        const int begin = std::max(across ? band.to.x : band.to.y, 0);
        const int end = std::min(across ? band.to.Right() : band.to.Bottom(), length);
        for (int place = begin; place < end; ++place) {
            Alphas& here = alphas[static_cast<std::size_t>(place)];
            if (band.alpha >= 255) here.clear();
            here.push_back(static_cast<std::uint8_t>(std::min(band.alpha, 255)));
        }
    }
    return alphas;
}

constexpr std::size_t kBlock = 64; // bytes that take their blends together

// `rounds` blends of each byte; round k takes its alphas from alphas[k * stride] on.
MIRELLE_VERSIONED
void BlendRounds(std::uint8_t* to, const std::uint8_t* from, std::size_t count, const std::uint8_t* alphas,
                 std::size_t stride, std::size_t rounds) {
    std::array<std::uint16_t, kBlock> destination;
    std::array<std::uint16_t, kBlock> source;
    std::size_t at = 0;
    for (; at + kBlock <= count; at += kBlock) {
        for (std::size_t i = 0; i < kBlock; ++i)
            destination[i] = to[at + i];
        for (std::size_t i = 0; i < kBlock; ++i)
            source[i] = from[at + i];
        for (std::size_t round = 0; round < rounds; ++round) {
            const std::uint8_t* alpha = alphas + round * stride + at;
            for (std::size_t i = 0; i < kBlock; ++i) {
                const auto w = static_cast<std::uint16_t>(destination[i] * 255 +
                                                          (source[i] - destination[i]) * alpha[i] + 128);
                destination[i] = static_cast<std::uint16_t>(static_cast<std::uint16_t>(w + (w >> 8)) >> 8);
            }
        }
        for (std::size_t i = 0; i < kBlock; ++i)
            to[at + i] = static_cast<std::uint8_t>(destination[i]);
    }
    for (; at < count; ++at) {
        for (std::size_t round = 0; round < rounds; ++round) {
            to[at] = Blended(from[at], to[at], alphas[round * stride + at]);
        }
    }
}

// The same with one alpha a round for all bytes.
MIRELLE_VERSIONED
void BlendRoundsOfRow(std::uint8_t* to, const std::uint8_t* from, std::size_t count,
                      const std::uint8_t* alphas, std::size_t rounds) {
    std::array<std::uint16_t, kBlock> destination;
    std::array<std::uint16_t, kBlock> source;
    std::size_t at = 0;
    for (; at + kBlock <= count; at += kBlock) {
        for (std::size_t i = 0; i < kBlock; ++i)
            destination[i] = to[at + i];
        for (std::size_t i = 0; i < kBlock; ++i)
            source[i] = from[at + i];
        for (std::size_t round = 0; round < rounds; ++round) {
            const std::uint16_t alpha = alphas[round];
            for (std::size_t i = 0; i < kBlock; ++i) {
                const auto w = static_cast<std::uint16_t>(destination[i] * 255 +
                                                          (source[i] - destination[i]) * alpha + 128);
                destination[i] = static_cast<std::uint16_t>(static_cast<std::uint16_t>(w + (w >> 8)) >> 8);
            }
        }
        for (std::size_t i = 0; i < kBlock; ++i)
            to[at + i] = static_cast<std::uint8_t>(destination[i]);
    }
    for (; at < count; ++at) {
        for (std::size_t round = 0; round < rounds; ++round)
            to[at] = Blended(from[at], to[at], alphas[round]);
    }
}

std::uint8_t* BytesOf(std::span<Pixel> pixels) {
    return reinterpret_cast<std::uint8_t*>(pixels.data());
}
const std::uint8_t* BytesOf(std::span<const Pixel> pixels) {
    return reinterpret_cast<const std::uint8_t*>(pixels.data());
}

// A stretch of columns whose alphas are laid out round by round, four times each for the bytes of a pixel.
constexpr int kColumns = 256;

void DrawAcross(Bitmap& destination, const Bitmap& source, const std::vector<Alphas>& alphas, int width,
                int height) {
    Alphas table;
    for (int left = 0; left < width; left += kColumns) {
        const int columns = std::min(kColumns, width - left);
        const std::size_t bytes = static_cast<std::size_t>(columns) * sizeof(Pixel);
        std::size_t rounds = 0;
        for (int c = 0; c < columns; ++c)
            rounds = std::max(rounds, alphas[static_cast<std::size_t>(left + c)].size());
        if (rounds == 0) continue;
        table.assign(rounds * bytes, 0); // an alpha of 0 changes nothing
        for (int c = 0; c < columns; ++c) {
            const Alphas& here = alphas[static_cast<std::size_t>(left + c)];
            for (std::size_t round = 0; round < here.size(); ++round) {
                std::fill_n(table.begin() + static_cast<std::ptrdiff_t>(round * bytes) + c * 4, 4,
                            here[round]);
            }
        }
        for (int y = 0; y < height; ++y) {
            BlendRounds(BytesOf(destination.Row(y)) + left * 4, BytesOf(source.Row(y)) + left * 4, bytes,
                        table.data(), bytes, rounds);
        }
    }
}

void DrawDown(Bitmap& destination, const Bitmap& source, const std::vector<Alphas>& alphas, int width,
              int height) {
    for (int y = 0; y < height; ++y) {
        const Alphas& here = alphas[static_cast<std::size_t>(y)];
        if (here.empty()) continue;
        BlendRoundsOfRow(BytesOf(destination.Row(y)), BytesOf(source.Row(y)),
                         static_cast<std::size_t>(width) * sizeof(Pixel), here.data(), here.size());
    }
}

} // namespace

void DrawBandsPlain(Bitmap& destination, const Bitmap& source, const std::vector<Band>& bands) {
    for (const Band& band : bands)
        AlphaBlend(destination, band.to, source, band.from, band.alpha);
}

void DrawBands(Bitmap& destination, const Bitmap& source, const std::vector<Band>& bands) {
    const int width = std::min(destination.Width(), source.Width());
    const int height = std::min(destination.Height(), source.Height());
    // Bands that reach from edge to edge across the axis, none of them stretched, can be told by their place
    // alone.
    const auto drawn = [](const Band& band) { return DrawsAnything(band); };
    const bool straight =
        std::ranges::all_of(bands, [&](const Band& band) { return !drawn(band) || IsStraight(band); });
    const bool across = std::ranges::all_of(bands, [&](const Band& band) {
        return !drawn(band) || (band.to.y <= 0 && band.to.Bottom() >= height);
    });
    const bool down = std::ranges::all_of(bands, [&](const Band& band) {
        return !drawn(band) || (band.to.x <= 0 && band.to.Right() >= width);
    });
    if (straight && across) {
        DrawAcross(destination, source, AlphasAlong(bands, width, true), width, height);
    } else if (straight && down) {
        DrawDown(destination, source, AlphasAlong(bands, height, false), width, height);
    } else {
        DrawBandsPlain(destination, source, bands);
    }
}

} // namespace mirelle
