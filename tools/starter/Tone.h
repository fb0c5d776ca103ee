// Colours in floating point, and the few curves that drawings are made of.
//
// Everything here is plain arithmetic of doubles, with a sine of its own: the same drawing gives the same
// bytes with every compiler and every mathematics library.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace mirelle::starter {

// Red, green and blue, 0 to 1 each; what leaves that range is limited when it becomes a pixel.
struct Tone {
    double red = 0;
    double green = 0;
    double blue = 0;
};

// From 0xRRGGBB.
constexpr Tone Hex(unsigned color) {
    return {static_cast<double>(color >> 16 & 255U) / 255, static_cast<double>(color >> 8 & 255U) / 255,
            static_cast<double>(color & 255U) / 255};
}
constexpr Tone operator+(Tone a, Tone b) {
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}
constexpr Tone operator-(Tone a, Tone b) {
    return {a.red - b.red, a.green - b.green, a.blue - b.blue};
}
constexpr Tone operator*(Tone a, double factor) {
    return {a.red * factor, a.green * factor, a.blue * factor};
}
constexpr Tone Grey(double level) {
    return {level, level, level};
}
constexpr double Mix(double a, double b, double part) {
    return a + (b - a) * part;
}
constexpr Tone Mix(Tone a, Tone b, double part) {
    return a + (b - a) * part;
}

// 0 up to `from`, 1 beyond `to`, a soft rise between.
constexpr double Rise(double from, double to, double value) {
    const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

// The fraction of a number, 0 up to 1.
inline double Fraction(double value) {
    return value - std::floor(value);
}

// A wave of period 1 between -1 and 1 that begins at 0 and rises: the sine of a full turn, to within 0.001.
inline double Wave(double turns) {
    const double t = Fraction(turns) * 2 - 1;
    const double parabola = -4 * t * (1 - std::abs(t));
    return 0.225 * (parabola * std::abs(parabola) - parabola) + parabola;
}

// A colour along a ramp of equally spaced ones; what is below 0 or above 1 has the colour of the end.
template <std::size_t Count>
Tone Ramp(const std::array<Tone, Count>& colors, double place) {
    const double scaled = std::clamp(place, 0.0, 1.0) * (Count - 1);
    const auto first = std::min(static_cast<std::size_t>(scaled), Count - 2);
    return Mix(colors[first], colors[first + 1], scaled - static_cast<double>(first));
}

} // namespace mirelle::starter
