// Finds the colour of a palette that is nearest to another colour.
#pragma once

#include "forms/Picture.h"

#include <cstddef>
#include <span>
#include <vector>

namespace mirelle {

class NearestColour {
public:
    // `palette` holds 1 to 256 colours.
    explicit NearestColour(std::span<const Pixel> palette);

    // The number of the colour with the smallest squared distance, the first of several.
    std::size_t Of(Pixel pixel) const;

private:
    std::vector<int> blue_;
    std::vector<int> green_;
    std::vector<int> red_;
};

} // namespace mirelle
