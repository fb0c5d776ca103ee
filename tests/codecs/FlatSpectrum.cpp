#include "tests/codecs/FlatSpectrum.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <random>

namespace mirelle::test {
namespace {

using Block = std::array<double, 64>;

Block InverseTransform(const Block& coefficients) {
    Block pixels{};
    for (int n = 0; n < 64; ++n) {
        for (int k = 1; k < 64; ++k) {
            const int u = k % 8;
            const int v = k / 8;
            pixels[static_cast<std::size_t>(n)] += 0.25 * (u == 0 ? std::sqrt(0.5) : 1) *
                                                   (v == 0 ? std::sqrt(0.5) : 1) *
                                                   coefficients[static_cast<std::size_t>(k)] *
                                                   std::cos((2 * (n % 8) + 1) * u * std::numbers::pi / 16) *
                                                   std::cos((2 * (n / 8) + 1) * v * std::numbers::pi / 16);
        }
    }
    return pixels;
}

double Peak(const Block& pixels) {
    double peak = 0;
    for (const double pixel : pixels)
        peak = std::max(peak, std::fabs(pixel));
    return peak;
}

// Signs that keep the pixels' peak low, found by turning one after the other round.
Block FlatSigns() {
    std::mt19937 random(1);
    Block signs{};
    for (double& sign : signs)
        sign = random() % 2 == 0 ? 1 : -1;
    double peak = Peak(InverseTransform(signs));
    for (int round = 0; round < 2000; ++round) {
        double& sign = signs[1 + random() % 63];
        sign = -sign;
        const double now = Peak(InverseTransform(signs));
        if (now <= peak) {
            peak = now;
        } else {
            sign = -sign;
        }
    }
    return signs;
}

} // namespace

Bitmap FlatSpectrumBitmap(int across, int down, int amplitude) {
    static const Block unit = InverseTransform(FlatSigns());
    Bitmap bitmap(8 * across, 8 * down);
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (int x = 0; x < bitmap.Width(); ++x) {
            const double value = 128 + amplitude * unit[static_cast<std::size_t>(x % 8 + y % 8 * 8)];
            const auto grey = static_cast<std::uint8_t>(std::lround(std::fmin(255, std::fmax(0, value))));
            bitmap.At(x, y) = {grey, grey, grey, 0};
        }
    }
    return bitmap;
}

} // namespace mirelle::test
