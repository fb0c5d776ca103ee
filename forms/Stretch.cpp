#include "forms/Stretch.h"

#include "forms/FunctionVersions.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>
#include <vector>

namespace mirelle {
namespace {

using Sums = std::array<std::uint64_t, 4>;

int Clamped(std::int64_t position, int length) {
    return static_cast<int>(std::clamp<std::int64_t>(position, 0, length - 1));
}

// One direction of a stretch from `fromLength` to `toLength` pixels. Lengths are reduced by their greatest
// common divisor and measured in units of which a source pixel is `pixel` long and a destination pixel
// `share`: both are then whole numbers.
class Axis {
public:
    Axis(int fromLength, int toLength)
        : pixel_(toLength / std::gcd(fromLength, toLength)),
          share_(fromLength / std::gcd(fromLength, toLength)) {}

    std::int64_t Share() const { return share_; }
    // First and last source pixel under a destination pixel.
    std::int64_t First(std::int64_t to) const { return to * share_ / pixel_; }
    std::int64_t Last(std::int64_t to) const { return ((to + 1) * share_ - 1) / pixel_; }
    // How much of the destination pixel `to` the source pixel `from` fills; all weights sum up to Share().
    std::uint64_t Weight(std::int64_t from, std::int64_t to) const {
        const std::int64_t begin = std::max(from * pixel_, to * share_);
        const std::int64_t end = std::min((from + 1) * pixel_, (to + 1) * share_);
        return static_cast<std::uint64_t>(end - begin);
    }
    // Whole source pixels to a destination pixel, 0 where a source pixel has to be parted.
    int WholeFactor() const { return pixel_ == 1 ? static_cast<int>(share_) : 0; }

private:
    std::int64_t pixel_;
    std::int64_t share_;
};

// A part of the destination area, in pixels from the area's own corner; half-open.
struct Part {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool IsEmpty() const { return left >= right || top >= bottom; }
};

class Stretch {
public:
    Stretch(const Bitmap& source, const PixelArea& from, Bitmap& target, const PixelArea& to,
            const PixelArea& clip)
        : source_(source), target_(target), from_(from), to_(to), clip_(clip), across_(from.width, to.width),
          down_(from.height, to.height) {}

    void Draw() {
        const Part all = Visible();
        if (all.IsEmpty()) return;
        const int kx = across_.WholeFactor();
        const int ky = down_.WholeFactor();
        // Sums of kx * ky bytes stay within 32 bits.
        const bool whole = kx > 0 && ky > 0 && std::int64_t{kx} * ky <= 1 << 22;
        const Part inner = whole ? Inside(all, kx, ky) : Part{};
        if (inner.IsEmpty()) {
            DrawWeighted(all);
            return;
        }
        DrawWhole(inner, kx, ky);
        DrawWeighted({all.left, all.top, all.right, inner.top});
        DrawWeighted({all.left, inner.top, inner.left, inner.bottom});
        DrawWeighted({inner.right, inner.top, all.right, inner.bottom});
        DrawWeighted({all.left, inner.bottom, all.right, all.bottom});
    }

private:
    // What of the destination area lies in the clip and in the target.
    Part Visible() const {
        const auto begin = [](int to, int length, int clip) {
            const std::int64_t first = std::max<std::int64_t>(clip, 0);
            return static_cast<int>(std::clamp<std::int64_t>(first - to, 0, length));
        };
        const auto end = [](int to, int length, int clip, int clipLength, int limit) {
            const std::int64_t last = std::min<std::int64_t>(std::int64_t{clip} + clipLength, limit);
            return static_cast<int>(std::clamp<std::int64_t>(last - to, 0, length));
        };
        return {begin(to_.x, to_.width, clip_.x), begin(to_.y, to_.height, clip_.y),
                end(to_.x, to_.width, clip_.x, clip_.width, target_.Width()),
                end(to_.y, to_.height, clip_.y, clip_.height, target_.Height())};
    }

    // What of `all` has its source pixels, kx by ky for each, wholly inside of the source.
    Part Inside(const Part& all, int kx, int ky) const {
        const auto begin = [](int from, int factor) {
            return from < 0 ? (-std::int64_t{from} + factor - 1) / factor : 0;
        };
        const auto end = [](int from, int factor, int limit) {
            return std::max<std::int64_t>(std::int64_t{limit} - from, 0) / factor;
        };
        const auto within = [](std::int64_t value, int low, int high) {
            return static_cast<int>(std::clamp<std::int64_t>(value, low, high));
        };
        return {within(begin(from_.x, kx), all.left, all.right),
                within(begin(from_.y, ky), all.top, all.bottom),
                within(end(from_.x, kx, source_.Width()), all.left, all.right),
                within(end(from_.y, ky, source_.Height()), all.top, all.bottom)};
    }

    std::span<Pixel> TargetRow(int row, const Part& part) {
        const int first = to_.x + part.left;
        const int count = part.right - part.left;
        return target_.Row(to_.y + row)
            .subspan(static_cast<std::size_t>(first), static_cast<std::size_t>(count));
    }

    void DrawWeighted(const Part& part);
    void SumRows(int row, std::span<Sums> columns) const;
    void DrawWhole(const Part& part, int kx, int ky);

    const Bitmap& source_;
    Bitmap& target_;
    PixelArea from_;
    PixelArea to_;
    PixelArea clip_;
    Axis across_;
    Axis down_;
};

std::uint8_t RoundedMean(std::uint64_t sum, std::uint64_t weight) {
    return static_cast<std::uint8_t>((2 * sum + weight) / (2 * weight));
}

// Adds up the source rows under a destination row, each with its weight.
void Stretch::SumRows(int row, std::span<Sums> columns) const {
    std::fill(columns.begin(), columns.end(), Sums{});
    const int left = Clamped(from_.x, source_.Width());
    for (std::int64_t y = down_.First(row); y <= down_.Last(row); ++y) {
        const std::uint64_t weight = down_.Weight(y, row);
        const auto pixels = source_.Row(Clamped(from_.y + y, source_.Height()))
                                .subspan(static_cast<std::size_t>(left), columns.size());
        for (std::size_t i = 0; i < columns.size(); ++i) {
            columns[i][0] += weight * pixels[i].blue;
            columns[i][1] += weight * pixels[i].green;
            columns[i][2] += weight * pixels[i].red;
            columns[i][3] += weight * pixels[i].fourth;
        }
    }
}

void Stretch::DrawWeighted(const Part& part) {
    if (part.IsEmpty()) return;
    const int left = Clamped(from_.x, source_.Width());
    const int right = Clamped(std::int64_t{from_.x} + from_.width - 1, source_.Width());
    std::vector<Sums> columns(static_cast<std::size_t>(right - left + 1));
    const auto total = static_cast<std::uint64_t>(across_.Share() * down_.Share());
    for (int row = part.top; row < part.bottom; ++row) {
        SumRows(row, columns);
        int column = part.left;
        for (Pixel& pixel : TargetRow(row, part)) {
            Sums sum{};
            for (std::int64_t x = across_.First(column); x <= across_.Last(column); ++x) {
                const std::uint64_t weight = across_.Weight(x, column);
                const int at = Clamped(from_.x + x, source_.Width()) - left;
                const Sums& under = columns[static_cast<std::size_t>(at)];
                for (std::size_t k = 0; k < sum.size(); ++k)
                    sum[k] += weight * under[k];
            }
            pixel = {RoundedMean(sum[0], total), RoundedMean(sum[1], total), RoundedMean(sum[2], total),
                     RoundedMean(sum[3], total)};
            ++column;
        }
    }
}

// Two pixels of two rows to one pixel, four bytes at a time: the even and the odd bytes of a pixel are held
// in the 16-bit halves of two words.
void HalveRows(const Pixel* upper, const Pixel* lower, Pixel* out, std::size_t count) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        constexpr std::uint32_t kHalves = 0x00FF00FF;
        constexpr std::uint32_t kRounding = 0x00020002;
        const auto word = [](const Pixel& pixel) { return std::bit_cast<std::uint32_t>(pixel); };
        for (std::size_t i = 0; i < count; ++i) {
            const std::uint32_t a = word(upper[2 * i]);
            const std::uint32_t b = word(upper[2 * i + 1]);
            const std::uint32_t c = word(lower[2 * i]);
            const std::uint32_t d = word(lower[2 * i + 1]);
            const std::uint32_t even =
                (a & kHalves) + (b & kHalves) + (c & kHalves) + (d & kHalves) + kRounding;
            const std::uint32_t odd =
                (a >> 8 & kHalves) + (b >> 8 & kHalves) + (c >> 8 & kHalves) + (d >> 8 & kHalves) + kRounding;
            out[i] = std::bit_cast<Pixel>((even >> 2 & kHalves) | (odd >> 2 & kHalves) << 8);
        }
    });
}

// Whole shrinks need no weights: kx by ky pixels go to one.
void Stretch::DrawWhole(const Part& part, int kx, int ky) {
    const auto factor = static_cast<std::size_t>(kx);
    const auto weight = static_cast<std::uint32_t>(kx) * static_cast<std::uint32_t>(ky);
    std::vector<std::array<std::uint32_t, 4>> sums(static_cast<std::size_t>(part.right - part.left));
    for (int row = part.top; row < part.bottom; ++row) {
        const std::span<Pixel> out = TargetRow(row, part);
        const auto rowUnder = [&](int k) {
            return &source_.At(from_.x + part.left * kx, from_.y + row * ky + k);
        };
        if (weight == 1) {
            std::copy_n(rowUnder(0), out.size(), out.begin());
            continue;
        }
        if (kx == 2 && ky == 2) {
            HalveRows(rowUnder(0), rowUnder(1), out.data(), out.size());
            continue;
        }
        std::fill(sums.begin(), sums.end(), std::array<std::uint32_t, 4>{});
        for (int k = 0; k < ky; ++k) {
            const Pixel* pixel = rowUnder(k);
            for (auto& sum : sums) {
                for (std::size_t i = 0; i < factor; ++i, ++pixel) {
                    sum[0] += pixel->blue;
                    sum[1] += pixel->green;
                    sum[2] += pixel->red;
                    sum[3] += pixel->fourth;
                }
            }
        }
        for (std::size_t i = 0; i < out.size(); ++i) {
            const auto mean = [&](std::size_t k) {
                return static_cast<std::uint8_t>((2 * sums[i][k] + weight) / (2 * weight));
            };
            out[i] = {mean(0), mean(1), mean(2), mean(3)};
        }
    }
}

} // namespace

void StretchHalftone(const Bitmap& source, const PixelArea& from, Bitmap& target, const PixelArea& to) {
    StretchHalftone(source, from, target, to, {0, 0, target.Width(), target.Height()});
}

void StretchHalftone(const Bitmap& source, const PixelArea& from, Bitmap& target, const PixelArea& to,
                     const PixelArea& clip) {
    for (const int length : {from.width, from.height, to.width, to.height}) {
        if (length > kLongestStretch) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
        if (length < 1) return;
    }
    if (source.IsEmpty() || target.IsEmpty()) return;
    WithinMemory([&] { Stretch(source, from, target, to, clip).Draw(); });
}

} // namespace mirelle
