// What a kernel gets: the two pixel arrays of a run, and its arguments.
//
// Both arrays run x fastest, rows from the top. A pixel's bytes are blue, green, red and the fourth byte.
// Every byte that an effect leaves alone, the fourth ones among them, comes out as 0: the destination may
// hold anything before, and a kernel sees to all of it.
#pragma once

#include "forms/Picture.h"

#include <array>
#include <cstdint>
#include <span>

namespace mirelle {

// Both spans hold width x height pixels and do not overlap.
struct KernelFrame {
    std::span<const Pixel> source;
    std::span<Pixel> destination;
    int width = 0;
    int height = 0;
};

struct KernelArguments {
    // An amount, a level or an offset in the first place; where a kernel takes one a channel: red, green,
    // blue.
    std::array<std::int16_t, 3> amounts{};
    float factor = 0;
};

// Kernels are functions without a memory of their own; they allocate nothing and raise nothing.
using KernelFunction = void (*)(const KernelFrame& frame, const KernelArguments& arguments);

} // namespace mirelle
