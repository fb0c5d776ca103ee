// Three steps. The colours that stick out are taken as they are, since no mixture of others gives them. The
// set of all colours is split again and again where it is widest, until there are as many parts as wanted.
// Then each colour goes to the nearest colour of the palette, and those move to the means of what came to
// them, a few times (S. P. Lloyd, "Least squares quantization in PCM", 1982).

#include "desktop/encoders/AdaptivePalette.h"

#include "desktop/encoders/NearestColour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <span>

namespace mirelle {
namespace {

constexpr int kRefinements = 3;

using Colour = std::array<double, 3>; // blue, green, red

// All pixels of one cell of the grid: how many, and their mean.
struct Group {
    double weight = 0;
    Colour mean{};
};

struct Sums {
    std::uint64_t count = 0;
    std::array<std::uint64_t, 3> sums{};
};

std::vector<Group> GroupsOf(const Bitmap& bitmap, const ColourGrid& grid) {
    std::vector<Sums> cells(ColourGrid::kCellCount);
    for (const Pixel& pixel : bitmap.Pixels()) {
        Sums& cell = cells[grid.CellOf(pixel)];
        ++cell.count;
        cell.sums[0] += pixel.blue;
        cell.sums[1] += pixel.green;
        cell.sums[2] += pixel.red;
    }
    std::vector<Group> groups;
    for (const Sums& cell : cells) {
        if (cell.count == 0) continue;
        Group group{static_cast<double>(cell.count), {}};
        for (std::size_t i = 0; i < 3; ++i)
            group.mean[i] = static_cast<double>(cell.sums[i]) / group.weight;
        groups.push_back(group);
    }
    return groups;
}

// A part of the groups, and what is known of it.
struct Part {
    explicit Part(std::span<Group> members) : groups(members) {
        Colour sums{};
        Colour squares{};
        double weight = 0;
        for (const Group& group : groups) {
            weight += group.weight;
            for (std::size_t i = 0; i < 3; ++i) {
                sums[i] += group.weight * group.mean[i];
                squares[i] += group.weight * group.mean[i] * group.mean[i];
            }
        }
        for (std::size_t i = 0; i < 3; ++i) {
            mean[i] = sums[i] / weight;
            const double squaredDistances = squares[i] - sums[i] * mean[i];
            if (squaredDistances <= spread) continue;
            spread = squaredDistances;
            widest = i;
        }
    }

    std::span<Group> groups;
    Colour mean{};
    double spread = 0;      // the sum of squared distances from the mean along the widest colour
    std::size_t widest = 0; // 0 blue, 1 green, 2 red
};

std::vector<Part> Split(std::vector<Group>& groups, std::size_t count) {
    const auto isNarrower = [](const Part& a, const Part& b) { return a.spread < b.spread; };
    std::vector<Part> parts = {Part(groups)};
    while (parts.size() < count) {
        std::pop_heap(parts.begin(), parts.end(), isNarrower);
        const Part part = parts.back();
        const auto middle = std::partition(part.groups.begin(), part.groups.end(), [&](const Group& group) {
            return group.mean[part.widest] < part.mean[part.widest];
        });
        const auto below = static_cast<std::size_t>(middle - part.groups.begin());
        if (below == 0 || below == part.groups.size()) {
            std::push_heap(parts.begin(), parts.end(), isNarrower);
            break; // the widest part is of one colour: nothing is left to split
        }
        parts.back() = Part(part.groups.first(below));
        std::push_heap(parts.begin(), parts.end(), isNarrower);
        parts.push_back(Part(part.groups.subspan(below)));
        std::push_heap(parts.begin(), parts.end(), isNarrower);
    }
    return parts;
}

Pixel PixelOf(const Colour& colour) {
    const auto rounded = [](double value) { return static_cast<std::uint8_t>(std::lround(value)); };
    return {rounded(colour[0]), rounded(colour[1]), rounded(colour[2]), 0};
}

// The colours that stick out: the farthest in each of the 26 directions to the sides, edges and corners of a
// cube.
std::vector<Pixel> Extremes(std::span<const Group> groups) {
    std::vector<Pixel> extremes;
    for (int direction = 0; direction < 27; ++direction) {
        const Colour along = {direction % 3 - 1.0, direction / 3 % 3 - 1.0, direction / 9 - 1.0};
        const auto reach = [&](const Group& group) {
            return along[0] * group.mean[0] + along[1] * group.mean[1] + along[2] * group.mean[2];
        };
        const auto farthest =
            std::max_element(groups.begin(), groups.end(),
                             [&](const Group& a, const Group& b) { return reach(a) < reach(b); });
        const Pixel colour = PixelOf(farthest->mean);
        if (std::find(extremes.begin(), extremes.end(), colour) == extremes.end()) extremes.push_back(colour);
    }
    return extremes;
}

// The first `fixed` colours stay where they are.
void MoveToMeans(std::vector<Pixel>& palette, std::size_t fixed, std::span<const Group> groups) {
    const NearestColour nearest(palette);
    std::vector<Group> sums(palette.size());
    for (const Group& group : groups) {
        Group& sum = sums[nearest.Of(PixelOf(group.mean))];
        sum.weight += group.weight;
        for (std::size_t i = 0; i < 3; ++i)
            sum.mean[i] += group.weight * group.mean[i];
    }
    for (std::size_t i = fixed; i < palette.size(); ++i) {
        const Group& sum = sums[i];
        if (sum.weight == 0) continue;
        palette[i] = PixelOf({sum.mean[0] / sum.weight, sum.mean[1] / sum.weight, sum.mean[2] / sum.weight});
    }
}

} // namespace

std::vector<Pixel> AdaptivePalette(const Bitmap& bitmap, const ColourGrid& grid, std::size_t count) {
    std::vector<Group> groups = GroupsOf(bitmap, grid);
    std::vector<Pixel> palette = Extremes(groups);
    const std::size_t fixed = palette.size();
    for (const Part& part : Split(groups, count - fixed))
        palette.push_back(PixelOf(part.mean));
    for (int i = 0; i < kRefinements; ++i)
        MoveToMeans(palette, fixed, groups);
    return palette;
}

} // namespace mirelle
