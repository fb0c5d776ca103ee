#include "gradient/BandRows.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace mirelle {
namespace {

bool IsStraight(const Band& band) {
    return band.to == band.from;
}

bool DrawsAnything(const Band& band) {
    return !band.to.IsEmpty() && !band.from.IsEmpty() && band.alpha > 0;
}

// Runs work(band, place) for every band and every place along the gradient's axis that it meets.
template <class Work>
void EachMeeting(const std::vector<Band>& bands, int length, bool across, const Work& work) {
    for (const Band& band : bands) {
        if (!DrawsAnything(band)) continue;
        const int begin = std::max(across ? band.to.x : band.to.y, 0);
        const int end = std::min(across ? band.to.Right() : band.to.Bottom(), length);
        for (int place = begin; place < end; ++place)
            work(band, static_cast<std::size_t>(place));
    }
}

// For every place along the gradient's axis the alphas that meet it, in order. A solid one makes those ahead
// of it needless.
class AlphasAlong {
public:
    AlphasAlong(const std::vector<Band>& bands, int length, bool across) {
        struct Room {
            std::size_t begin = 0;
            std::size_t end = 0;
        };
        std::vector<Room> rooms(static_cast<std::size_t>(length));
        EachMeeting(bands, length, across, [&](const Band&, std::size_t place) { ++rooms[place].end; });
        std::size_t all = 0;
        for (Room& room : rooms) {
            const std::size_t meeting = room.end;
            room = {all, all};
            all += meeting;
        }
        alphas_.resize(all);
        EachMeeting(bands, length, across, [&](const Band& band, std::size_t place) {
            Room& room = rooms[place];
            if (band.alpha >= 255) room.begin = room.end;
            alphas_[room.end++] = static_cast<std::uint8_t>(std::min(band.alpha, 255));
        });
        chains_.reserve(rooms.size());
        for (const Room& room : rooms)
            chains_.push_back(Alphas(alphas_).subspan(room.begin, room.end - room.begin));
    }

    AlphasAlong(const AlphasAlong&) = delete;
    AlphasAlong& operator=(const AlphasAlong&) = delete;

    // They live as long as this does.
    std::span<const Alphas> Chains() const { return chains_; }

private:
    std::vector<std::uint8_t> alphas_;
    std::vector<Alphas> chains_;
};

std::vector<std::optional<std::uint8_t>> LimitsOf(std::span<const Alphas> chains) {
    std::vector<std::optional<std::uint8_t>> limits;
    limits.reserve(chains.size());
    for (std::size_t place = 0; place < chains.size(); ++place) {
        const bool asBefore = place > 0 && std::ranges::equal(chains[place], chains[place - 1]);
        limits.push_back(asBefore ? limits.back() : LimitOf(chains[place]));
    }
    return limits;
}

constexpr std::size_t kPixelBytes = sizeof(Pixel);
constexpr std::uint8_t kUntouched = 255; // the limits at the two ends
constexpr std::uint8_t kSource = 0;

BlendRun RunOf(std::span<Pixel> to, std::span<const Pixel> was, const Pixel* from) {
    return {reinterpret_cast<std::uint8_t*>(to.data()), reinterpret_cast<const std::uint8_t*>(was.data()),
            reinterpret_cast<const std::uint8_t*>(from), to.size_bytes()};
}

void Leave(const BlendRun& run) {
    if (run.to != run.was && run.bytes > 0) std::memcpy(run.to, run.was, run.bytes);
}

void TakeSource(const BlendRun& run) {
    std::memcpy(run.to, run.from, run.bytes);
}

} // namespace

BandRows::Stretch::Way BandRows::WayOf(const std::optional<std::uint8_t>& limit) {
    using Way = Stretch::Way;
    if (!limit) return Way::Chain;
    if (*limit == kUntouched) return Way::Leave;
    return *limit == kSource ? Way::Copy : Way::Limit;
}

// Columns side by side that are drawn in one way are drawn together.
std::vector<BandRows::Stretch> BandRows::PlanColumns(std::span<const Alphas> chains) {
    const auto limits = LimitsOf(chains);
    std::vector<Stretch> stretches;
    for (std::size_t begin = 0; begin < chains.size();) {
        const Stretch::Way way = WayOf(limits[begin]);
        std::size_t end = begin + 1;
        while (end < chains.size() && WayOf(limits[end]) == way)
            ++end;
        Stretch stretch{begin * kPixelBytes, (end - begin) * kPixelBytes, way};
        if (way == Stretch::Way::Limit) {
            for (std::size_t column = begin; column < end; ++column)
                stretch.limits.insert(stretch.limits.end(), kPixelBytes, *limits[column]);
        }
        if (way == Stretch::Way::Chain) {
            stretch.chains = BlendChains(chains.subspan(begin, end - begin), kPixelBytes);
        }
        stretches.push_back(std::move(stretch));
        begin = end;
    }
    return stretches;
}

std::vector<BandRows::Stretch> BandRows::PlanRows(std::span<const Alphas> chains, std::size_t rowBytes) {
    const auto limits = LimitsOf(chains);
    std::vector<Stretch> stretches;
    stretches.reserve(chains.size());
    for (std::size_t row = 0; row < chains.size(); ++row) {
        Stretch stretch{0, rowBytes, WayOf(limits[row])};
        if (limits[row]) stretch.limits = {*limits[row]};
        if (stretch.way == Stretch::Way::Chain) stretch.chains = BlendChains(chains[row]);
        stretches.push_back(std::move(stretch));
    }
    return stretches;
}

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
        rows.across_ = PlanColumns(AlphasAlong(bands, width, true).Chains());
    } else if (all([&](const Band& band) { return band.to.x <= 0 && band.to.Right() >= width; })) {
        rows.down_ = PlanRows(AlphasAlong(bands, height, false).Chains(),
                              static_cast<std::size_t>(width) * kPixelBytes);
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
    const std::span<const Stretch> all = across_;
    for (const Stretch& stretch : down_.empty() ? all : std::span(&down_[static_cast<std::size_t>(y)], 1)) {
        stretch.Draw(
            {run.to + stretch.begin, run.was + stretch.begin, run.from + stretch.begin, stretch.bytes});
    }
}

void BandRows::Stretch::Draw(const BlendRun& run) const {
    switch (way) {
    case Way::Leave:
        return Leave(run);
    case Way::Copy:
        return TakeSource(run);
    case Way::Limit:
        return LimitDistances(run, limits);
    case Way::Chain:
        return chains.Blend(run);
    }
}

} // namespace mirelle
