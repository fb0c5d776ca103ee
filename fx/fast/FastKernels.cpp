#include "fx/fast/FastKernels.h"

#include "fx/KernelSet.h"

namespace mirelle {

const KernelSet kFastKernels{
    .FXBlur = fast::FXBlur,
    .FXBlurMore = fast::FXBlurMore,
    .FXBlurMoreVert = fast::FXBlurMoreVert,
    .FXNoRed = fast::FXNoRed,
    .FXNoGreen = fast::FXNoGreen,
    .FXNoBlue = fast::FXNoBlue,
    .FXShiftRed = fast::FXShiftRed,
    .FXShiftGreen = fast::FXShiftGreen,
    .FXShiftBlue = fast::FXShiftBlue,
    .FXShiftRGB = fast::FXShiftRGB,
    .FXGlow = fast::FXGlow,
    .FXVivid = fast::FXVivid,
    .FXSilk = fast::FXSilk,
    .FXFlatten = fast::FXFlatten,
    .FXFlatten2 = fast::FXFlatten2,
    .FXNeonNegate = fast::FXNeonNegate,
    .FXNegate = fast::FXNegate,
    .FXNegateMore = fast::FXNegateMore,
    .FXIncoherence = fast::FXIncoherence,
    .FXPixelated = fast::FXPixelated,
    .FXDarken = fast::FXDarken,
    .FXLighten = fast::FXLighten,
    .FXEmboss = fast::FXEmboss,
};

} // namespace mirelle
