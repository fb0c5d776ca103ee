#include "codecs/jpeg/SurfacePlanes.h"

#include "codecs/jpeg/Share.h"

#include <algorithm>
#include <utility>

namespace mirelle::jpeg {
namespace {

// The least number of pixels that is worth a thread.
constexpr std::size_t kShortestSlice = 1 << 15;

} // namespace

SurfacePlanes::SurfacePlanes(const Bitmap& surface, const PixelArea& picture, int w8, int h8,
                             std::vector<PlaneSize> planes)
    : surface_(surface), picture_(picture), w8_(w8), h8_(h8), planes_(std::move(planes)) {
    int width = 0;
    int height = 0;
    for (const PlaneSize& plane : planes_) {
        if (IsSeenInPlace(plane)) continue;
        width = std::max(width, plane.xa);
        height = std::max(height, plane.ya);
        someEdgeIsSpread_ = someEdgeIsSpread_ || plane.xi < plane.xa || plane.yi < plane.ya;
    }
    buffer_ = Bitmap(width, height);
}

PlaneView SurfacePlanes::Next() {
    const PlaneSize previous = next_ == 0 ? PlaneSize{} : planes_[next_ - 1];
    const PlaneSize& plane = planes_[next_++];
    // The rounded size is compared with the unrounded one before it.
    if (plane.xa != previous.xi || plane.ya != previous.yi) current_ = Fetch(plane);
    return current_;
}

// A picture of whole blocks is stretched from its own size; one that happens to be as large as the plane is
// copied as it is, although the others are shrunk from whole blocks.
bool SurfacePlanes::IsInSurfaceScale(const PlaneSize& plane) const {
    return (plane.xi == picture_.width && plane.yi == picture_.height) ||
           (plane.xi == w8_ && plane.yi == h8_);
}

bool SurfacePlanes::IsSeenInPlace(const PlaneSize& plane) const {
    return IsInSurfaceScale(plane) && plane.xi == plane.xa && plane.yi == plane.ya;
}

PlaneView SurfacePlanes::Fetch(const PlaneSize& plane) {
    const bool copied = IsInSurfaceScale(plane);
    const PixelArea from = {picture_.x, picture_.y, copied ? plane.xi : w8_, copied ? plane.yi : h8_};
    if (!IsSeenInPlace(plane)) {
        Draw(from, plane);
        SpreadEdges(plane);
        return ViewOf(buffer_, 0, 0);
    }
    // A later plane may spread what this one leaves beside it.
    if (someEdgeIsSpread_) Draw(from, plane);
    return ViewOf(surface_, picture_.x, picture_.y);
}

// In bands of rows, shared out.
void SurfacePlanes::Draw(const PixelArea& from, const PlaneSize& plane) {
    const Slices slices(static_cast<std::size_t>(plane.yi),
                        kShortestSlice / static_cast<std::size_t>(plane.xi) + 1);
    RunShared(slices, [&](std::size_t slice) {
        const auto top = static_cast<int>(slices.Begin(slice));
        const auto bottom = static_cast<int>(slices.End(slice));
        StretchHalftone(surface_, from, buffer_, {0, 0, plane.xi, plane.yi},
                        {0, top, plane.xi, bottom - top});
    });
}

// From one column (row) past the picture on, into the column (row) after that.
void SurfacePlanes::SpreadEdges(const PlaneSize& plane) {
    const auto [xi, yi, xa, ya] = plane;
    if (xi < xa) StretchHalftone(buffer_, {xi, 0, 1, yi}, buffer_, {xi + 1, 0, xa - xi, yi});
    if (yi < ya) StretchHalftone(buffer_, {0, yi, xa, 1}, buffer_, {0, yi + 1, xa, ya - yi});
}

PlaneView SurfacePlanes::ViewOf(const Bitmap& bitmap, int x, int y) const {
    return {reinterpret_cast<const std::uint8_t*>(bitmap.Pixels().data()),
            sizeof(Pixel),
            static_cast<std::size_t>(bitmap.Width()) * sizeof(Pixel),
            bitmap.Width(),
            bitmap.Height(),
            x,
            y};
}

} // namespace mirelle::jpeg
