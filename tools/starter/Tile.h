// What a material is drawn on: a square that wraps around at its edges, so that copies laid side by side show
// no seam.
#pragma once

#include "forms/Picture.h"
#include "tools/starter/Tone.h"

#include <vector>

namespace mirelle::starter {

constexpr int kSide = 512; // pixels

// A value for each pixel of a tile; subscripts wrap around.
template <class Value>
class Plane {
public:
    explicit Plane(Value fill = {}) : values_(std::size_t{kSide} * kSide, fill) {}

    Value& At(int x, int y) { return values_[Index(x, y)]; }
    const Value& At(int x, int y) const { return values_[Index(x, y)]; }

private:
    static std::size_t Index(int x, int y) {
        static_assert((kSide & (kSide - 1)) == 0, "wrapping around takes the low bits");
        return static_cast<std::size_t>(y & (kSide - 1)) * kSide + static_cast<std::size_t>(x & (kSide - 1));
    }
    std::vector<Value> values_;
};

using Tile = Plane<Tone>;
using Field = Plane<double>; // heights, distances, masks

// Fills a plane: `value` is asked for each pixel's centre, u and v from 0 to 1.
template <class Value, class Function>
Plane<Value> Drawn(Function value) {
    Plane<Value> plane;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x)
            plane.At(x, y) = value((x + 0.5) / kSide, (y + 0.5) / kSide);
    }
    return plane;
}

// The tile under a lamp above its upper left: slopes of the height field that face it are brighter, those
// that turn away darker. Heights are in pixels.
Tile Lit(const Tile& tile, const Field& height, double strength, double gloss = 0);

// Pixels of the tile, and a margin of its surroundings in every direction.
Bitmap BitmapOf(const Tile& tile, int margin = 0);
// The tile from the middle of a bitmap with such a margin.
Tile TileOf(const Bitmap& bitmap, int margin = 0);

} // namespace mirelle::starter
