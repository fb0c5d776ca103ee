// Channels that keep the value of the pixel before where a step fails, without a branch.
//
// A kernel fills a run of pixels with what it got: a channel that failed has 255 in `failed` and 0 in
// `values`, any other has 0 in `failed`. Resolve then carries values over the failures, within the run and
// from the run before it.
#pragma once

#include "fx/fast/Lanes.h"

#include <algorithm>

namespace mirelle::fast {

class KeptValues {
public:
    static constexpr std::size_t kRunPixels = 8 * kBlockPixels;
    static constexpr std::size_t kRunBytes = 4 * kRunPixels;

    MIRELLE_INLINE std::uint8_t* Values() { return values_ + kBlockBytes; }
    MIRELLE_INLINE std::uint8_t* Failed() { return failed_ + kBlockBytes; }

    // Writes the run to `out`, kRunPixels of them, of which the first `pixels` are the picture's.
    MIRELLE_INLINE void Resolve(std::uint8_t* out, std::size_t pixels) {
        const std::uint8_t* values = Values();
        const std::uint8_t* failed = Failed();
        std::uint8_t anyFailed = 0;
        for (std::size_t i = 0; i < kRunBytes; ++i)
            anyFailed |= failed[i];
        if (anyFailed == 0) {
            std::memcpy(out, values, kRunBytes);
        } else {
            CarryOver(out);
        }
        last_ = Word(out + 4 * (pixels - 1));
    }

private:
    MIRELLE_INLINE void CarryOver(std::uint8_t* out) {
        // A failed channel takes the value of the pixel before, and what is still failed then takes that of
        // two before; what failed in four pixels together is left.
        SetWord(values_ + kBlockBytes - 4, last_);
        SetWord(joined_ + kBlockBytes - 8, last_);
        SetWord(joined_ + kBlockBytes - 4, last_);
        Join(values_, failed_, joined_, failedAgain_, 4);
        Join(joined_, failedAgain_, values_, failed_, 8);
        // Now only pixels four apart depend on one another, and four at a time are carried on.
        std::uint64_t first = std::uint64_t{last_} << 32 | last_;
        std::uint64_t second = first;
        for (std::size_t i = 0; i < kRunBytes; i += 16) {
            std::uint64_t joined[2];
            std::uint64_t failed[2];
            std::memcpy(joined, Values() + i, sizeof joined);
            std::memcpy(failed, Failed() + i, sizeof failed);
            first = joined[0] | (failed[0] & first);
            second = joined[1] | (failed[1] & second);
            std::memcpy(out + i, &first, sizeof first);
            std::memcpy(out + i + 8, &second, sizeof second);
        }
    }

    static MIRELLE_INLINE void Join(const std::uint8_t* values, const std::uint8_t* failed,
                                    std::uint8_t* joined, std::uint8_t* failedAgain, std::size_t distance) {
        MIRELLE_INDEPENDENT
        for (std::size_t i = kBlockBytes; i < kBlockBytes + kRunBytes; ++i) {
            joined[i] = static_cast<std::uint8_t>(values[i] | (failed[i] & values[i - distance]));
            failedAgain[i] = static_cast<std::uint8_t>(failed[i] & failed[i - distance]);
        }
    }

    // The block ahead of a run holds the last pixel before it in `values_`, and no failure in `failed_`.
    alignas(kBlockBytes) std::uint8_t values_[kBlockBytes + kRunBytes] = {};
    alignas(kBlockBytes) std::uint8_t failed_[kBlockBytes + kRunBytes] = {};
    alignas(kBlockBytes) std::uint8_t joined_[kBlockBytes + kRunBytes] = {};
    alignas(kBlockBytes) std::uint8_t failedAgain_[kBlockBytes + kRunBytes] = {};
    std::uint32_t last_ = 0; // before the first pixel every value counts as 0
};

// Runs fill(values, failed, in...) over so many pixels, in runs of KeptValues::kRunPixels, and resolves each.
template <class Fill, class... In>
MIRELLE_INLINE void EachRun(KeptValues& kept, std::size_t pixels, Pixel* out, const Fill& fill,
                            const In*... in) {
    EachPart<KeptValues::kRunPixels>(
        pixels, out,
        [&](std::size_t count, std::uint8_t* to, const auto*... from) MIRELLE_LAMBDA {
            fill(kept.Values(), kept.Failed(), from...);
            kept.Resolve(to, count);
        },
        in...);
}

} // namespace mirelle::fast
