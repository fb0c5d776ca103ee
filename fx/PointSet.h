// The point effects of the "Image FX" panel: they change the picture as it stands on the canvas, byte by
// byte, from one pixel frame to another. In two forms that give the same bytes, like the kernels.
//
// Each goes over the pixels of the source's record, rows from the top, in each row from the left, and writes
// channels 2, 1, 0 of the destination; the fourth byte there stays the 0 that it was sized with. Each runs
// under the leave rule: at the first subscript beyond a bound it raises error 9, and the pixels before that
// are written.
#pragma once

#include "fx/PixelFrame.h"

#include <array>
#include <cstdint>

namespace mirelle {

struct PointArguments {
    // SwapChannels: for channel 0, 1, 2 of the destination the channel of the source that it takes.
    std::array<int, 3> swap{0, 1, 2};
    // ShiftColors: what is added to channel 0, 1, 2; -255..255.
    std::array<std::int16_t, 3> shifts{};
};

using PointFunction = void (*)(const PixelFrame& source, PixelFrame& destination,
                               const PointArguments& arguments);

struct PointSet {
    PointFunction Invert;
    PointFunction FlipVertical;
    PointFunction FlipHorizontal;
    PointFunction GreyScale;
    PointFunction SwapChannels;
    PointFunction ShiftColors;
    PointFunction Copy; // as Revert writes its source back
};

// A point effect by name, as in &PointSet::Invert.
using PointEffect = PointFunction PointSet::*;

extern const PointSet kPlainPoints;
extern const PointSet kFastPoints;

// The set that the program runs, chosen as the kernels are.
const PointSet& ChosenPoints();

} // namespace mirelle
