#include "fx/fast/ContrastLine.h"

#include "fx/fast/Lanes.h"

#include <algorithm>
#include <cmath>

namespace mirelle::fast {
namespace {

constexpr int kMiddle = 127;
constexpr int kGreatestDistance = 128;
constexpr std::int64_t kOne = 65536;

// (x x slope + offset) / 65536 in 16-bit steps: the high half, and the carry of the low half.
MIRELLE_INLINE std::uint16_t Steps(std::uint16_t x, std::uint16_t slope, std::uint16_t offset) {
    const auto low = static_cast<std::uint16_t>(std::uint32_t{x} * std::uint32_t{slope});
    // Both moved by half the range, since vector code compares signed numbers.
    const auto movedLow = static_cast<std::int16_t>(static_cast<std::uint16_t>(low ^ 0x8000U));
    const auto movedLimit =
        static_cast<std::int16_t>(static_cast<std::uint16_t>((kOne - 1 - offset) ^ 0x8000));
    const std::uint16_t carry = movedLow > movedLimit ? 1 : 0;
    return static_cast<std::uint16_t>(HighProduct(x, slope) + carry);
}

// What a line makes of a channel. `scale` is 2^shift; `turn` has all bits where the line leads inward, and
// none where it leads outward.
MIRELLE_INLINE std::uint16_t Moved(const ContrastLine& line, std::uint16_t scale, std::int16_t turn,
                                   std::uint16_t c) {
    const std::uint16_t distance = WideLeast(WideDistance(c, kMiddle), line.farthest);
    const auto steps = static_cast<std::int16_t>(
        Steps(static_cast<std::uint16_t>(distance * scale), line.slope, line.offset));
    // All bits for a move downward, which turns the steps into their negative.
    const auto downward = static_cast<std::int16_t>((static_cast<std::int16_t>(c - kMiddle) >> 15) ^ turn);
    const auto moved = static_cast<std::int16_t>(c + (steps ^ downward) - downward);
    const auto above0 = static_cast<std::int16_t>(moved > 0 ? moved : 0);
    return static_cast<std::uint16_t>(above0 < 255 ? above0 : 255);
}

// The least and the most steps that give the table's entry for a channel.
struct Bounds {
    std::int64_t least;
    std::int64_t most;
};

Bounds StepsFor(const ContrastTable& table, int channel, bool outward) {
    const int result = table[static_cast<std::size_t>(channel)];
    const bool upward = (channel > kMiddle) == outward;
    const int steps = upward ? result - channel : channel - result;
    const bool atEnd = result == (upward ? 255 : 0);
    // `most` stands for any number of steps where the limit is reached.
    return {steps, atEnd ? 255 : steps};
}

} // namespace

std::uint8_t OnLine(const ContrastLine& line, std::uint8_t channel) {
    const auto scale = static_cast<std::uint16_t>(1U << line.shift);
    return static_cast<std::uint8_t>(Moved(line, scale, line.outward ? 0 : -1, channel));
}

std::optional<ContrastLine> FitContrastLine(const ContrastTable& table, double stepsPerDistance) {
    if (!std::isfinite(stepsPerDistance)) return std::nullopt;
    ContrastLine line;
    line.outward = stepsPerDistance >= 0;
    const double steps = std::min(std::fabs(stepsPerDistance), 256.0);
    // Where even the farthest channel reaches its end, distances beyond that change nothing.
    const double needed = std::ceil(256.0 / std::max(steps, 1.0));
    line.farthest = static_cast<std::uint8_t>(std::min<double>(needed, kGreatestDistance));
    while (line.shift < 8 && steps * kOne / (1 << line.shift) > kOne - 2)
        ++line.shift;

    const auto slope = std::llround(steps * kOne / (1 << line.shift));
    for (const std::int64_t correction : {0, 1, -1, 2, -2}) {
        const std::int64_t candidate = slope + correction;
        if (candidate < 0 || candidate >= kOne) continue;
        // Every channel leaves a range of offsets; the line's is in all of them.
        std::int64_t from = 0;
        std::int64_t to = kOne - 1;
        for (int channel = 0; channel < 256; ++channel) {
            const int distance = std::min<int>(std::abs(channel - kMiddle), line.farthest);
            const std::int64_t product = (std::int64_t{distance} << line.shift) * candidate;
            const Bounds bounds = StepsFor(table, channel, line.outward);
            from = std::max(from, bounds.least * kOne - product);
            if (bounds.most < 255) to = std::min(to, (bounds.most + 1) * kOne - 1 - product);
        }
        if (from > to) continue;
        line.slope = static_cast<std::uint16_t>(candidate);
        line.offset = static_cast<std::uint16_t>(from + (to - from) / 2);
        const auto fits = [&](std::size_t channel) {
            return OnLine(line, static_cast<std::uint8_t>(channel)) == table[channel];
        };
        bool exact = true;
        for (std::size_t channel = 0; channel < table.size(); ++channel)
            exact = exact && fits(channel);
        if (exact) return line;
    }
    return std::nullopt;
}

MIRELLE_VERSIONS void ContrastByLine(const ContrastLine& line, const Pixel* from, Pixel* to,
                                     std::size_t pixels) {
    const ContrastLine fixed = line;
    const auto scale = static_cast<std::uint16_t>(1U << fixed.shift);
    const std::int16_t turn = fixed.outward ? 0 : -1;
    EachWideByte(
        pixels, to, [=](std::uint16_t c) MIRELLE_LAMBDA { return Moved(fixed, scale, turn, c); }, from);
}

} // namespace mirelle::fast
