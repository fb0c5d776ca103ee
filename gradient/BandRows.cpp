#include "gradient/BandRows.h"

#include "gradient/BlendChains.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace mirelle {
namespace {

using Alphas = BandRows::Alphas;
using Columns = BandRows::Columns;
using Way = BandRows::Way;

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

constexpr std::size_t kPixelBytes = sizeof(Pixel);
constexpr std::uint8_t kUntouched = 255; // the limits at the two ends
constexpr std::uint8_t kSource = 0;

BlendRun RunOf(std::span<Pixel> to, std::span<const Pixel> was, const Pixel* from) {
    return {reinterpret_cast<std::uint8_t*>(to.data()), reinterpret_cast<const std::uint8_t*>(was.data()),
            reinterpret_cast<const std::uint8_t*>(from), to.size_bytes()};
}

BlendRun PartOf(const BlendRun& run, std::size_t begin, std::size_t bytes) {
    return {run.to + begin, run.was + begin, run.from + begin, bytes};
}

void Leave(const BlendRun& run) {
    if (run.to != run.was && run.bytes > 0) std::memcpy(run.to, run.was, run.bytes);
}

void TakeSource(const BlendRun& run) {
    std::memcpy(run.to, run.from, run.bytes);
}

Way WayOf(const std::optional<std::uint8_t>& limit) {
    if (!limit) return Way::Chain;
    if (*limit == kUntouched) return Way::Leave;
    return *limit == kSource ? Way::Copy : Way::Limit;
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
    for (std::size_t column = 0; column < alphas.size(); ++column) {
        const bool asBefore = column > 0 && alphas[column] == alphas[column - 1];
        limits.push_back(asBefore ? limits.back() : LimitOf(alphas[column]));
    }
    std::vector<Columns> ways;
    for (std::size_t begin = 0; begin < alphas.size();) {
        const Way way = WayOf(limits[begin]);
        std::size_t end = begin + 1;
        while (end < alphas.size() && WayOf(limits[end]) == way)
            ++end;
        Columns columns{way, begin * kPixelBytes, (end - begin) * kPixelBytes};
        if (way == Way::Limit) {
            for (std::size_t column = begin; column < end; ++column)
                columns.limits.insert(columns.limits.end(), kPixelBytes, *limits[column]);
        }
        if (way == Way::Chain) columns.chains = TableOf(std::span(alphas).subspan(begin, end - begin));
        ways.push_back(std::move(columns));
        begin = end;
    }
    return ways;
}

} // namespace

std::optional<BandRows> BandRows::Of(const std::vector<Band>& bands, int width, int height,
                                     const Bitmap& source) {
    width = std::min(width, source.Width());
    height = std::min(height, source.Height());
    const auto all = [&bands](auto&& holds) {
        return std::ranges::all_of(bands,
                                   [&](const Band& band) { return !DrawsAnything(band) || holds(band); });
    };
    if (!all(IsStraight)) return std::nullopt;
    BandRows rows(source, width, height);
    if (all([&](const Band& band) { return band.to.y <= 0 && band.to.Bottom() >= height; })) {
        rows.across_ = WaysAcross(AlphasAlong(bands, width, true));
    } else if (all([&](const Band& band) { return band.to.x <= 0 && band.to.Right() >= width; })) {
        rows.down_ = AlphasAlong(bands, height, false);
    } else {
        return std::nullopt;
    }
    return rows;
}

void BandRows::Draw(int y, std::span<const Pixel> was, std::span<Pixel> row) const {
    const std::size_t width = y < height_ ? static_cast<std::size_t>(width_) : 0;
    Leave(RunOf(row.subspan(width), was.subspan(width), nullptr));
    if (width == 0) return;
    const BlendRun run = RunOf(row.first(width), was.first(width), source_.Row(y).data());
    if (!down_.empty()) return DrawRowDown(down_[static_cast<std::size_t>(y)], run);
    for (const Columns& columns : across_)
        DrawColumns(columns, PartOf(run, columns.begin, columns.bytes));
}

void BandRows::DrawColumns(const Columns& columns, const BlendRun& run) {
    switch (columns.way) {
    case Way::Leave:
        return Leave(run);
    case Way::Copy:
        return TakeSource(run);
    case Way::Limit:
        return LimitDistances(run, columns.limits.data());
    case Way::Chain:
        return columns.chains->Blend(run);
    }
}

void BandRows::DrawRowDown(const Alphas& alphas, const BlendRun& run) {
    const std::optional<std::uint8_t> limit = LimitOf(alphas);
    switch (WayOf(limit)) {
    case Way::Leave:
        return Leave(run);
    case Way::Copy:
        return TakeSource(run);
    case Way::Limit:
        return LimitDistances(run, *limit);
    case Way::Chain:
        return BlendChain(run, alphas);
    }
}

} // namespace mirelle
