// Quantisation tables: from a quality to the tables, and from a table to the factors that the transform
// multiplies by.
#pragma once

#include "codecs/jpeg/Frame.h"

namespace mirelle::jpeg {

inline constexpr int kDefaultQuality = 75;

// The scale in percent that a quality of 1..100 gives the base tables: 5000 \ quality below 50, 200 - 2 *
// quality below 100, 0 at 100.
int ScaleOfQuality(int quality);

// Sets Qk of a table from a base table in zig-zag order; values are kept within 1..255, or 1..65535 for a
// precision of 12.
void ScaleBaseTable(QuantTable& table, const std::array<std::uint8_t, 64>& base, int scale, int precision);

// Sets Fdtbl from Qk. Raises "Bad Quantization Table" for a Qk below 1 or above 255 (65535 for a precision
// of 12).
void ScaleQuantTable(QuantTable& table, int precision);

} // namespace mirelle::jpeg
