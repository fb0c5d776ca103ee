// The kernels of the "Image FX" panel as a set, in two forms that give the same bytes. The plain form reads
// as the effects' rules do, step by step with checked 16-bit values, and is what tests trust; the fast form
// is what users get.
#pragma once

#include "fx/KernelFrame.h"

namespace mirelle {

struct KernelSet {
    // Means with the pixels before, row after row without a break: a row's first pixel is averaged with the
    // last one of the row above. Row 0 comes out unchanged.
    KernelFunction FXBlur;
    KernelFunction FXBlurMore;
    KernelFunction FXBlurMoreVert; // down the columns, each one for itself
    KernelFunction FXNoRed;
    KernelFunction FXNoGreen;
    KernelFunction FXNoBlue;
    KernelFunction FXShiftRed; // amount
    KernelFunction FXShiftGreen;
    KernelFunction FXShiftBlue;
    KernelFunction FXShiftRGB; // an amount each for red, green, blue
    KernelFunction FXGlow;     // factor: at 1 dark turns bright, at 10 nearly all does
    KernelFunction FXVivid;
    KernelFunction FXSilk;
    KernelFunction FXFlatten;
    KernelFunction FXFlatten2;
    KernelFunction FXNeonNegate; // level
    KernelFunction FXNegate;
    KernelFunction FXNegateMore;
    KernelFunction FXIncoherence;
    KernelFunction FXPixelated;
    KernelFunction FXDarken;  // amount; no upper limit, so not below 0
    KernelFunction FXLighten; // amount; no lower limit, so not below 0
    KernelFunction FXEmboss;  // offset: what equal neighbours give
};

// A kernel by name, as in &KernelSet::FXBlur.
using Kernel = KernelFunction KernelSet::*;

extern const KernelSet kPlainKernels;
extern const KernelSet kFastKernels;

// The set that the program runs: the fast one, unless the plain form is asked for (see FormChoice.h).
const KernelSet& ChosenKernels();

} // namespace mirelle
