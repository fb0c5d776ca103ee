#include "forms/AlphaBlend.h"

#include "forms/FunctionVersions.h"
#include "forms/Stretch.h"

#include <algorithm>

namespace mirelle {
namespace {

std::span<std::uint8_t> BytesOf(std::span<Pixel> pixels) {
    return {reinterpret_cast<std::uint8_t*>(pixels.data()), pixels.size_bytes()};
}
std::span<const std::uint8_t> BytesOf(std::span<const Pixel> pixels) {
    return {reinterpret_cast<const std::uint8_t*>(pixels.data()), pixels.size_bytes()};
}

// Two areas of one size, cut so that both lie inside their surfaces.
void BlendSameSize(Bitmap& destination, PixelArea to, const Bitmap& source, PixelArea from,
                   std::uint8_t alpha) {
    const int skipX = std::max({0, -to.x, -from.x});
    const int skipY = std::max({0, -to.y, -from.y});
    const int width = std::min({to.width, destination.Width() - to.x, source.Width() - from.x}) - skipX;
    const int height = std::min({to.height, destination.Height() - to.y, source.Height() - from.y}) - skipY;
    if (width <= 0) return;
    for (int y = 0; y < height; ++y) {
        const auto columns = static_cast<std::size_t>(width);
        BlendRow(
            BytesOf(
                destination.Row(to.y + skipY + y).subspan(static_cast<std::size_t>(to.x + skipX), columns)),
            BytesOf(
                source.Row(from.y + skipY + y).subspan(static_cast<std::size_t>(from.x + skipX), columns)),
            alpha);
    }
}

// How many of `length` destination pixels, counted from the first, have some of the source under them when
// `extent` of the `available` source pixels from `begin` on are stretched over them; and how many ahead of
// them have none.
struct Covered {
    int skip = 0;
    int count = 0;
};
Covered CoveredBy(int length, int begin, int extent, int available) {
    // Destination pixel i has the source from begin + i * extent / length to begin + (i + 1) * extent /
    // length.
    const auto reachesIn = [&](int i) {
        return std::int64_t{begin} * length + std::int64_t{i + 1} * extent > 0;
    };
    const auto startsIn = [&](int i) {
        return std::int64_t{begin} * length + std::int64_t{i} * extent < std::int64_t{available} * length;
    };
    Covered covered;
    while (covered.skip < length && !reachesIn(covered.skip))
        ++covered.skip;
    int end = length;
    while (end > covered.skip && !startsIn(end - 1))
        --end;
    covered.count = end - covered.skip;
    return covered;
}

void BlendStretched(Bitmap& destination, PixelArea to, const Bitmap& source, PixelArea from,
                    std::uint8_t alpha) {
    const Covered across = CoveredBy(to.width, from.x, from.width, source.Width());
    const Covered down = CoveredBy(to.height, from.y, from.height, source.Height());
    // Only what comes to lie on the destination is stretched.
    const int left = std::max(across.skip, -to.x);
    const int top = std::max(down.skip, -to.y);
    const int right = std::min(across.skip + across.count, destination.Width() - to.x);
    const int bottom = std::min(down.skip + down.count, destination.Height() - to.y);
    if (right <= left || bottom <= top) return;
    Bitmap stretched(right - left, bottom - top);
    StretchHalftone(source, from, stretched, {-left, -top, to.width, to.height});
    BlendSameSize(destination, {to.x + left, to.y + top, right - left, bottom - top}, stretched,
                  {0, 0, right - left, bottom - top}, alpha);
}

} // namespace

void BlendRow(std::span<std::uint8_t> destination, std::span<const std::uint8_t> source, std::uint8_t alpha) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        const std::size_t count = std::min(destination.size(), source.size());
        std::uint8_t* to = destination.data();
        const std::uint8_t* from = source.data();
        for (std::size_t i = 0; i < count; ++i)
            to[i] = Blended(from[i], to[i], alpha);
    });
}

void AlphaBlend(Bitmap& destination, PixelArea to, const Bitmap& source, PixelArea from, int alpha) {
    if (to.IsEmpty() || from.IsEmpty() || source.IsEmpty() || alpha < 0) return;
    const auto constantAlpha = static_cast<std::uint8_t>(std::min(alpha, 255));
    if (to.width == from.width && to.height == from.height) {
        BlendSameSize(destination, to, source, from, constantAlpha);
    } else {
        BlendStretched(destination, to, source, from, constantAlpha);
    }
}

} // namespace mirelle
