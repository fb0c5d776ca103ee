#include "tools/starter/Effects.h"
#include "tools/starter/Materials.h"
#include "tools/starter/Noise.h"

namespace mirelle::starter {

// Warning paint over primer, chipped and scratched.
Tile HazardStripes() {
    constexpr int kStripes = 4;
    Field height;
    Tile paint;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double u = (x + 0.5) / kSide;
            const double v = (y + 0.5) / kSide;
            const double place = Fraction((u + v) * kStripes + 0.012 * Hills(u, v, 24, 24, 151));
            const double yellow = Rise(0.0, 0.02, place) - Rise(0.5, 0.52, place);
            const double dirt = Rough(u, v, {5, 5, 6, 0.6}, 152);
            const double scratch = Rise(0.52, 0.60, Hills(u + 2 * v, v, 5, 70, 153)) +
                                   Rise(0.55, 0.62, Hills(u - v, v, 60, 4, 154));
            const double chips = Rise(0.44, 0.50, Rough(u, v, {10, 10, 5, 0.6}, 155) + 0.15 * dirt);
            const double bare = std::clamp(chips + 0.7 * scratch, 0.0, 1.0);
            const Tone coat = Mix(Hex(0x1D1E20), Hex(0xF0B90B), yellow) * (0.95 + 0.13 * dirt);
            const Tone ground = Hex(0x7A7F83) * (0.9 + 0.3 * Rough(u, v, {20, 20, 4}, 156));
            const Tone rust = Mix(ground, Hex(0x7B3F1D), Rise(-0.1, 0.5, dirt));
            paint.At(x, y) = Mix(coat, rust, bare);
            height.At(x, y) = 1.4 * (1 - bare) + 0.35 * Rough(u, v, {40, 40, 3}, 157);
        }
    }
    return Lit(paint, height, 0.7, 0.1);
}

// Riveted sheets, with rust that runs down from seams and rivets.
Tile RustyPanels() {
    constexpr int kPanels = 2;
    constexpr int kRivets = 16; // along each seam
    Field height;
    Tile sheets;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double u = (x + 0.5) / kSide;
            const double v = (y + 0.5) / kSide;
            const double panelU = Fraction(u * kPanels);
            const double panelV = Fraction(v * kPanels);
            const double fromSeamX = (0.5 - std::abs(panelU - 0.5)) * kSide / kPanels;
            const double fromSeamY = (0.5 - std::abs(panelV - 0.5)) * kSide / kPanels;
            const double fromSeam = std::min(fromSeamX, fromSeamY);
            const double seam = Rise(0.8, 2.4, fromSeam);
            // Rivets stand 13 pixels from the seams, evenly along them.
            const double stepX = (Fraction(u * kRivets) - 0.5) * kSide / kRivets;
            const double stepY = (Fraction(v * kRivets) - 0.5) * kSide / kRivets;
            const double alongTop = std::sqrt(stepX * stepX + (fromSeamY - 16) * (fromSeamY - 16));
            const double alongSide = std::sqrt(stepY * stepY + (fromSeamX - 16) * (fromSeamX - 16));
            const double fromRivet =
                std::min(fromSeamX > 8 ? alongTop : 99.0, fromSeamY > 8 ? alongSide : 99.0);
            const double rivet = std::sqrt(std::clamp(1 - fromRivet * fromRivet / 30, 0.0, 1.0));
            const double grime = Rough(u, v, {4, 4, 6, 0.6}, 161);
            const double runs = Rise(0.0, 0.8, Rough(u, v, {28, 3, 4, 0.6}, 162)) * (1 - 0.75 * panelV);
            const double rust = std::clamp(0.9 * Rise(0.10, 0.65, grime + 0.75 * runs) +
                                               0.55 * (1 - Rise(2, 9, fromSeam)) * Rise(-0.3, 0.5, grime) +
                                               0.5 * (1 - Rise(5.5, 11, fromRivet)),
                                           0.0, 1.0);
            const Tone steel = Mix(Hex(0x66737C), Hex(0x84908F), 0.5 + 0.5 * Rough(u, v, {3, 3, 4}, 163));
            const double flakes = 0.5 + 0.7 * Rough(u, v, {24, 24, 5, 0.65}, 164);
            const Tone oxide = Mix(Hex(0x4E2412), Hex(0xB5622B), flakes);
            sheets.At(x, y) = Mix(steel, oxide, rust) * Mix(0.35, 1.0, seam);
            height.At(x, y) =
                2.4 * seam + 5.5 * rivet + (0.3 + 0.9 * rust) * Rough(u, v, {40, 40, 4, 0.6}, 165);
        }
    }
    return Lit(sheets, height, 0.75, 0.15);
}

} // namespace mirelle::starter
