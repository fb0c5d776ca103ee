#include "tools/starter/Effects.h"
#include "tools/starter/Materials.h"
#include "tools/starter/Noise.h"

namespace mirelle::starter {

// Cells of a leaf under the lens: pale walls, chloroplasts along them, a nucleus in each.
Tile LeafCells() {
    return Drawn<Tone>([](double u, double v) {
        const double bentU = u + 0.008 * Hills(u, v, 12, 12, 101);
        const double bentV = v + 0.008 * Hills(u, v, 12, 12, 102);
        const Cell cell = CellAt(bentU, bentV, 9, 7, 0.75, 103);
        const double wall = 1 - Rise(0.02, 0.075, cell.border);
        const double sap = 0.55 + 0.45 * Rise(0.0, 0.6, cell.border);
        const Tone plasma =
            Mix(Hex(0x3E8E41), Hex(0x9CCB5A), UnitLot(cell.lot, 1, 104)) * (1.12 - 0.30 * sap);
        const Cell grain = CellAt(bentU, bentV, 54, 42, 0.9, 105);
        const bool kept = UnitLot(grain.lot, 1, 106) < 0.30 + 0.5 * (1 - Rise(0.05, 0.30, cell.border));
        const double chloroplast = kept ? 1 - Rise(0.26, 0.40, grain.nearest) : 0;
        const double fromNucleus =
            std::sqrt((cell.pointX + 0.08) * (cell.pointX + 0.08) + cell.pointY * cell.pointY);
        const double nucleus = 1 - Rise(0.11, 0.15, fromNucleus);
        Tone tone = Mix(plasma, Hex(0x1F5F2C) * (0.9 + 0.5 * grain.pointY), 0.8 * chloroplast);
        tone = Mix(tone, Mix(Hex(0x7A5C8E), Hex(0xB79AC6), Rise(0.10, 0.0, fromNucleus)), 0.9 * nucleus);
        return Mix(tone, Hex(0xE4EDB9), wall) * (0.97 + 0.06 * Rough(u, v, {8, 8, 4}, 107));
    });
}

// Patches with ragged borders on short fur.
Tile GiraffeHide() {
    return Drawn<Tone>([](double u, double v) {
        const double bentU = u + 0.014 * Rough(u, v, {8, 8, 4, 0.6}, 111);
        const double bentV = v + 0.014 * Rough(u, v, {8, 8, 4, 0.6}, 112);
        const Cell cell = CellAt(bentU, bentV, 6, 6, 0.8, 113);
        const double patch = Rise(0.055, 0.095, cell.border);
        const double hair = 0.16 * Hills(u + 0.01 * Hills(u, v, 8, 8, 114), v, 170, 34, 115) +
                            0.08 * Hills(u, v, 90, 20, 116);
        const double heart = Rise(0.08, 0.45, cell.border);
        const Tone brown =
            Mix(Hex(0xA0622D), Hex(0x6E3B17), heart) * (0.86 + 0.28 * UnitLot(cell.lot, 1, 117));
        return Mix(Hex(0xE9D3A6), brown, patch) * (1 + hair);
    });
}

} // namespace mirelle::starter
