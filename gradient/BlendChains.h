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

// What the chain of these alphas, in their order, leaves of every distance at most, where it leaves the
// shorter ones as they are. 255 changes nothing, 0 gives the source. Nothing for any other chain.
std::optional<std::uint8_t> LimitOf(std::span<const std::uint8_t> alphas);

// Each byte of `to` comes as near to that of `from` as its limit tells.
void LimitDistances(std::uint8_t* to, const std::uint8_t* from, const std::uint8_t* limits,
                    std::size_t bytes);
void LimitDistances(std::uint8_t* to, const std::uint8_t* from, std::uint8_t limit, std::size_t bytes);

// A chain for each byte of a run, all of so many links. A link that has not been set leaves its byte.
class ChainTable {
public:
    ChainTable(std::size_t bytes, std::size_t links);

    void Set(std::size_t link, std::size_t byte, std::uint8_t alpha);
    // The first `bytes` of the run.
    void Blend(std::uint8_t* to, const std::uint8_t* from, std::size_t bytes) const;

private:
    std::size_t stride_;
    std::size_t links_;
    std::vector<std::int16_t> factors_; // link after link
};

// One chain for all bytes.
void BlendChain(std::uint8_t* to, const std::uint8_t* from, std::span<const std::uint8_t> alphas,
                std::size_t bytes);

} // namespace mirelle
