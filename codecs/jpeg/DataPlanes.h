// Brings the planes of the components out of an array of bytes: samples are left out where a component has
// fewer than the frame.
#pragma once

#include "codecs/jpeg/Geometry.h"
#include "codecs/jpeg/PlaneView.h"
#include "forms/Stretch.h"

#include <cstdint>
#include <span>
#include <vector>

namespace mirelle::jpeg {

// Bytes in the order blue, green, red, then by column, then by row, with the picture's lowest row first.
struct PixelData {
    std::span<const std::uint8_t> bytes;
    int columns = 0;
    int rows = 0;
};

// A plane takes every stepx-th column and every stepy-th row of the picture, where a step is the nearest
// whole number to the frame's samples over the plane's. What the picture does not fill is black. A plane is
// fetched anew only where its size in samples is not that of the plane before it.
class DataPlanes {
public:
    // As SurfacePlanes; `picture` counts its rows from the array's first. The data outlive this object.
    DataPlanes(const PixelData& data, const PixelArea& picture, int w8, int h8,
               std::vector<PlaneSize> planes);

    // The next plane; the view is good until the call after. Raises error 9 where the picture reaches beyond
    // the data, or its samples beyond the plane, 6 where the plane's bytes leave 32 bits.
    PlaneView Next();

private:
    void Fetch(const PlaneSize& plane);
    std::size_t IndexOf(std::int64_t column, std::int64_t row) const;

    PixelData data_;
    PixelArea picture_;
    int w8_;
    int h8_;
    std::vector<PlaneSize> planes_;
    std::size_t next_ = 0;
    std::vector<std::uint8_t> buffer_;
};

} // namespace mirelle::jpeg
