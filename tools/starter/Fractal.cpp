#include "tools/starter/Effects.h"
#include "tools/starter/Materials.h"
#include "tools/starter/Noise.h"

namespace mirelle::starter {
namespace {

// There and back again: 0 at both ends, 1 in the middle.
double Mirrored(double t) {
    return 1 - std::abs(2 * t - 1);
}

} // namespace

// A patch of a Julia set between four mirrors. The colour is how near the path of a point comes to two lines.
Tile JuliaKaleidoscope() {
    constexpr std::array kGlass = {Hex(0x070B1F), Hex(0x1B2A6B), Hex(0x5B2A86),
                                   Hex(0xD1495B), Hex(0xF2A541), Hex(0xFFF3C9)};
    constexpr double kRealPart = -0.7435;
    constexpr double kImaginaryPart = 0.1314;
    constexpr int kSteps = 160;
    return Drawn<Tone>([&](double u, double v) {
        double x = -0.05 + 0.95 * Mirrored(u);
        double y = -0.05 + 0.75 * Mirrored(v);
        double nearCross = 1e9;
        double nearRing = 1e9;
        int step = 0;
        for (; step < kSteps && x * x + y * y < 64; ++step) {
            const double next = x * x - y * y + kRealPart;
            y = 2 * x * y + kImaginaryPart;
            x = next;
            nearCross = std::min(nearCross, std::min(std::abs(x), std::abs(y)));
            nearRing = std::min(nearRing, std::abs(x * x + y * y - 0.25));
        }
        const double filigree = 1 - Rise(0, 0.05, nearCross);
        const double glow = 1 - Rise(0, 0.35, nearRing);
        const double depth = Fraction(step / 48.0);
        return Ramp(kGlass, 0.15 + 0.45 * Mirrored(depth) + 0.45 * filigree * glow) +
               Hex(0x2A6F97) * (0.35 * glow * (1 - filigree));
    });
}

// Crests upon crests, each layer of half the size: threads of light over a dark ground.
Tile ElectricVeil() {
    constexpr std::array kLight = {Hex(0x05060F), Hex(0x101A3C), Hex(0x233A8C),
                                   Hex(0x3F7CCB), Hex(0x8FD0F0), Hex(0xF4FCFF)};
    const Tile veil = Drawn<Tone>([&](double u, double v) {
        const double bentU = u + 0.04 * Rough(u, v, {4, 4, 4}, 31);
        const double bentV = v + 0.04 * Rough(u, v, {4, 4, 4}, 32);
        const double crest = Ridged(bentU, bentV, {5, 5, 7, 0.55}, 33);
        const double haze = 0.5 + 0.5 * Rough(u, v, {3, 3, 4}, 34);
        return Ramp(kLight, Rise(0.15, 1.05, crest)) + Hex(0x7A1F8A) * (0.55 * haze * Rise(0.1, 0.7, crest));
    });
    return WithContrast(veil, 12);
}

} // namespace mirelle::starter
