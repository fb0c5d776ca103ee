// How large the planes of the components are.
#pragma once

#include "codecs/jpeg/Frame.h"

#include <cstdint>

namespace mirelle::jpeg {

// Raises error 6 where the result leaves 32 bits.
std::int32_t RoundedUpTo8(std::int32_t length);

struct PlaneSize {
    std::int32_t xi = 0; // the picture's share of the plane, in samples
    std::int32_t yi = 0;
    std::int32_t xa = 0; // the plane in whole blocks
    std::int32_t ya = 0;

    friend bool operator==(const PlaneSize&, const PlaneSize&) = default;
};

// `w8` and `h8` are the frame's sides in whole blocks. Raises error 6 where a product leaves 32 bits.
PlaneSize PlaneSizeOf(const Component& component, const Frame& frame, std::int32_t w8, std::int32_t h8);

// Gives the frame the components for the sampling factors: one grey component where all of the factors of the
// second and third are 0, else three. Raises "Invalid Sampling Value" for a factor outside of 1..4 and leaves
// the frame as it was.
void SetSamplingFrequencies(Frame& frame, std::int32_t H1, std::int32_t V1, std::int32_t H2, std::int32_t V2,
                            std::int32_t H3, std::int32_t V3);

} // namespace mirelle::jpeg
