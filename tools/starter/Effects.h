// The program's own effects on tiles that wrap around: each works on the tile with a margin of its
// surroundings, so that what it does at a picture's edge stays out of the result.
#pragma once

#include "fx/KernelSet.h"
#include "tools/starter/Tile.h"

namespace mirelle::starter {

// One kernel of the Image FX panel, run so many times upon its own result. Blurs carry a pixel to the right
// and down by at most two a pass; the margin has to be as wide.
Tile WithKernel(const Tile& tile, Kernel kernel, const KernelArguments& arguments = {}, int passes = 1,
                int margin = 8);

// The relief of the tile that emboss draws, laid over it with a strength.
Tile WithRelief(const Tile& tile, double strength);

Tile WithContrast(const Tile& tile, int percent);

// From the first tile at the top to the second in the middle and back, by the image gradient.
Tile FadedThereAndBack(const Tile& first, const Tile& second);

// The form gradient from the top to the middle and back, or from the left where it runs across.
struct GradientEnds {
    Tone start, finish;
};
Tile GradientThereAndBack(const GradientEnds& ends, bool across);

} // namespace mirelle::starter
