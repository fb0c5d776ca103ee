// The bands of the image gradient: 256 steps of rising alpha along one axis, then the solid rest.
#pragma once

#include "forms/Picture.h"
#include "forms/PixelArea.h"

#include <vector>

namespace mirelle {

// The values of the direction list.
constexpr int kHorizontal = 0;
constexpr int kVertical = 1;

struct Band {
    PixelArea to;   // on the destination
    PixelArea from; // of the source
    int alpha = 0;  // 0 to 255

    friend bool operator==(const Band&, const Band&) = default;
};

struct BandSizes {
    double destinationWidth = 0;
    double destinationHeight = 0;
    double sourceWidth = 0;
    double sourceHeight = 0;
};

// The bands in the order of drawing, the solid rest last; those that hold no pixel among them. A direction
// that is neither of the two has none. Across, the bands are as wide as a 256th of the destination; down,
// they are one pixel higher than a 256th.
std::vector<Band> BandsOf(const BandSizes& sizes, double gradStart, double gradEnd, int direction);

// Draws bands over what is on the destination, one after the other. The plain form draws each by AlphaBlend;
// the other goes through the destination once, where no band is stretched, and gives the same bytes (see
// BandRows.h).
void DrawBands(Bitmap& destination, const Bitmap& source, const std::vector<Band>& bands);
void DrawBandsPlain(Bitmap& destination, const Bitmap& source, const std::vector<Band>& bands);

} // namespace mirelle
