// The bands of a gradient row by row, so that whoever makes the rows can have each drawn while it is at hand.
//
// Neighbouring bands overlap, up to a pixel in some twenty of them. Drawn band by band, the picture would go
// through memory as often. Here each pixel is fetched once and takes all its blends, in the order of the
// bands: the alphas that meet a column (or a row) are listed first, as the chain of that place. All is
// planned before the first row is drawn; drawing takes no memory and can't fail.
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

private:
    // Bytes of a row side by side, and the way in which all of them are drawn.
    struct Stretch {
        enum class Way { Leave, Copy, Limit, Chain };

        void Draw(const BlendRun& run) const;

        std::size_t begin = 0;
        std::size_t bytes = 0;
        Way way = Way::Leave;
        std::vector<std::uint8_t> limits{}; // for Limit: one for each byte, or one for all
        BlendChains chains{};               // for Chain
    };

    static Stretch::Way WayOf(const std::optional<std::uint8_t>& limit);
    static std::vector<Stretch> PlanColumns(std::span<const Alphas> chains);
    static std::vector<Stretch> PlanRows(std::span<const Alphas> chains, std::size_t rowBytes);

    BandRows(const Bitmap& source, int width, int height) : source_(source), width_(width), height_(height) {}

    const Bitmap& source_;
    int width_; // of what destination and source have in common
    int height_;
    std::vector<Stretch> across_; // of every row
    std::vector<Stretch> down_;   // a row each; one of the two is empty
};

} // namespace mirelle
