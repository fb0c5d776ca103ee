#include "tools/starter/Noise.h"

#include "tools/starter/Tone.h"

namespace mirelle::starter {
namespace {

int Wrapped(int value, int period) {
    const int rest = value % period;
    return rest < 0 ? rest + period : rest;
}

// How much the slope at a corner of the lattice lifts a place at that offset from it.
double Lift(int column, int row, double x, double y, std::uint32_t seed) {
    const std::uint32_t lot = Lot(static_cast<std::uint32_t>(column), static_cast<std::uint32_t>(row), seed);
    const double turn = static_cast<double>(lot & 1023U) / 1024;
    return Wave(turn + 0.25) * x + Wave(turn) * y;
}

double Ease(double t) {
    return t * t * t * (t * (t * 6 - 15) + 10);
}

struct Point {
    double x, y;
};

Point PointOf(int column, int row, int across, int down, double scatter, std::uint32_t seed) {
    const auto a = static_cast<std::uint32_t>(Wrapped(column, across));
    const auto b = static_cast<std::uint32_t>(Wrapped(row, down));
    return {column + 0.5 + (UnitLot(a, b, seed) - 0.5) * scatter,
            row + 0.5 + (UnitLot(a, b, seed + 1) - 0.5) * scatter};
}

} // namespace

std::uint32_t Lot(std::uint32_t a, std::uint32_t b, std::uint32_t seed) {
    std::uint32_t mixed = a * 0x9E3779B1U ^ b * 0x85EBCA77U ^ seed * 0xC2B2AE3DU;
    for (const std::uint32_t factor : {0x7FEB352DU, 0x846CA68BU, 0x2C1B3C6DU}) {
        mixed ^= mixed >> 16;
        mixed *= factor;
    }
    return mixed ^ mixed >> 15;
}

double UnitLot(std::uint32_t a, std::uint32_t b, std::uint32_t seed) {
    return static_cast<double>(Lot(a, b, seed) >> 8) / (1U << 24);
}

double Hills(double u, double v, int across, int down, std::uint32_t seed) {
    const double x = Fraction(u) * across;
    const double y = Fraction(v) * down;
    const int column = static_cast<int>(x);
    const int row = static_cast<int>(y);
    const int nextColumn = Wrapped(column + 1, across);
    const int nextRow = Wrapped(row + 1, down);
    const double dx = x - column;
    const double dy = y - row;
    const double top = Mix(Lift(Wrapped(column, across), Wrapped(row, down), dx, dy, seed),
                           Lift(nextColumn, Wrapped(row, down), dx - 1, dy, seed), Ease(dx));
    const double bottom = Mix(Lift(Wrapped(column, across), nextRow, dx, dy - 1, seed),
                              Lift(nextColumn, nextRow, dx - 1, dy - 1, seed), Ease(dx));
    return Mix(top, bottom, Ease(dy)) * 1.5;
}

double Rough(double u, double v, const Layers& layers, std::uint32_t seed) {
    double sum = 0;
    double height = 1;
    for (int layer = 0; layer < layers.count; ++layer) {
        sum += height * Hills(u, v, layers.across << layer, layers.down << layer,
                              seed + static_cast<std::uint32_t>(layer));
        height *= layers.gain;
    }
    return sum;
}

double Ridged(double u, double v, const Layers& layers, std::uint32_t seed) {
    double sum = 0;
    double height = 0.5;
    double weight = 1;
    for (int layer = 0; layer < layers.count; ++layer) {
        const double crest = 1 - std::abs(Hills(u, v, layers.across << layer, layers.down << layer,
                                                seed + static_cast<std::uint32_t>(layer)));
        sum += height * crest * crest * weight;
        weight = std::clamp(crest * crest * 1.6, 0.0, 1.0);
        height *= layers.gain;
    }
    return sum;
}

Cell CellAt(double u, double v, int across, int down, double scatter, std::uint32_t seed) {
    const double x = Fraction(u) * across;
    const double y = Fraction(v) * down;
    const int column = static_cast<int>(x);
    const int row = static_cast<int>(y);
    int ownColumn = column;
    int ownRow = row;
    double least = 1e9;
    for (int r = row - 2; r <= row + 2; ++r) {
        for (int c = column - 2; c <= column + 2; ++c) {
            const Point point = PointOf(c, r, across, down, scatter, seed);
            const double dx = point.x - x;
            const double dy = point.y - y;
            const double squared = dx * dx + dy * dy;
            if (squared >= least) continue;
            least = squared;
            ownColumn = c;
            ownRow = r;
        }
    }
    const Point own = PointOf(ownColumn, ownRow, across, down, scatter, seed);
    Cell cell;
    cell.pointX = own.x - x;
    cell.pointY = own.y - y;
    cell.nearest = std::sqrt(least);
    cell.border = 1e9;
    cell.lot = Lot(static_cast<std::uint32_t>(Wrapped(ownColumn, across)),
                   static_cast<std::uint32_t>(Wrapped(ownRow, down)), seed + 2);
    // The border to a neighbour is the line halfway between the two points.
    for (int r = ownRow - 2; r <= ownRow + 2; ++r) {
        for (int c = ownColumn - 2; c <= ownColumn + 2; ++c) {
            if (r == ownRow && c == ownColumn) continue;
            const Point other = PointOf(c, r, across, down, scatter, seed);
            const double towardsX = other.x - own.x;
            const double towardsY = other.y - own.y;
            const double length = std::sqrt(towardsX * towardsX + towardsY * towardsY);
            const double middleX = (own.x + other.x) / 2 - x;
            const double middleY = (own.y + other.y) / 2 - y;
            cell.border = std::min(cell.border, (middleX * towardsX + middleY * towardsY) / length);
        }
    }
    return cell;
}

} // namespace mirelle::starter
