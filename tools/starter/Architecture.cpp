#include "tools/starter/Effects.h"
#include "tools/starter/Materials.h"
#include "tools/starter/Noise.h"

namespace mirelle::starter {
namespace {

// The streaks of sawn wood along u, for a board that has a lot of its own.
Tone Wood(double u, double v, std::uint32_t board) {
    const double shift = UnitLot(board, 1, 131);
    const double bent = v + shift + 0.02 * Hills(u + shift, v, 4, 4, 132);
    const double rings = 0.5 + 0.5 * Wave(26 * bent + 2.5 * Hills(u + shift, bent, 2, 6, 133));
    const double pores = Rise(0.30, 0.75, Hills(u + shift, v + shift, 24, 220, 134));
    const Tone plain = Mix(Hex(0xC08A52), Hex(0x8F5A2C), UnitLot(board, 2, 131));
    return plain * (0.90 + 0.20 * rings - 0.22 * pores + 0.10 * Hills(u, v + shift, 3, 40, 135));
}

} // namespace

// Running bond: each course half a brick beside the one above it.
Tile BrickWall() {
    constexpr int kAcross = 4;
    constexpr int kCourses = 8;
    constexpr std::array kClays = {Hex(0x6E2F22), Hex(0x8E3F2B), Hex(0xA4513A), Hex(0xB5654A), Hex(0x7C4436)};
    Field height;
    Tile wall;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double u = (x + 0.5) / kSide;
            const double v = (y + 0.5) / kSide;
            const double ragged = 0.9 * Rough(u, v, {24, 24, 3}, 121);
            const auto course = static_cast<std::uint32_t>(v * kCourses);
            const double along = u * kAcross + (course % 2 != 0 ? 0.5 : 0.0);
            const auto brick = static_cast<std::uint32_t>(along) % kAcross;
            // From the brick's edge, in pixels.
            const double fromSide = (0.5 - std::abs(Fraction(along) - 0.5)) * kSide / kAcross;
            const double fromBed = (0.5 - std::abs(Fraction(v * kCourses) - 0.5)) * kSide / kCourses;
            const double inside = Rise(3.0, 6.5, std::min(fromSide, fromBed) + ragged);
            const double grit = Rough(u, v, {32, 32, 4, 0.65}, 122);
            const double fired = UnitLot(brick, course, 123) + 0.18 * Rough(u, v, {6, 6, 3}, 124);
            const double pits = Rise(0.35, 0.60, Hills(u, v, 70, 70, 125));
            const Tone clay = Ramp(kClays, fired) * (0.97 + 0.13 * grit - 0.22 * pits);
            const Tone mortar = Hex(0xB9B1A2) * (0.93 + 0.14 * grit);
            wall.At(x, y) = Mix(mortar, clay, inside);
            height.At(x, y) = 3.6 * inside + 0.8 * grit - 0.9 * pits * inside;
        }
    }
    return Lit(wall, height, 0.8);
}

// Squares of four boards each, laid across and along in turn.
Tile ParquetSquares() {
    constexpr int kSquares = 4;
    constexpr int kBoards = 4;
    Field height;
    Tile floor;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double u = (x + 0.5) / kSide;
            const double v = (y + 0.5) / kSide;
            const auto column = static_cast<std::uint32_t>(u * kSquares);
            const auto row = static_cast<std::uint32_t>(v * kSquares);
            const bool across = (column + row) % 2 == 0;
            const double along = Fraction(across ? u * kSquares : v * kSquares);
            const double athwart = Fraction(across ? v * kSquares : u * kSquares) * kBoards;
            const auto board = Lot(column, row, 136) + static_cast<std::uint32_t>(athwart) * 7919U;
            const double fromEnd = (0.5 - std::abs(along - 0.5)) * kSide / kSquares;
            const double fromSide = (0.5 - std::abs(Fraction(athwart) - 0.5)) * kSide / kSquares / kBoards;
            const double top = Rise(0.3, 1.6, std::min(fromEnd, fromSide));
            const Tone wood = across ? Wood(u, v, board) : Wood(v, u, board);
            floor.At(x, y) = wood * Mix(0.45, 1.0, top);
            height.At(x, y) = 1.2 * top;
        }
    }
    return Lit(floor, height, 0.5, 0.2);
}

// Rounded setts in sand, worn to different heights.
Tile Cobblestones() {
    Field height;
    Tile paving;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double u = (x + 0.5) / kSide;
            const double v = (y + 0.5) / kSide;
            const double bentU = u + 0.004 * Rough(u, v, {16, 16, 3}, 141);
            const double bentV = v + 0.004 * Rough(u, v, {16, 16, 3}, 142);
            const Cell cell = CellAt(bentU, bentV, 8, 10, 0.55, 143);
            const double stone = Rise(0.03, 0.12, cell.border);
            const double dome = std::sqrt(std::clamp((cell.border - 0.03) * 2.2, 0.0, 1.0));
            const double grit = Rough(u, v, {24, 24, 5, 0.65}, 144);
            const Tone granite =
                Mix(Hex(0x6B6E73), Hex(0x9A958C), UnitLot(cell.lot, 1, 145)) * (0.98 + 0.16 * grit);
            const Tone sand = Hex(0x6A5F4E) * (0.85 + 0.25 * grit);
            paving.At(x, y) = Mix(sand, granite, stone);
            height.At(x, y) = (9 + 3 * UnitLot(cell.lot, 2, 145)) * dome + 1.3 * grit;
        }
    }
    return Lit(paving, height, 0.8, 0.15);
}

} // namespace mirelle::starter
