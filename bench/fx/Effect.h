// A pixel effect as a measure: beside a copy of the same bytes, and beside what other libraries have like it.
// The whole result has to be the plain form's, byte for byte.
#pragma once

#include "bench/Measure.h"
#include "forms/Picture.h"
#include "fx/FormChoice.h"
#include "fx/KernelTable.h"
#include "fx/PointFX.h"

#include <functional>
#include <memory>
#include <string>

namespace mirelle::bench {

// What an effect should not pass, in copies of the picture.
constexpr double kNearCopy = 1.3;
constexpr double kArithmetic = 2.0;
constexpr double kNeighbours = 3.0;

// One form of an effect over the bench's photograph, with all memory that it takes.
struct EffectRun {
    std::function<void()> work; // as often as one likes; this alone is timed
    std::function<Bitmap()> result;
};

struct Effect {
    std::string name; // also what the peers know it by
    double aim;
    std::function<EffectRun(FXForm form)> setUp;
};

Measure MeasureOf(const Effect& effect);

// From one picture to another of the same size.
using EffectOnPictures = std::function<void(const Bitmap& source, Bitmap& destination)>;
EffectRun RunOnPictures(EffectOnPictures effect);

EffectRun RunOf(const KernelButton& button, FXForm form);
// From one pixel frame to another, which are filled once.
EffectRun RunOf(PointEffect effect, const PointArguments& arguments, FXForm form);

// One copy of the photograph into memory that is written anew each time.
Peer OneCopy(double aim);

} // namespace mirelle::bench
