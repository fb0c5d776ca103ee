// Chains of blends: a byte that several bands meet takes the blend of each, one after the other.
//
// A blend moves a byte d toward the source's byte s by the nearest whole number to |d - s| x alpha / 255,
// which never ends in a half. So what a chain leaves of the distance |d - s| depends on that distance and the
// alphas alone, and not on the bytes themselves. Most chains of a gradient leave every distance as it is up
// to a limit, and what is above as the limit: those need one step instead of many.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace mirelle {

// The alphas of a chain, in the order of the blends.
using Alphas = std::span<const std::uint8_t>;

// Bytes that are moved toward others. `to` may be `was`.
struct BlendRun {
    std::uint8_t* to;         // where the results go
    const std::uint8_t* was;  // the bytes d
    const std::uint8_t* from; // the bytes s
    std::size_t bytes;
};

// What the chain of these alphas leaves of every distance at most, where it leaves the shorter ones as they
// are. 255 changes nothing, 0 gives the source. Nothing for any other chain.
std::optional<std::uint8_t> LimitOf(Alphas alphas);

// Each byte comes as near to the source's as its limit tells: one for each, or a single one for all.
void LimitDistances(const BlendRun& run, std::span<const std::uint8_t> limits);

// Chains ready to be drawn, which takes no memory any more.
class BlendChains {
public:
    // No chain, which leaves every byte.
    BlendChains() = default;
    // One chain for all bytes of a run.
    explicit BlendChains(Alphas alphas);
    // Each chain for so many bytes of a run side by side, which begins with those of the first chain.
    BlendChains(std::span<const Alphas> chains, std::size_t bytesOfEach);

    void Blend(const BlendRun& run) const;

private:
    std::size_t links_ = 0;  // of the longest chain; what a shorter one lacks leaves its bytes
    std::size_t stride_ = 0; // from the factors of a link to those of the next; 0 where each link has one
    std::vector<std::int16_t> factors_;
};

} // namespace mirelle
