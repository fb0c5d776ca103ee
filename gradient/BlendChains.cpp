#include "gradient/BlendChains.h"

#include "forms/FunctionVersions.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <numeric>

namespace mirelle {
namespace {

// Bytes that go through their chains together: enough of them that no step waits for the one before.
constexpr std::size_t kBlock = 256;

using Bytes = std::array<std::uint8_t, kBlock>;

// distance x factor / 32768 to the nearest whole number, which vector code has as one step in 16 bits.
inline std::int16_t Step(std::int16_t distance, std::int16_t factor) {
    return static_cast<std::int16_t>((((std::int32_t{distance} * std::int32_t{factor}) >> 14) + 1) >> 1);
}

// For every alpha the factor with which that is distance x alpha / 255 to the nearest whole number, for all
// distances from 0 to 255. One of the two whole numbers around alpha x 32768 / 255 always is.
const std::array<std::int16_t, 256>& Factors() {
    static const std::array<std::int16_t, 256> factors = [] {
        std::array<std::int16_t, 256> found{};
        for (int alpha = 0; alpha < 255; ++alpha) {
            const auto lower = static_cast<std::int16_t>(alpha * 32768 / 255);
            const auto fits = [&](std::int16_t distance) {
                return Step(distance, lower) == (2 * distance * alpha + 255) / 510;
            };
            bool lowerFits = true;
            for (std::int16_t distance = 0; distance < 256; ++distance)
                lowerFits = lowerFits && fits(distance);
            found[static_cast<std::size_t>(alpha)] = static_cast<std::int16_t>(lowerFits ? lower : lower + 1);
        }
        found[255] = std::numeric_limits<std::int16_t>::max(); // short of 32768 by too little to count
        return found;
    }();
    return factors;
}

inline std::uint8_t Distance(std::uint8_t a, std::uint8_t b) {
    return static_cast<std::uint8_t>(std::max(a, b) - std::min(a, b));
}

// At this distance from the source's byte, on the side where the byte was.
inline std::uint8_t Moved(std::uint8_t was, std::uint8_t source, std::uint8_t distance) {
    const auto above = static_cast<std::uint8_t>(source + distance);
    const auto below = static_cast<std::uint8_t>(source - distance);
    return was > source ? above : below;
}

// A block through its chains; the factors of link k begin at factors[k * stride].
MIRELLE_VERSIONS
void BlendBlock(std::uint8_t* to, const std::uint8_t* was, const std::uint8_t* from,
                const std::int16_t* factors, std::size_t stride, std::size_t links) {
    std::array<std::int16_t, kBlock> distances;
    for (std::size_t i = 0; i < kBlock; ++i)
        distances[i] = Distance(was[i], from[i]);
    for (std::size_t link = 0; link < links; ++link) {
        const std::int16_t* here = factors + link * stride;
        for (std::size_t i = 0; i < kBlock; ++i)
            distances[i] = static_cast<std::int16_t>(distances[i] - Step(distances[i], here[i]));
    }
    MIRELLE_INDEPENDENT
    for (std::size_t i = 0; i < kBlock; ++i)
        to[i] = Moved(was[i], from[i], static_cast<std::uint8_t>(distances[i]));
}

// The same with one chain for all bytes.
MIRELLE_VERSIONS
void BlendBlockAlike(std::uint8_t* to, const std::uint8_t* was, const std::uint8_t* from,
                     const std::int16_t* factors, std::size_t links) {
    std::array<std::int16_t, kBlock> distances;
    for (std::size_t i = 0; i < kBlock; ++i)
        distances[i] = Distance(was[i], from[i]);
    for (std::size_t link = 0; link < links; ++link) {
        const std::int16_t factor = factors[link];
        for (std::size_t i = 0; i < kBlock; ++i)
            distances[i] = static_cast<std::int16_t>(distances[i] - Step(distances[i], factor));
    }
    MIRELLE_INDEPENDENT
    for (std::size_t i = 0; i < kBlock; ++i)
        to[i] = Moved(was[i], from[i], static_cast<std::uint8_t>(distances[i]));
}

// Runs work(to, was, from, at) over all blocks of a run, `at` the first of the run's bytes; what does not
// fill the last one is done in a copy.
template <class Work>
void EachBlock(const BlendRun& run, const Work& work) {
    std::size_t at = 0;
    for (; at + kBlock <= run.bytes; at += kBlock)
        work(run.to + at, run.was + at, run.from + at, at);
    if (at == run.bytes) return;
    Bytes last{};
    Bytes lastFrom{};
    std::memcpy(last.data(), run.was + at, run.bytes - at);
    std::memcpy(lastFrom.data(), run.from + at, run.bytes - at);
    work(last.data(), last.data(), lastFrom.data(), at);
    std::memcpy(run.to + at, last.data(), run.bytes - at);
}

} // namespace

ChainTable::ChainTable(std::size_t bytes, std::size_t links)
    : stride_((bytes + kBlock - 1) / kBlock * kBlock), links_(links), factors_(stride_ * links) {}

void ChainTable::Set(std::size_t link, std::size_t byte, std::uint8_t alpha) {
    factors_[link * stride_ + byte] = Factors()[alpha];
}

void ChainTable::Blend(const BlendRun& run) const {
    EachBlock(run, [this](auto* to, auto* was, auto* from, std::size_t at) {
        BlendBlock(to, was, from, factors_.data() + at, stride_, links_);
    });
}

void BlendChain(const BlendRun& run, std::span<const std::uint8_t> alphas) {
    std::vector<std::int16_t> factors;
    factors.reserve(alphas.size());
    for (const std::uint8_t alpha : alphas)
        factors.push_back(Factors()[alpha]);
    EachBlock(run, [&](auto* to, auto* was, auto* from, std::size_t) {
        BlendBlockAlike(to, was, from, factors.data(), factors.size());
    });
}

std::optional<std::uint8_t> LimitOf(std::span<const std::uint8_t> alphas) {
    Bytes distances;
    std::iota(distances.begin(), distances.end(), std::uint8_t{0});
    const Bytes source{};
    BlendChain({distances.data(), distances.data(), source.data(), kBlock}, alphas);
    const std::uint8_t limit = distances.back();
    for (std::size_t distance = 0; distance < kBlock; ++distance) {
        if (distances[distance] != std::min<std::size_t>(distance, limit)) return std::nullopt;
    }
    return limit;
}

MIRELLE_VERSIONS
void LimitDistances(const BlendRun& run, const std::uint8_t* limits) {
    const auto [to, was, from, bytes] = run;
    MIRELLE_INDEPENDENT
    for (std::size_t i = 0; i < bytes; ++i)
        to[i] = Moved(was[i], from[i], std::min(Distance(was[i], from[i]), limits[i]));
}

MIRELLE_VERSIONS
void LimitDistances(const BlendRun& run, std::uint8_t limit) {
    const auto [to, was, from, bytes] = run;
    MIRELLE_INDEPENDENT
    for (std::size_t i = 0; i < bytes; ++i)
        to[i] = Moved(was[i], from[i], std::min(Distance(was[i], from[i]), limit));
}

} // namespace mirelle
