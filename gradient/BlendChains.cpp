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
MIRELLE_INLINE std::int16_t Step(std::int16_t distance, std::int16_t factor) {
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

MIRELLE_INLINE std::uint8_t Distance(std::uint8_t a, std::uint8_t b) {
    return static_cast<std::uint8_t>(std::max(a, b) - std::min(a, b));
}

// At this distance from the source's byte, on the side where the byte was.
MIRELLE_INLINE std::uint8_t Moved(std::uint8_t was, std::uint8_t source, std::uint8_t distance) {
    const auto above = static_cast<std::uint8_t>(source + distance);
    const auto below = static_cast<std::uint8_t>(source - distance);
    return was > source ? above : below;
}

// A block through its chains; factorOf(link, i) is that of its byte i.
template <class FactorOf>
MIRELLE_INLINE void BlendBlock(std::uint8_t* to, const std::uint8_t* was, const std::uint8_t* from,
                               std::size_t links, const FactorOf& factorOf) {
    std::array<std::int16_t, kBlock> distances;
    for (std::size_t i = 0; i < kBlock; ++i)
        distances[i] = Distance(was[i], from[i]);
    for (std::size_t link = 0; link < links; ++link) {
        for (std::size_t i = 0; i < kBlock; ++i)
            distances[i] = static_cast<std::int16_t>(distances[i] - Step(distances[i], factorOf(link, i)));
    }
    MIRELLE_INDEPENDENT
    for (std::size_t i = 0; i < kBlock; ++i)
        to[i] = Moved(was[i], from[i], static_cast<std::uint8_t>(distances[i]));
}

// The bytes so far ahead come from memory while a block goes through its chains.
constexpr std::size_t kAhead = 4 * kBlock;
constexpr std::size_t kCacheLine = 64;

MIRELLE_INLINE void FetchBlock(const BlendRun& run, std::size_t at) {
    for (std::size_t line = at; line < at + kBlock; line += kCacheLine) {
        MIRELLE_FETCH_TO_READ(run.was + line);
        MIRELLE_FETCH_TO_READ(run.from + line);
        MIRELLE_FETCH_TO_WRITE(run.to + line);
    }
}

// Runs work(to, was, from, at) over all blocks of a run, `at` the first of the run's bytes; what does not
// fill the last one is done in a copy.
template <class Work>
MIRELLE_INLINE void EachBlock(const BlendRun& run, const Work& work) {
    std::size_t at = 0;
    for (; at + kBlock <= run.bytes; at += kBlock) {
        FetchBlock(run, std::min(at + kAhead, run.bytes - kBlock));
        work(run.to + at, run.was + at, run.from + at, at);
    }
    if (at == run.bytes) return;
    Bytes last{};
    Bytes lastFrom{};
    std::memcpy(last.data(), run.was + at, run.bytes - at);
    std::memcpy(lastFrom.data(), run.from + at, run.bytes - at);
    work(last.data(), last.data(), lastFrom.data(), at);
    std::memcpy(run.to + at, last.data(), run.bytes - at);
}

std::size_t WholeBlocks(std::size_t bytes) {
    return (bytes + kBlock - 1) / kBlock * kBlock;
}

std::size_t LongestOf(std::span<const Alphas> chains) {
    std::size_t links = 0;
    for (const Alphas alphas : chains)
        links = std::max(links, alphas.size());
    return links;
}

// The chain without the alphas that it begins with, which are all of `first` that change anything. Nothing
// for a chain that begins with others.
std::optional<Alphas> Behind(Alphas first, Alphas chain) {
    for (const std::uint8_t alpha : first) {
        if (alpha == 0) continue;
        if (chain.empty() || chain.front() != alpha) return std::nullopt;
        chain = chain.subspan(1);
    }
    return chain;
}

// One row of alphas in which each chain is what a window of so many links shows, moved by one for each chain:
// so it is where bands of one width follow each other. A 0 stands where no band begins. Nothing where no such
// row is found.
std::optional<std::vector<std::uint8_t>> RowShowing(std::span<const Alphas> chains, std::size_t links) {
    if (chains.empty() || links == 0) return std::nullopt;
    std::vector<std::uint8_t> row;
    row.reserve(links + chains.size() - 1);
    row.resize(links - chains[0].size());
    row.insert(row.end(), chains[0].begin(), chains[0].end());
    for (const Alphas chain : chains.subspan(1)) {
        const auto more = Behind(Alphas(row).last(links - 1), chain);
        if (!more || more->size() > 1) return std::nullopt;
        row.push_back(more->empty() ? 0 : more->front());
    }
    return row;
}

} // namespace

BlendChains::BlendChains(Alphas alphas) : links_(alphas.size()) {
    for (const std::uint8_t alpha : alphas)
        factors_.push_back(Factors()[alpha]);
}

BlendChains::BlendChains(std::span<const Alphas> chains, std::size_t bytesOfEach)
    : links_(LongestOf(chains)) {
    if (const auto alphas = RowShowing(chains, links_)) {
        stride_ = bytesOfEach;
        factors_.resize(WholeBlocks(chains.size() * bytesOfEach) + links_ * bytesOfEach);
        for (std::size_t place = 0; place < alphas->size(); ++place)
            std::fill_n(&factors_[place * bytesOfEach], bytesOfEach, Factors()[(*alphas)[place]]);
        return;
    }
    stride_ = WholeBlocks(chains.size() * bytesOfEach);
    factors_.resize(stride_ * links_);
    for (std::size_t chain = 0; chain < chains.size(); ++chain) {
        for (std::size_t link = 0; link < chains[chain].size(); ++link) {
            std::fill_n(&factors_[link * stride_ + chain * bytesOfEach], bytesOfEach,
                        Factors()[chains[chain][link]]);
        }
    }
}

void BlendChains::Blend(const BlendRun& run) const {
    const std::int16_t* factors = factors_.data();
    const std::size_t links = links_;
    const std::size_t stride = stride_;
    if (stride == 0) {
        InBestVersion([=]() MIRELLE_LAMBDA {
            EachBlock(run, [=](auto* to, auto* was, auto* from, std::size_t) MIRELLE_LAMBDA {
                BlendBlock(to, was, from, links,
                           [=](std::size_t link, std::size_t) MIRELLE_LAMBDA { return factors[link]; });
            });
        });
    } else {
        InBestVersion([=]() MIRELLE_LAMBDA {
            EachBlock(run, [=](auto* to, auto* was, auto* from, std::size_t at) MIRELLE_LAMBDA {
                BlendBlock(to, was, from, links, [=](std::size_t link, std::size_t i) MIRELLE_LAMBDA {
                    return factors[link * stride + at + i];
                });
            });
        });
    }
}

std::optional<std::uint8_t> LimitOf(Alphas alphas) {
    Bytes distances;
    std::iota(distances.begin(), distances.end(), std::uint8_t{0});
    Bytes left;
    bool limits = false;
    // What it refers to is its own alone.
    InBestVersion([=, &distances, &left, &limits, factors = Factors().data()]() MIRELLE_LAMBDA {
        const Bytes source{};
        BlendBlock(left.data(), distances.data(), source.data(), alphas.size(),
                   [=](std::size_t link, std::size_t) MIRELLE_LAMBDA { return factors[alphas[link]]; });
        const std::uint8_t limit = left.back();
        int others = 0;
        for (std::size_t i = 0; i < kBlock; ++i)
            others |= left[i] ^ std::min(distances[i], limit);
        limits = others == 0;
    });
    return limits ? std::optional(left.back()) : std::nullopt;
}

void LimitDistances(const BlendRun& run, std::span<const std::uint8_t> limits) {
    const auto limitAll = [=](const auto& limitOf) MIRELLE_LAMBDA {
        const auto [to, was, from, bytes] = run;
        MIRELLE_INDEPENDENT
        for (std::size_t i = 0; i < bytes; ++i)
            to[i] = Moved(was[i], from[i], std::min(Distance(was[i], from[i]), limitOf(i)));
    };
    if (limits.size() == 1) {
        InBestVersion([=, limit = limits[0]]()
                          MIRELLE_LAMBDA { limitAll([=](std::size_t) MIRELLE_LAMBDA { return limit; }); });
    } else {
        InBestVersion([=, each = limits.data()]() MIRELLE_LAMBDA {
            limitAll([=](std::size_t i) MIRELLE_LAMBDA { return each[i]; });
        });
    }
}

} // namespace mirelle
