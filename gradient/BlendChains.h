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

// Bytes that are moved toward others. `to` may be `was`.
struct BlendRun {
    std::uint8_t* to;         // where the results go
    const std::uint8_t* was;  // the bytes d
    const std::uint8_t* from; // the bytes s
    std::size_t bytes;
};

// What the chain of these alphas, in their order, leaves of every distance at most, where it leaves the
// shorter ones as they are. 255 changes nothing, 0 gives the source. Nothing for any other chain.
std::optional<std::uint8_t> LimitOf(std::span<const std::uint8_t> alphas);

// Each byte comes as near to the source's as its limit tells, or as the one limit of all.
void LimitDistances(const BlendRun& run, const std::uint8_t* limits);
void LimitDistances(const BlendRun& run, std::uint8_t limit);

// A chain for each byte of a run, all of so many links. A link that has not been set leaves its byte.
class ChainTable {
public:
    ChainTable(std::size_t bytes, std::size_t links);

    void Set(std::size_t link, std::size_t byte, std::uint8_t alpha);
    // The run begins with the table's first byte.
    void Blend(const BlendRun& run) const;

private:
    std::size_t stride_;
    std::size_t links_;
    std::vector<std::int16_t> factors_; // link after link
};

// One chain for all bytes.
void BlendChain(const BlendRun& run, std::span<const std::uint8_t> alphas);

} // namespace mirelle
