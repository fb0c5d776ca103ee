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

// A colour of full saturation; hue and lightness run from 0 to 1.
Pixel PureColor(double hue, double lightness) {
    const auto channel = [&](double offset) {
        const double place = std::fmod(hue + offset, 1.0) * 6.0;
        const double pure = std::clamp(std::abs(place - 3.0) - 1.0, 0.0, 1.0);
        return Byte(lightness < 0.5 ? pure * 2 * lightness : pure + (1 - pure) * (2 * lightness - 1));
    };
    return {channel(1.0 / 3.0), channel(2.0 / 3.0), channel(0), 0};
}

} // namespace

Picture MakeColorChart() {
    Bitmap chart(kColorChartWidth, kColorChartHeight);
    for (int x = 0; x < kColorChartWidth; ++x) {
        const double across = static_cast<double>(x) / (kColorChartWidth - 1);
        for (int y = 0; y < kHueRows; ++y) {
            const double down = static_cast<double>(y) / (kHueRows - 1);
            chart.At(x, y) = PureColor(static_cast<double>(x) / kColorChartWidth, 0.96 - 0.9 * down);
        }
        const std::uint8_t grey = Byte(across);
        for (int y = kHueRows; y < kColorChartHeight; ++y)
            chart.At(x, y) = {grey, grey, grey, 0};
    }
    return Picture(std::move(chart));
}

} // namespace mirelle
