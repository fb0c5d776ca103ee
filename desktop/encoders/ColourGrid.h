// The box of colours that a picture uses, parted into cells: fine enough to tell its colours apart, few
// enough to keep something for each.
#pragma once

#include "forms/Picture.h"

#include <array>
#include <cstddef>

namespace mirelle {

class ColourGrid {
public:
    // At most 64 cells along each of the three colours.
    static constexpr int kBits = 6;
    static constexpr std::size_t kCellCount = std::size_t{1} << (3 * kBits);

    // The grid over all colours of the bitmap.
    explicit ColourGrid(const Bitmap& bitmap);

    // The cell of a colour inside the box, below kCellCount.
    std::size_t CellOf(Pixel pixel) const {
        return (Step(pixel.blue, 0) << (2 * kBits)) | (Step(pixel.green, 1) << kBits) | Step(pixel.red, 2);
    }
    // The box: its first and last step of blue (0), green (1) and red (2).
    int Lowest(std::size_t colour) const { return sides_[colour].lowest; }
    int Highest(std::size_t colour) const { return sides_[colour].highest; }

private:
    struct Side {
        int lowest = 255;
        int highest = 0;
        int shift = 0;
    };

    std::size_t Step(std::uint8_t value, std::size_t side) const {
        return static_cast<std::size_t>((value - sides_[side].lowest) >> sides_[side].shift);
    }
    std::array<Side, 3> sides_; // blue, green, red
};

} // namespace mirelle
