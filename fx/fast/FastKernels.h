// The fast kernels, in the families of their sources. Each gives the bytes of its plain twin.
//
// The arguments that the buttons have are fast; for others, where a working value could leave its 16 bits or
// a formula would need another one, the plain kernel runs.
#pragma once

#include "fx/KernelFrame.h"

namespace mirelle::fast {

// DirectKernels.cpp
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

// Blurs.cpp
void FXBlur(const KernelFrame& frame, const KernelArguments& arguments);
void FXBlurMore(const KernelFrame& frame, const KernelArguments& arguments);
void FXBlurMoreVert(const KernelFrame& frame, const KernelArguments& arguments);

// Glow.cpp, Silk.cpp
void FXGlow(const KernelFrame& frame, const KernelArguments& arguments);
void FXSilk(const KernelFrame& frame, const KernelArguments& arguments);

// NeighbourKernels.cpp
void FXFlatten(const KernelFrame& frame, const KernelArguments& arguments);
void FXFlatten2(const KernelFrame& frame, const KernelArguments& arguments);
void FXEmboss(const KernelFrame& frame, const KernelArguments& arguments);

// Pixelated.cpp
void FXPixelated(const KernelFrame& frame, const KernelArguments& arguments);

} // namespace mirelle::fast
