// The fixed tables of the JPEG encoder.
#pragma once

#include <array>
#include <cstdint>

namespace mirelle::jpeg {

// Natural position (column + 8 * row) to zig-zag position: ITU T.81, Figure A.6.
// clang-format off
inline constexpr std::array<std::uint8_t, 64> ZigZag = {
     0,  1,  5,  6, 14, 15, 27, 28,
     2,  4,  7, 13, 16, 26, 29, 42,
     3,  8, 12, 17, 25, 30, 41, 43,
     9, 11, 18, 24, 31, 40, 44, 53,
    10, 19, 23, 32, 39, 45, 52, 54,
    20, 22, 33, 38, 46, 51, 55, 60,
    21, 34, 37, 47, 50, 56, 59, 61,
    35, 36, 48, 49, 57, 58, 62, 63,
};

// Base quantisation tables in zig-zag order: ITU T.81, Tables K.1 and K.2.
inline constexpr std::array<std::uint8_t, 64> QLuminance = {
    16,
    11, 12,
    14, 12, 10,
    16, 14, 13, 14,
    18, 17, 16, 19, 24,
    40, 26, 24, 22, 22, 24,
    49, 35, 37, 29, 40, 58, 51,
    61, 60, 57, 51, 56, 55, 64, 72,
    92, 78, 64, 68, 87, 69, 55,
    56, 80, 109, 81, 87, 95,
    98, 103, 104, 103, 62,
    77, 113, 121, 112,
    100, 120, 92,
    101, 103,
    99,
};
inline constexpr std::array<std::uint8_t, 64> QChrominance = {
    17,
    18, 18,
    24, 21, 24,
    47, 26, 26, 47,
    99, 66, 56, 66, 99,
    99, 99, 99, 99, 99, 99,
    99, 99, 99, 99, 99, 99, 99,
    99, 99, 99, 99, 99, 99, 99, 99,
    99, 99, 99, 99, 99, 99, 99,
    99, 99, 99, 99, 99, 99,
    99, 99, 99, 99, 99,
    99, 99, 99, 99,
    99, 99, 99,
    99, 99,
    99,
};

// What the outputs of ForwardDCT are multiplied by, in natural order and in units of 1/16384, to become the
// coefficients of ITU T.81. The factor is round(16384 * a[column] * a[row]) with
// a = 1, 1, 4 sin(pi/8), sqrt 2, 2, sqrt 2, 1 / (2 sin(pi/8)), 2.
inline constexpr std::array<std::int32_t, 64> FDCTScale = {
    16384, 16384, 25080, 23170, 32768, 23170, 21407, 32768,
    16384, 16384, 25080, 23170, 32768, 23170, 21407, 32768,
    25080, 25080, 38390, 35468, 50159, 35468, 32768, 50159,
    23170, 23170, 35468, 32768, 46341, 32768, 30274, 46341,
    32768, 32768, 50159, 46341, 65536, 46341, 42813, 65536,
    23170, 23170, 35468, 32768, 46341, 32768, 30274, 46341,
    21407, 21407, 32768, 30274, 42813, 30274, 27969, 42813,
    32768, 32768, 50159, 46341, 65536, 46341, 42813, 65536,
};
// clang-format on

} // namespace mirelle::jpeg
