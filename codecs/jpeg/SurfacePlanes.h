// Brings the planes of the components out of a surface, shrunk where a component has fewer samples than the
// frame.
#pragma once

#include "codecs/jpeg/Geometry.h"
#include "codecs/jpeg/PlaneView.h"
#include "forms/Picture.h"
#include "forms/Stretch.h"

#include <vector>

namespace mirelle::jpeg {

// All planes of a frame pass through one working buffer, black at first and as large as the frame in whole
// blocks. A plane is fetched anew only where its size in whole blocks is not the size in samples of the plane
// before it; else it is what that one left. Where a fetched plane ends within a block, the column and the row
// beside the picture keep what the buffer held, and it is they, not the picture's own last ones, that are
// spread over the rest of the block.
//
// Only what planes can be seen of that buffer is really made: planes in the surface's own scale that fill
// their blocks are looked at in place.
class SurfacePlanes {
public:
    // `picture` is the picture's corner on the surface and its size; w8 and h8 are its sides in whole blocks.
    // `planes` lists the planes in order. The surface holds a pixel and outlives this object. Raises error 7
    // when there is no memory for the buffer.
    SurfacePlanes(const Bitmap& surface, const PixelArea& picture, int w8, int h8,
                  std::vector<PlaneSize> planes);

    // The next plane; the view is good until the call after.
    PlaneView Next();

private:
    bool IsInSurfaceScale(const PlaneSize& plane) const;
    bool IsSeenInPlace(const PlaneSize& plane) const;
    PlaneView Fetch(const PlaneSize& plane);
    void Draw(const PixelArea& from, const PlaneSize& plane);
    void SpreadEdges(const PlaneSize& plane);
    PlaneView ViewOf(const Bitmap& bitmap, int x, int y) const;

    const Bitmap& surface_;
    PixelArea picture_;
    int w8_;
    int h8_;
    std::vector<PlaneSize> planes_;
    std::size_t next_ = 0;
    bool someEdgeIsSpread_ = false;
    Bitmap buffer_;
    PlaneView current_;
};

} // namespace mirelle::jpeg
