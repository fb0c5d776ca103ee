#include "forms/AlphaBlend.h"
#include "gradient/BandRows.h"
#include "gradient/GradientBands.h"

namespace mirelle {

void DrawBandsPlain(Bitmap& destination, const Bitmap& source, const std::vector<Band>& bands) {
    for (const Band& band : bands)
        AlphaBlend(destination, band.to, source, band.from, band.alpha);
}

void DrawBands(Bitmap& destination, const Bitmap& source, const std::vector<Band>& bands) {
    const auto rows = BandRows::Of(bands, destination.Width(), destination.Height(), source);
    if (!rows) return DrawBandsPlain(destination, source, bands);
    for (int y = 0; y < destination.Height(); ++y)
        rows->Draw(y, destination.Row(y), destination.Row(y));
}

} // namespace mirelle
