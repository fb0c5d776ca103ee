#include "tools/starter/Effects.h"
#include "tools/starter/Materials.h"
#include "tools/starter/Noise.h"

namespace mirelle::starter {

// Short scratches, begun anywhere in each row, drawn out into hair lines by the blur, which carries every
// pixel to the right.
Tile BrushedSteel() {
    constexpr std::uint32_t kScratch = 16; // pixels
    const Tile scratches = Drawn<Tone>([](double u, double v) {
        const auto x = static_cast<std::uint32_t>(u * kSide);
        const auto y = static_cast<std::uint32_t>(v * kSide);
        const std::uint32_t place = (x + Lot(y, 0, 41)) % kSide;
        return Grey(Mix(UnitLot(place / kScratch, y, 41), 0.5, 0.35));
    });
    const Tile hair = WithKernel(scratches, &KernelSet::FXBlurMore, {}, 10, 24);
    Tile steel;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double u = (x + 0.5) / kSide;
            const double v = (y + 0.5) / kSide;
            const double sheen =
                0.05 * Wave(2 * v + 0.1 * Hills(u, v, 3, 3, 42)) + 0.03 * Hills(u, v, 2, 6, 43);
            const double line = (hair.At(x, y).red - 0.5) + 0.06 * Hills(u, v, 4, 128, 44);
            steel.At(x, y) = Hex(0xA9AFB5) * (1 + sheen + 0.30 * line);
        }
    }
    return steel;
}

// Lens-shaped bumps on a square grid, leaning one way and the other in turn, over a scuffed plate.
Tile TreadPlate() {
    constexpr int kBumps = 8; // across and down; even, so that the leanings take turns over the edge too
    Field height;
    Field worn;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double u = (x + 0.5) / kSide;
            const double v = (y + 0.5) / kSide;
            const double dx = Fraction(u * kBumps) - 0.5;
            const double dy = Fraction(v * kBumps) - 0.5;
            const bool leansLeft = (static_cast<int>(u * kBumps) + static_cast<int>(v * kBumps)) % 2 != 0;
            const double along = (leansLeft ? dx + dy : dx - dy) * 0.70710678;
            const double athwart = (leansLeft ? dx - dy : dx + dy) * 0.70710678;
            const double lens = 1 - along * along / 0.185 - std::abs(athwart) / 0.115;
            const double bump = Rise(0, 0.45, lens);
            height.At(x, y) = 5.5 * bump + 0.5 * Rough(u, v, {16, 16, 4, 0.6}, 51);
            worn.At(x, y) = Rise(0.5, 1, bump);
        }
    }
    const Tile plate = Drawn<Tone>([&](double u, double v) {
        const double bright = worn.At(static_cast<int>(u * kSide), static_cast<int>(v * kSide));
        const double scuffs =
            0.06 * Rough(u, v, {6, 6, 5, 0.6}, 52) + 0.10 * Rise(0.35, 0.6, Hills(u + v, v, 6, 90, 53));
        return Mix(Hex(0x6F757B), Hex(0xB9BEC3), 0.75 * bright) * (1 + scuffs);
    });
    return Lit(plate, height, 0.75, 0.35);
}

} // namespace mirelle::starter
