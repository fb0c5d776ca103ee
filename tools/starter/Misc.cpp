#include "tools/starter/Effects.h"
#include "tools/starter/Materials.h"
#include "tools/starter/Noise.h"

namespace mirelle::starter {

// Coarse yarn, over and under.
Tile Burlap() {
    constexpr int kYarns = 40; // even, so that over and under take turns across the edge too
    Field height;
    Tile sacking;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double straightU = (x + 0.5) / kSide;
            const double straightV = (y + 0.5) / kSide;
            const double u = straightU + 0.0035 * Rough(straightU, straightV, {6, 6, 3}, 171);
            const double v = straightV + 0.0035 * Rough(straightU, straightV, {6, 6, 3}, 172);
            const auto column = static_cast<std::uint32_t>(Fraction(u) * kYarns);
            const auto row = static_cast<std::uint32_t>(Fraction(v) * kYarns);
            const double dx = Fraction(u * kYarns) - 0.5;
            const double dy = Fraction(v * kYarns) - 0.5;
            const bool warpOnTop = (column + row) % 2 == 0;
            const double widthOfWarp = 0.36 + 0.10 * UnitLot(column, 0, 173);
            const double widthOfWeft = 0.36 + 0.10 * UnitLot(row, 1, 173);
            const double warp = 1 - dx * dx / (widthOfWarp * widthOfWarp);
            const double weft = 1 - dy * dy / (widthOfWeft * widthOfWeft);
            const double warpHeight =
                warp > 0 ? std::sqrt(warp) + (warpOnTop ? 0.7 : -0.7) * (1 - 2.6 * dy * dy) : -1;
            const double weftHeight =
                weft > 0 ? std::sqrt(weft) - (warpOnTop ? 0.7 : -0.7) * (1 - 2.6 * dx * dx) : -1;
            const bool warpSeen = warpHeight > weftHeight;
            const double top = std::max(std::max(warpHeight, weftHeight), -0.8);
            const double fibres = warpSeen ? Hills(straightU, straightV, 230, 50, 174)
                                           : Hills(straightU, straightV, 50, 230, 175);
            const double yarn = warpSeen ? UnitLot(column, 2, 173) : UnitLot(row, 3, 173);
            const Tone jute = Mix(Hex(0xB08D57), Hex(0xD2B684), yarn) * (0.98 + 0.22 * fibres);
            sacking.At(x, y) = jute * Mix(0.28, 1.0, Rise(-0.8, 0.9, top));
            height.At(x, y) = 2.6 * top + 0.5 * fibres;
        }
    }
    return Lit(sacking, height, 0.6);
}

// Chips of stone in pale cement, ground flat: two sizes, the larger ones on top.
Tile Terrazzo() {
    constexpr std::array kStones = {Hex(0x35495E), Hex(0xC46B4D), Hex(0xE0B36A), Hex(0x5E7F6B),
                                    Hex(0x2D2A2E), Hex(0xA9B7BE), Hex(0xD9C7B0)};
    const auto chips = [&](Tone ground, double u, double v, int count, double share, std::uint32_t seed) {
        const double bentU = u + 0.006 * Rough(u, v, {12, 12, 3}, seed);
        const double bentV = v + 0.006 * Rough(u, v, {12, 12, 3}, seed + 1);
        const Cell cell = CellAt(bentU, bentV, count, count, 1.0, seed + 2);
        if (UnitLot(cell.lot, 1, seed) > share) return ground;
        const double stone = Rise(0.10, 0.14, cell.border + 0.10 * UnitLot(cell.lot, 2, seed));
        const auto pick = static_cast<std::size_t>(UnitLot(cell.lot, 3, seed) * kStones.size());
        const double vein = 0.95 + 0.12 * Rough(u, v, {30, 30, 4, 0.6}, seed + 5);
        return Mix(ground, kStones[pick] * vein, stone);
    };
    const Tile floor = Drawn<Tone>([&](double u, double v) {
        const Tone cement = Hex(0xE9E3D8) * (0.98 + 0.05 * Rough(u, v, {20, 20, 4, 0.65}, 181));
        const Tone fine = chips(cement, u, v, 44, 0.45, 182);
        return chips(fine, u, v, 15, 0.50, 192);
    });
    return WithKernel(floor, &KernelSet::FXBlur);
}

} // namespace mirelle::starter
