#include "tools/starter/Effects.h"
#include "tools/starter/Materials.h"
#include "tools/starter/Noise.h"

namespace mirelle::starter {

// Veins of colour that were combed through and through: waves over places that noise has moved twice.
Tile MarbledPaper() {
    constexpr std::array kInks = {Hex(0x12333F), Hex(0x1F6F78), Hex(0xE9E2CF), Hex(0xD9A441),
                                  Hex(0xC4502E), Hex(0xF3EBDD), Hex(0x2C5560), Hex(0x12333F)};
    const Tile veins = Drawn<Tone>([&](double u, double v) {
        const double firstU = u + 0.10 * Rough(u, v, {2, 2, 4}, 11);
        const double firstV = v + 0.10 * Rough(u, v, {2, 2, 4}, 12);
        const double secondU = firstU + 0.06 * Rough(firstU, firstV, {4, 4, 4}, 13);
        const double secondV = firstV + 0.06 * Rough(firstU, firstV, {4, 4, 4}, 14);
        const double place = 5 * secondV + 2 * secondU + 0.5 * Rough(secondU, secondV, {3, 3, 5}, 15);
        return Ramp(kInks, Fraction(place));
    });
    return WithKernel(veins, &KernelSet::FXBlur);
}

// Short strokes of thick paint, dragged to the right by many passes of the blur and raised a little.
Tile BrushDabs() {
    constexpr std::array kPaints = {Hex(0x1C3F6E), Hex(0x2F6DA8), Hex(0x7FB2D6), Hex(0xE8C15A), Hex(0xD98A3D),
                                    Hex(0x6E9A5B), Hex(0x2E5F4A), Hex(0xF1E6C8), Hex(0x9A4E63)};
    const Tile dabs = Drawn<Tone>([&](double u, double v) {
        const Cell cell = CellAt(u + 0.010 * Hills(u, v, 16, 16, 21), v, 14, 40, 1.0, 22);
        const double mood = 0.5 + 0.5 * Rough(u, v, {2, 2, 3}, 23);
        const double pick = 0.62 * mood + 0.42 * UnitLot(cell.lot, 1, 24) - 0.02;
        const double bristles = 0.90 + 0.16 * Hills(u, v, 24, 160, 25);
        return Ramp(kPaints, pick) * (bristles * Mix(0.86, 1.06, UnitLot(cell.lot, 2, 24)));
    });
    const Tile dragged = WithKernel(dabs, &KernelSet::FXBlurMore, {}, 6, 16);
    return WithRelief(dragged, 0.55);
}

} // namespace mirelle::starter
