#include "fx/fast/ContrastLine.h"

#include "fx/fast/Lanes.h"

#include <algorithm>
#include <cmath>

namespace mirelle::fast {
namespace {

constexpr int kMiddle = 127;
constexpr std::int64_t kOne = 65536;
// Up to here no sum of a channel and its steps leaves 16 bits.
constexpr int kGreatestShift = 7;

// The carry of x x slope's low half and the offset.
MIRELLE_INLINE std::uint16_t Carry(std::uint16_t x, std::uint16_t slope, std::uint16_t offset) {
    const auto low = static_cast<std::uint16_t>(std::uint32_t{x} * std::uint32_t{slope});
    const auto greatest = static_cast<std::uint16_t>(kOne - 1 - offset);
    // Both moved by half the range, since vector code compares signed numbers.
    const auto signedLow = static_cast<std::int16_t>(static_cast<std::uint16_t>(low ^ 0x8000U));
    const auto signedGreatest = static_cast<std::int16_t>(static_cast<std::uint16_t>(greatest ^ 0x8000U));
    return signedLow > signedGreatest ? 1 : 0;
}

// What a line makes of a channel. `scale` is 2^shift; `turn` has all bits where the line leads inward, and
// none where it leads outward.
template <bool hasOffset>
MIRELLE_INLINE std::uint16_t Moved(const ContrastLine& line, std::uint16_t scale, std::int16_t turn,
                                   std::uint16_t c) {
    const auto x = static_cast<std::uint16_t>(WideDistance(c, kMiddle) * scale);
    std::uint16_t steps = HighProduct(x, line.slope);
    if constexpr (hasOffset) steps = static_cast<std::uint16_t>(steps + Carry(x, line.slope, line.offset));
    // All bits for a move downward, which turns the steps into their negative.
    const auto downward = static_cast<std::int16_t>((static_cast<std::int16_t>(c - kMiddle) >> 15) ^ turn);
    const auto moved =
        static_cast<std::int16_t>(c + (static_cast<std::int16_t>(steps) ^ downward) - downward);
    const auto above0 = static_cast<std::int16_t>(moved > 0 ? moved : 0);
    return static_cast<std::uint16_t>(above0 < 255 ? above0 : 255);
}

std::uint16_t ScaleOf(const ContrastLine& line) {
    return static_cast<std::uint16_t>(1U << line.shift);
}
std::int16_t TurnOf(const ContrastLine& line) {
    return line.outward ? 0 : -1;
}

bool GivesTable(const ContrastLine& line, const ContrastTable& table) {
    for (std::size_t channel = 0; channel < table.size(); ++channel) {
        const std::uint16_t result =
            Moved<true>(line, ScaleOf(line), TurnOf(line), static_cast<std::uint16_t>(channel));
        if (result != table[channel]) return false;
    }
    return true;
}

// The offsets with which a slope gives every entry of the table.
struct Offsets {
    std::int64_t least = 0;
    std::int64_t most = kOne - 1;
};

Offsets OffsetsFor(const ContrastTable& table, const ContrastLine& line, std::int64_t slope) {
    Offsets offsets;
    for (int channel = 0; channel < 256; ++channel) {
        const int result = table[static_cast<std::size_t>(channel)];
        const std::int64_t product = (std::int64_t{std::abs(channel - kMiddle)} << line.shift) * slope;
        const bool upward = (channel > kMiddle) == line.outward;
        const std::int64_t steps = upward ? result - channel : channel - result;
        offsets.least = std::max(offsets.least, steps * kOne - product);
        // At its end a channel can have moved any number of steps more.
        const bool atEnd = result == (upward ? 255 : 0);
        if (!atEnd) offsets.most = std::min(offsets.most, (steps + 1) * kOne - 1 - product);
    }
    return offsets;
}

template <bool hasOffset>
void FollowLine(const ContrastLine& line, const Pixel* from, Pixel* to, std::size_t pixels) {
    const std::uint16_t scale = ScaleOf(line);
    const std::int16_t turn = TurnOf(line);
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachWideByte(
            pixels, to,
            [=](std::uint16_t c) MIRELLE_LAMBDA { return Moved<hasOffset>(line, scale, turn, c); }, from);
    });
}

} // namespace

std::optional<ContrastLine> FitContrastLine(const ContrastTable& table, double stepsPerDistance) {
    if (!std::isfinite(stepsPerDistance)) return std::nullopt;
    ContrastLine line;
    line.outward = stepsPerDistance >= 0;
    const double steps = std::fabs(stepsPerDistance);
    const auto slopeAt = [&](int shift) { return steps * kOne / (1 << shift); };
    while (line.shift < kGreatestShift && slopeAt(line.shift) > kOne - 2)
        ++line.shift;
    const auto slope = static_cast<std::int64_t>(std::min<double>(slopeAt(line.shift), kOne - 1));

    // A slope that is a little too steep often does without an offset. Otherwise the flattest that has one is
    // taken.
    std::optional<ContrastLine> withOffset;
    for (std::int64_t candidate = std::max<std::int64_t>(slope - 2, 0);
         candidate <= std::min(slope + 3, kOne - 1); ++candidate) {
        const Offsets offsets = OffsetsFor(table, line, candidate);
        if (offsets.least > offsets.most) continue;
        line.slope = static_cast<std::uint16_t>(candidate);
        line.offset = static_cast<std::uint16_t>(
            offsets.least == 0 ? 0 : offsets.least + (offsets.most - offsets.least) / 2);
        if (!GivesTable(line, table)) continue;
        if (line.offset == 0) return line;
        if (!withOffset) withOffset = line;
    }
    return withOffset;
}

void ContrastByLine(const ContrastLine& line, const Pixel* from, Pixel* to, std::size_t pixels) {
    if (line.offset == 0) {
        FollowLine<false>(line, from, to, pixels);
    } else {
        FollowLine<true>(line, from, to, pixels);
    }
}

} // namespace mirelle::fast
