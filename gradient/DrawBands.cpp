#include "gradient/GradientBands.h"

#include "forms/AlphaBlend.h"
#include "gradient/BlendChains.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <utility>

// Neighbouring bands overlap, up to a pixel in some twenty of them. Drawn band by band, the picture would go
// through memory as often. Here each pixel is fetched once and takes all its blends, in the order of the
// bands: the alphas that meet a column (or a row) are listed first, as the chain of that place.

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

std::uint8_t* BytesOf(std::span<Pixel> pixels) {
    return reinterpret_cast<std::uint8_t*>(pixels.data());
}
const std::uint8_t* BytesOf(std::span<const Pixel> pixels) {
    return reinterpret_cast<const std::uint8_t*>(pixels.data());
}

constexpr std::size_t kPixelBytes = sizeof(Pixel);
constexpr std::uint8_t kUntouched = 255; // the limits at the two ends
constexpr std::uint8_t kSource = 0;

// Columns side by side that are drawn in one way.
struct Columns {
    enum class Way { Leave, Copy, Limit, Chain } way = Way::Leave;
    std::size_t begin = 0; // bytes of a row
    std::size_t bytes = 0;
    std::vector<std::uint8_t> limits{}; // for Limit: one for each byte
    std::optional<ChainTable> chains{}; // for Chain
};

Columns::Way WayOf(const std::optional<std::uint8_t>& limit) {
    if (!limit) return Columns::Way::Chain;
    if (*limit == kUntouched) return Columns::Way::Leave;
    return *limit == kSource ? Columns::Way::Copy : Columns::Way::Limit;
}

ChainTable TableOf(std::span<const Alphas> columns) {
    std::size_t links = 0;
    for (const Alphas& alphas : columns)
        links = std::max(links, alphas.size());
    ChainTable table(columns.size() * kPixelBytes, links);
    for (std::size_t column = 0; column < columns.size(); ++column) {
        for (std::size_t link = 0; link < columns[column].size(); ++link) {
            for (std::size_t byte = 0; byte < kPixelBytes; ++byte)
                table.Set(link, column * kPixelBytes + byte, columns[column][link]);
        }
    }
    return table;
}

std::vector<Columns> WaysAcross(const std::vector<Alphas>& alphas) {
    std::vector<std::optional<std::uint8_t>> limits;
    limits.reserve(alphas.size());
    for (const Alphas& here : alphas)
        limits.push_back(LimitOf(here));
    std::vector<Columns> ways;
    for (std::size_t begin = 0; begin < alphas.size();) {
        const Columns::Way way = WayOf(limits[begin]);
        std::size_t end = begin + 1;
        while (end < alphas.size() && WayOf(limits[end]) == way)
            ++end;
        Columns columns{way, begin * kPixelBytes, (end - begin) * kPixelBytes};
        if (way == Columns::Way::Limit) {
            for (std::size_t column = begin; column < end; ++column)
                columns.limits.insert(columns.limits.end(), kPixelBytes, *limits[column]);
        }
        if (way == Columns::Way::Chain)
            columns.chains = TableOf(std::span(alphas).subspan(begin, end - begin));
        ways.push_back(std::move(columns));
        begin = end;
    }
    return ways;
}

void DrawAcross(Bitmap& destination, const Bitmap& source, const std::vector<Alphas>& alphas, int height) {
    const std::vector<Columns> ways = WaysAcross(alphas);
    for (int y = 0; y < height; ++y) {
        for (const Columns& columns : ways) {
            std::uint8_t* to = BytesOf(destination.Row(y)) + columns.begin;
            const std::uint8_t* from = BytesOf(source.Row(y)) + columns.begin;
            switch (columns.way) {
            case Columns::Way::Leave:
                break;
            case Columns::Way::Copy:
                std::memcpy(to, from, columns.bytes);
                break;
            case Columns::Way::Limit:
                LimitDistances(to, from, columns.limits.data(), columns.bytes);
                break;
            case Columns::Way::Chain:
                columns.chains->Blend(to, from, columns.bytes);
                break;
            }
        }
    }
}

void DrawDown(Bitmap& destination, const Bitmap& source, const std::vector<Alphas>& alphas, int width) {
    const std::size_t bytes = static_cast<std::size_t>(width) * kPixelBytes;
    for (std::size_t y = 0; y < alphas.size(); ++y) {
        std::uint8_t* to = BytesOf(destination.Row(static_cast<int>(y)));
        const std::uint8_t* from = BytesOf(source.Row(static_cast<int>(y)));
        const std::optional<std::uint8_t> limit = LimitOf(alphas[y]);
        switch (WayOf(limit)) {
        case Columns::Way::Leave:
            break;
        case Columns::Way::Copy:
            std::memcpy(to, from, bytes);
            break;
        case Columns::Way::Limit:
            LimitDistances(to, from, *limit, bytes);
            break;
        case Columns::Way::Chain:
            BlendChain(to, from, alphas[y], bytes);
            break;
        }
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
        DrawAcross(destination, source, AlphasAlong(bands, width, true), height);
    } else if (straight && down) {
        DrawDown(destination, source, AlphasAlong(bands, height, false), width);
    } else {
        DrawBandsPlain(destination, source, bands);
    }
}

} // namespace mirelle
