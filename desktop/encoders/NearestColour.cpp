#include "desktop/encoders/NearestColour.h"

#include <algorithm>
#include <array>

namespace mirelle {

NearestColour::NearestColour(std::span<const Pixel> palette) {
    for (const Pixel& pixel : palette) {
        blue_.push_back(pixel.blue);
        green_.push_back(pixel.green);
        red_.push_back(pixel.red);
    }
}

std::size_t NearestColour::Of(Pixel pixel) const {
    // The distances first, without a branch: compilers turn that into steps for many colours at once.
    std::array<int, 256> distances;
    const std::size_t count = std::min(blue_.size(), distances.size());
    for (std::size_t i = 0; i < count; ++i) {
        const int blue = blue_[i] - pixel.blue;
        const int green = green_[i] - pixel.green;
        const int red = red_[i] - pixel.red;
        distances[i] = blue * blue + green * green + red * red;
    }
    const auto end = distances.begin() + static_cast<std::ptrdiff_t>(count);
    return static_cast<std::size_t>(std::min_element(distances.begin(), end) - distances.begin());
}

} // namespace mirelle
