// Pictures whose blocks have a coefficient of about the same size at every place of the spectrum.
#pragma once

#include "forms/Picture.h"

namespace mirelle::test {

// Grey; `across` by `down` copies of one block of 8 x 8 pixels with coefficients of +-amplitude and no mean.
Bitmap FlatSpectrumBitmap(int across, int down, int amplitude);

} // namespace mirelle::test
