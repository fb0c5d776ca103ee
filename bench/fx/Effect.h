// A pixel effect as a measure: beside a copy of the same bytes, and beside what other libraries have like it.
#pragma once

#include "bench/Measure.h"
#include "forms/Picture.h"

#include <functional>
#include <string>

namespace mirelle::bench {

// What an effect should not pass, in copies of the picture.
constexpr double kNearCopy = 1.3;
constexpr double kArithmetic = 2.0;
constexpr double kNeighbours = 3.0;

// From a source to a destination of the same size.
using EffectRun = std::function<void(const Bitmap& source, Bitmap& destination)>;

struct Effect {
    std::string name; // also what the peers know it by
    double aim;
    EffectRun fast;
    EffectRun plain; // gives the same bytes
};

Measure MeasureOf(const Effect& effect);

} // namespace mirelle::bench
