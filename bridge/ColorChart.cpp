#include "bridge/ColorChart.h"

#include <algorithm>
#include <cmath>

namespace mirelle {
namespace {

constexpr int kGreyRows = 16;
constexpr int kHueRows = kColorChartHeight - kGreyRows;

std::uint8_t Byte(double unit) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(unit, 0.0, 1.0) * 255.0));
}

// A colour of full saturation at lightness one half, its channels from 0 to 1.
struct PureColor {
    double blue, green, red;
};

// Hue and lightness run from 0 to 1.
PureColor ColorOfHue(double hue) {
    const auto channel = [&](double offset) {
        const double place = std::fmod(hue + offset, 1.0) * 6.0;
        return std::clamp(std::abs(place - 3.0) - 1.0, 0.0, 1.0);
    };
    return {channel(1.0 / 3.0), channel(2.0 / 3.0), channel(0)};
}

Pixel AtLightness(const PureColor& color, double lightness) {
    const auto channel = [&](double pure) {
        return Byte(lightness < 0.5 ? pure * 2 * lightness : pure + (1 - pure) * (2 * lightness - 1));
    };
    return {channel(color.blue), channel(color.green), channel(color.red), 0};
}

} // namespace

Picture MakeColorChart() {
    Bitmap chart(kColorChartWidth, kColorChartHeight);
    for (int x = 0; x < kColorChartWidth; ++x) {
        const double across = static_cast<double>(x) / (kColorChartWidth - 1);
        const PureColor color = ColorOfHue(static_cast<double>(x) / kColorChartWidth);
        for (int y = 0; y < kHueRows; ++y) {
            const double down = static_cast<double>(y) / (kHueRows - 1);
            chart.At(x, y) = AtLightness(color, 0.96 - 0.9 * down);
        }
        const std::uint8_t grey = Byte(across);
        for (int y = kHueRows; y < kColorChartHeight; ++y)
            chart.At(x, y) = {grey, grey, grey, 0};
    }
    return Picture(std::move(chart));
}

} // namespace mirelle
