// From blue, green and red bytes to Y, Cb and Cr in 16.16 form, moved so that the middle of the range is 0.
#pragma once

#include <array>
#include <cstdint>

namespace mirelle::jpeg {

struct ColourRow {
    std::int32_t red;
    std::int32_t green;
    std::int32_t blue;
    std::int32_t offset;
};

// By component index. A row's positive weights and its negative ones keep every value, and every partial sum,
// within 24 bits and a sign.
inline constexpr std::array<ColourRow, 3> kColourRows = {{
    {19595, 38470, 7471, -8388608}, // Y
    {-11059, -21709, 32768, 0},     // Cb
    {32768, -27439, -5329, 0},      // Cr
}};

constexpr std::int32_t ColourValue(const ColourRow& row, std::int32_t blue, std::int32_t green,
                                   std::int32_t red) {
    return row.red * red + row.green * green + row.blue * blue + row.offset;
}

} // namespace mirelle::jpeg
