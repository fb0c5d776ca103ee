#include "tools/starter/Effects.h"
#include "tools/starter/Materials.h"
#include "tools/starter/Noise.h"

namespace mirelle::starter {

// Two skies of thin cloud, the one fading into the other and back.
Tile DawnFade() {
    const Tile day = Drawn<Tone>([](double u, double v) {
        const double cloud = Rise(-0.1, 0.9, Rough(u, v, {3, 6, 6}, 81));
        return Mix(Hex(0xF6B26B), Hex(0xFFF0D0), cloud);
    });
    const Tile night = Drawn<Tone>([](double u, double v) {
        const double cloud = Rise(-0.1, 0.9, Rough(u, v, {3, 6, 6}, 82));
        return Mix(Hex(0x2B2A5B), Hex(0x8A4F7D), cloud);
    });
    return FadedThereAndBack(day, night);
}

// A plain ramp of two colours with caustics of light upon it.
Tile DeepWater() {
    const Tile ramp = GradientThereAndBack({Hex(0x0FB5BA), Hex(0x0A2463)}, false);
    Tile water;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double u = (x + 0.5) / kSide;
            const double v = (y + 0.5) / kSide;
            const double bentU = u + 0.03 * Rough(u, v, {4, 4, 3}, 91);
            const double bentV = v + 0.03 * Rough(u, v, {4, 4, 3}, 92);
            const double web = 1 - Rise(0.0, 0.16, CellAt(bentU, bentV, 7, 7, 0.9, 93).border);
            water.At(x, y) = ramp.At(x, y) + Hex(0x8FE3E0) * (0.30 * web * web);
        }
    }
    return water;
}

} // namespace mirelle::starter
