#include "codecs/jpeg/Quantiser.h"

#include "codecs/jpeg/Errors.h"
#include "codecs/jpeg/Tables.h"

#include <algorithm>

namespace mirelle::jpeg {
namespace {

int LargestQk(int precision) {
    return precision == 12 ? 65535 : 255;
}

} // namespace

int ScaleOfQuality(int quality) {
    if (quality < 50) return 5000 / quality;
    return quality < 100 ? 200 - 2 * quality : 0;
}

void ScaleBaseTable(QuantTable& table, const std::array<std::uint8_t, 64>& base, int scale, int precision) {
    for (std::size_t i = 0; i < base.size(); ++i) {
        const int value = std::clamp((base[i] * scale + 50) / 100, 1, LargestQk(precision));
        table.Qk[i] = static_cast<std::int16_t>(value);
    }
}

void ScaleQuantTable(QuantTable& table, int precision) {
    for (std::size_t n = 0; n < FDCTScale.size(); ++n) {
        const std::size_t z = ZigZag[n];
        const int divisor = table.Qk[z];
        if (divisor < 1 || divisor > LargestQk(precision)) RaiseCodecFailure(kBadQuantizationTable);
        table.Fdtbl[z] = (FDCTScale[n] + divisor / 2) / divisor;
    }
}

} // namespace mirelle::jpeg
