#include "tools/starter/Effects.h"
#include "tools/starter/Materials.h"
#include "tools/starter/Noise.h"

namespace mirelle::starter {

// Small glazed tiles with sunken joints, each of a shade of its own.
Tile GlazedMosaic() {
    constexpr int kTiles = 16;
    constexpr std::array kGlazes = {Hex(0x0B4F6C), Hex(0x01A7C2), Hex(0x7FD1AE), Hex(0xF4D35E),
                                    Hex(0xEE964B), Hex(0xF95738), Hex(0x7D2E68)};
    Field height;
    Tile mosaic;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double u = (x + 0.5) / kSide;
            const double v = (y + 0.5) / kSide;
            const auto column = static_cast<std::uint32_t>(u * kTiles);
            const auto row = static_cast<std::uint32_t>(v * kTiles);
            const double dx = std::abs(Fraction(u * kTiles) - 0.5);
            const double dy = std::abs(Fraction(v * kTiles) - 0.5);
            const double edge = std::max(dx, dy) + 0.010 * Hills(u, v, 64, 64, 61);
            const double inside = 1 - Rise(0.40, 0.46, edge);
            const double middleU = (column + 0.5) / kTiles;
            const double middleV = (row + 0.5) / kTiles;
            const double mood = 0.5 + 0.65 * Rough(middleU, middleV, {2, 2, 2}, 62);
            const double pick = 0.72 * mood + 0.30 * UnitLot(column, row, 63);
            const double shade = 0.88 + 0.22 * UnitLot(column, row, 64) + 0.05 * Rough(u, v, {24, 24, 3}, 65);
            const Tone joint = Hex(0xCFC8BC) * (0.92 + 0.10 * Rough(u, v, {48, 48, 3}, 66));
            mosaic.At(x, y) = Mix(joint, Ramp(kGlazes, pick) * shade, inside);
            height.At(x, y) = 2.6 * inside + 0.9 * inside * Hills(u, v, 20, 20, 67);
        }
    }
    return Lit(mosaic, height, 0.75, 0.8);
}

// Bands of many widths, woven: bright threads over a dark warp.
Tile SerapeStripes() {
    constexpr int kThreads = 128;
    constexpr std::array kBands = {0x8B1E3F, 0x8B1E3F, 0xD64550, 0xF4A259, 0xF4E285, 0xF4A259,
                                   0xD64550, 0x8B1E3F, 0x2B2D42, 0x2B2D42, 0x5B8E7D, 0xBC4B51,
                                   0x5B8E7D, 0x2B2D42, 0x1B998B, 0x8CB369, 0xF4E285, 0x8CB369,
                                   0x1B998B, 0x2B2D42, 0xBC4B51, 0xF4A259, 0xBC4B51, 0x2B2D42};
    const Tile cloth = Drawn<Tone>([&](double u, double v) {
        const auto thread = static_cast<std::uint32_t>(u * kThreads);
        const auto band = static_cast<std::size_t>(thread * kBands.size() / kThreads);
        const double across = Fraction(u * kThreads) - 0.5;
        const double down = Fraction(v * kThreads + (thread % 2 != 0 ? 0.5 : 0.0)) - 0.5;
        const double round = 1 - 1.7 * across * across - 1.5 * down * down;
        const double yarn = 0.93 + 0.16 * UnitLot(thread, static_cast<std::uint32_t>(v * kThreads), 71) +
                            0.05 * Hills(u, v, 64, 8, 72);
        const unsigned color = static_cast<unsigned>(kBands[band]);
        return Hex(color) * (round * yarn);
    });
    return WithKernel(cloth, &KernelSet::FXBlur);
}

} // namespace mirelle::starter
