#include "tools/starter/Effects.h"
#include "tools/starter/Materials.h"
#include "tools/starter/Noise.h"

namespace mirelle::starter {
namespace {

Tone Concrete(double u, double v) {
    const double stains = Rough(u, v, {3, 3, 6, 0.6}, 201);
    const double pores = Rise(0.42, 0.62, Hills(u, v, 60, 60, 202));
    return Hex(0x9B9A95) * (0.95 + 0.14 * stains - 0.18 * pores + 0.05 * Hills(u, v, 150, 150, 203));
}

// Lowers the distances in a field to those from a point, in pixels, as far as they reach.
void ReachFrom(Field& distance, double x, double y, double reach) {
    const int left = static_cast<int>(std::floor(x - reach));
    const int top = static_cast<int>(std::floor(y - reach));
    const int span = static_cast<int>(2 * reach) + 2;
    for (int row = top; row <= top + span; ++row) {
        for (int column = left; column <= left + span; ++column) {
            const double dx = column + 0.5 - x;
            const double dy = row + 0.5 - y;
            double& least = distance.At(column, row);
            least = std::min(least, std::sqrt(dx * dx + dy * dy));
        }
    }
}

constexpr double kFarAway = 1e6;

// A closed curve through loops of different speeds, as an arm draws them.
struct Loops {
    double x, y; // the middle, in pixels
    double width, height;
    int turns, nods;    // how often the curve goes round and up and down
    double lean;        // where on its way it begins, in turns
    double stroke;      // half the width of the line, in pixels
    Tone first, second; // colours from top to bottom
};

constexpr int kPointsOfACurve = 1400;
constexpr double kOutline = 6;
constexpr double kMist = 34;

Field DistanceTo(const Loops& loops, double shift, double reach) {
    Field distance(kFarAway);
    for (int point = 0; point < kPointsOfACurve; ++point) {
        const double t = static_cast<double>(point) / kPointsOfACurve;
        const double wobble = 10 * Wave(5 * t);
        ReachFrom(distance, loops.x + loops.width * Wave(loops.turns * t + loops.lean) - shift,
                  loops.y + loops.height * Wave(loops.nods * t) + wobble - shift, reach);
    }
    return distance;
}

void SprayLoop(Tile& wall, const Loops& loops) {
    const Field distance = DistanceTo(loops, 0, loops.stroke + kOutline + kMist);
    const Field lightDistance = DistanceTo(loops, loops.stroke * 0.36, loops.stroke * 0.3);
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double away = distance.At(x, y);
            if (away >= kFarAway) continue;
            const double u = (x + 0.5) / kSide;
            const double v = (y + 0.5) / kSide;
            const double speckled = away + 7 * Hills(u, v, 150, 150, 211);
            const double mist = 1 - Rise(loops.stroke, loops.stroke + kOutline + kMist, speckled);
            const double outline = 1 - Rise(loops.stroke + kOutline - 1.5, loops.stroke + kOutline, away);
            const double fill = 1 - Rise(loops.stroke - 1.5, loops.stroke, away);
            const double broken = Rise(-0.25, 0.05, Hills(u, v, 9, 9, 214));
            const double light =
                (1 - Rise(loops.stroke * 0.07, loops.stroke * 0.14, lightDistance.At(x, y))) * broken;
            const double fade = 0.5 + 0.5 * Wave(v - loops.y / kSide + 0.25 + 0.1 * Hills(u, v, 4, 4, 212));
            Tone tone = Mix(wall.At(x, y), loops.second, 0.75 * mist);
            tone = Mix(tone, Hex(0x15131A), 0.96 * outline);
            tone = Mix(tone, Mix(loops.first, loops.second, fade), 0.97 * fill);
            tone = Mix(tone, Hex(0xFFFFFF), 0.85 * light * fill);
            wall.At(x, y) = tone * (0.98 + 0.04 * Hills(u, v, 90, 90, 213));
        }
    }
}

// A thrown blot: a ragged disc, drops around it, and runs below it.
void Throw(Tile& wall, double x, double y, double size, Tone paint, std::uint32_t lot) {
    Field distance(kFarAway);
    ReachFrom(distance, x, y, size * 1.6);
    Field cover;
    for (int row = 0; row < kSide; ++row) {
        for (int column = 0; column < kSide; ++column) {
            const double u = (column + 0.5) / kSide;
            const double v = (row + 0.5) / kSide;
            const double ragged = size * (0.72 + 0.34 * Rough(u, v, {7, 7, 3, 0.55}, lot));
            cover.At(column, row) = 1 - Rise(ragged - 1.5, ragged + 0.5, distance.At(column, row));
        }
    }
    const auto drop = [&](double dropX, double dropY, double radius) {
        const int reach = static_cast<int>(radius) + 2;
        const int middleX = static_cast<int>(std::floor(dropX));
        const int middleY = static_cast<int>(std::floor(dropY));
        for (int row = middleY - reach; row <= middleY + reach; ++row) {
            for (int column = middleX - reach; column <= middleX + reach; ++column) {
                const double dx = column + 0.5 - dropX;
                const double dy = row + 0.5 - dropY;
                double& covered = cover.At(column, row);
                covered = std::max(covered, 1 - Rise(radius - 1, radius + 0.5, std::sqrt(dx * dx + dy * dy)));
            }
        }
    };
    for (std::uint32_t i = 0; i < 26; ++i) {
        const double turn = UnitLot(i, 1, lot);
        const double far = size * (0.9 + 1.3 * UnitLot(i, 2, lot) * UnitLot(i, 3, lot));
        drop(x + far * Wave(turn + 0.25), y + far * Wave(turn),
             1 + size * 0.13 * UnitLot(i, 4, lot) * UnitLot(i, 5, lot));
    }
    for (std::uint32_t i = 0; i < 4; ++i) {
        const double runX = x + size * (UnitLot(i, 6, lot) - 0.5);
        const double length = size * (0.9 + 1.6 * UnitLot(i, 7, lot));
        const double width = 1.6 + 2.2 * UnitLot(i, 8, lot);
        for (double down = 0; down < length; down += 1)
            drop(runX, y + down, down + 4 > length ? width + 1.2 : width);
    }
    for (int row = 0; row < kSide; ++row) {
        for (int column = 0; column < kSide; ++column)
            wall.At(column, row) = Mix(wall.At(column, row), paint, 0.96 * cover.At(column, row));
    }
}

} // namespace

Tile SprayLoops() {
    constexpr std::array kCurves = {
        Loops{128, 118, 118, 74, 1, 2, 0.06, 24, Hex(0x39D6C5), Hex(0x1656B8)},
        Loops{390, 176, 106, 92, 2, 1, 0.00, 23, Hex(0xFFD23F), Hex(0xEE4266)},
        Loops{158, 372, 120, 84, 2, 3, 0.20, 19, Hex(0xF9F871), Hex(0x2F9E63)},
        Loops{408, 428, 92, 66, 1, 1, 0.17, 25, Hex(0xFF8FD1), Hex(0x7A28CB)},
    };
    Tile wall = Drawn<Tone>([](double u, double v) { return Concrete(u, v); });
    for (const Loops& loops : kCurves)
        SprayLoop(wall, loops);
    return wall;
}

Tile PaintSplatter() {
    constexpr std::array kPaints = {Hex(0xF72585), Hex(0x4CC9F0), Hex(0xF9C80E), Hex(0x70E000),
                                    Hex(0xFF6B35), Hex(0x9B5DE5), Hex(0xF1F1F1)};
    Tile wall = Drawn<Tone>([](double u, double v) { return Concrete(u, v) * 0.42; });
    for (std::uint32_t i = 0; i < 14; ++i) {
        Throw(wall, kSide * UnitLot(i, 1, 221), kSide * UnitLot(i, 2, 221), 22 + 34 * UnitLot(i, 3, 221),
              kPaints[i % kPaints.size()], 230 + 10 * i);
    }
    return WithRelief(wall, 0.35);
}

} // namespace mirelle::starter
