// The bands of a gradient row by row, so that whoever makes the rows can have each drawn while it is at hand.
//
// Neighbouring bands overlap, up to a pixel in some twenty of them. Drawn band by band, the picture would go
// through memory as often. Here each pixel is fetched once and takes all its blends, in the order of the
// bands: the alphas that meet a column (or a row) are listed first, as the chain of that place.
#pragma once

#include "forms/Picture.h"
#include "gradient/BlendChains.h"
#include "gradient/GradientBands.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace mirelle {

class BandRows {
public:
    // Over a destination of that size. Bands that reach from edge to edge across the axis, none of them
    // stretched, can be told by their place alone; nothing where there are others. The source has to outlive
    // the result.
    static std::optional<BandRows> Of(const std::vector<Band>& bands, int width, int height,
                                      const Bitmap& source);

    // Writes row y of the destination over what it was, which may be the same memory. The row is at least as
    // wide as the size told.
    void Draw(int y, std::span<const Pixel> was, std::span<Pixel> row) const;

    using Alphas = std::vector<std::uint8_t>;
    enum class Way { Leave, Copy, Limit, Chain };
    // Columns side by side that are drawn in one way.
    struct Columns {
        Way way = Way::Leave;
        std::size_t begin = 0; // bytes of a row
        std::size_t bytes = 0;
        std::vector<std::uint8_t> limits{}; // for Limit: one for each byte
        std::optional<ChainTable> chains{}; // for Chain
    };

private:
    BandRows(const Bitmap& source, int width, int height) : source_(source), width_(width), height_(height) {}

    static void DrawColumns(const Columns& columns, const BlendRun& run);
    static void DrawRowDown(const Alphas& alphas, const BlendRun& run);

    const Bitmap& source_;
    int width_; // of what destination and source have in common
    int height_;
    std::vector<Columns> across_;
    std::vector<Alphas> down_; // one of the two is empty
};

} // namespace mirelle
