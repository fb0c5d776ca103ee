// Noise that wraps around: everything here repeats when u or v passes 1.
#pragma once

#include <cstdint>

namespace mirelle::starter {

// A number that looks drawn by lot but depends on its arguments alone; and the same as 0 up to 1.
std::uint32_t Lot(std::uint32_t a, std::uint32_t b, std::uint32_t seed);
double UnitLot(std::uint32_t a, std::uint32_t b, std::uint32_t seed);

// Soft hills and valleys between about -1 and 1, `across` times `down` of them on the tile.
double Hills(double u, double v, int across, int down, std::uint32_t seed);

// Hills with ever smaller ones upon them, each layer of half the size and `gain` times the height.
struct Layers {
    int across = 4;
    int down = 4;
    int count = 5;
    double gain = 0.5;
};
double Rough(double u, double v, const Layers& layers, std::uint32_t seed);
// The same with sharp crests: between about 0 and 1, 1 on the crests.
double Ridged(double u, double v, const Layers& layers, std::uint32_t seed);

// The tile parted into cells around points scattered on a grid.
struct Cell {
    double nearest = 0; // distance to the cell's point, in grid steps
    double border = 0;  // distance to the border of the next cell, in grid steps
    double pointX = 0;  // from the place to the cell's point, in grid steps
    double pointY = 0;
    std::uint32_t lot = 0; // the cell's own number
};
// `scatter` 0 leaves the points in the middle of their squares, 1 lets them go anywhere in it.
Cell CellAt(double u, double v, int across, int down, double scatter, std::uint32_t seed);

} // namespace mirelle::starter
