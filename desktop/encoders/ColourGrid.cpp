#include "desktop/encoders/ColourGrid.h"

#include <algorithm>
#include <bit>

namespace mirelle {

ColourGrid::ColourGrid(const Bitmap& bitmap) {
    for (const Pixel& pixel : bitmap.Pixels()) {
        const std::array<int, 3> values = {pixel.blue, pixel.green, pixel.red};
        for (std::size_t i = 0; i < sides_.size(); ++i) {
            sides_[i].lowest = std::min(sides_[i].lowest, values[i]);
            sides_[i].highest = std::max(sides_[i].highest, values[i]);
        }
    }
    for (Side& side : sides_) {
        const auto range = static_cast<unsigned>(std::max(side.highest - side.lowest, 0));
        side.shift = std::max(static_cast<int>(std::bit_width(range)) - kBits, 0);
    }
}

} // namespace mirelle
