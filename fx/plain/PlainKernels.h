// The plain kernels, in the families of their sources.
#pragma once

#include "fx/KernelFrame.h"

namespace mirelle::plain {

// DirectKernels.cpp: each pixel from the same pixel of the source.
void FXNegate(const KernelFrame& frame, const KernelArguments& arguments);
void FXIncoherence(const KernelFrame& frame, const KernelArguments& arguments);
void FXNoRed(const KernelFrame& frame, const KernelArguments& arguments);
void FXNoGreen(const KernelFrame& frame, const KernelArguments& arguments);
void FXNoBlue(const KernelFrame& frame, const KernelArguments& arguments);
void FXLighten(const KernelFrame& frame, const KernelArguments& arguments);
void FXDarken(const KernelFrame& frame, const KernelArguments& arguments);
void FXShiftRed(const KernelFrame& frame, const KernelArguments& arguments);
void FXShiftGreen(const KernelFrame& frame, const KernelArguments& arguments);
void FXShiftBlue(const KernelFrame& frame, const KernelArguments& arguments);
void FXShiftRGB(const KernelFrame& frame, const KernelArguments& arguments);
void FXVivid(const KernelFrame& frame, const KernelArguments& arguments);
void FXNegateMore(const KernelFrame& frame, const KernelArguments& arguments);
void FXNeonNegate(const KernelFrame& frame, const KernelArguments& arguments);

// CarriedKernels.cpp: what an earlier pixel left behind counts.
void FXGlow(const KernelFrame& frame, const KernelArguments& arguments);
void FXSilk(const KernelFrame& frame, const KernelArguments& arguments);
void FXBlur(const KernelFrame& frame, const KernelArguments& arguments);
void FXBlurMore(const KernelFrame& frame, const KernelArguments& arguments);
void FXBlurMoreVert(const KernelFrame& frame, const KernelArguments& arguments);

// NeighbourKernels.cpp: pixels around count, and reads and stores off the picture fail.
void FXFlatten(const KernelFrame& frame, const KernelArguments& arguments);
void FXFlatten2(const KernelFrame& frame, const KernelArguments& arguments);
void FXEmboss(const KernelFrame& frame, const KernelArguments& arguments);

// Pixelated.cpp
void FXPixelated(const KernelFrame& frame, const KernelArguments& arguments);

} // namespace mirelle::plain
