// A contrast table as one line of arithmetic, which vector code follows faster than it looks up a table.
//
// A channel c moves away from 127 (or toward it and beyond) by a number of steps that grows with its distance
// d = |c - 127|: (d x 2^shift x slope + offset) / 65536, cut down; then it is limited to a byte.
#pragma once

#include "forms/Picture.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace mirelle::fast {

using ContrastTable = std::array<std::uint8_t, 256>;

struct ContrastLine {
    bool outward = true; // away from 127
    std::uint8_t shift = 0;
    std::uint16_t slope = 0;
    std::uint16_t offset = 0; // 0 for nearly every table, which saves a third of the work
};

// The line that gives the table exactly, for a table of so many steps for each step of distance, or nothing
// where there is none: where channels keep their value, say, since the result left 16 bits.
std::optional<ContrastLine> FitContrastLine(const ContrastTable& table, double stepsPerDistance);

// What the line makes of all three channels of pixels; the fourth byte becomes 0. `from` and `to` may be the
// same.
void ContrastByLine(const ContrastLine& line, const Pixel* from, Pixel* to, std::size_t pixels);

} // namespace mirelle::fast
