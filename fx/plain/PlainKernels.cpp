#include "fx/plain/PlainKernels.h"

#include "fx/KernelSet.h"

namespace mirelle {

const KernelSet kPlainKernels{
    .FXBlur = plain::FXBlur,
    .FXBlurMore = plain::FXBlurMore,
    .FXBlurMoreVert = plain::FXBlurMoreVert,
    .FXNoRed = plain::FXNoRed,
    .FXNoGreen = plain::FXNoGreen,
    .FXNoBlue = plain::FXNoBlue,
    .FXShiftRed = plain::FXShiftRed,
    .FXShiftGreen = plain::FXShiftGreen,
    .FXShiftBlue = plain::FXShiftBlue,
    .FXShiftRGB = plain::FXShiftRGB,
    .FXGlow = plain::FXGlow,
    .FXVivid = plain::FXVivid,
    .FXSilk = plain::FXSilk,
    .FXFlatten = plain::FXFlatten,
    .FXFlatten2 = plain::FXFlatten2,
    .FXNeonNegate = plain::FXNeonNegate,
    .FXNegate = plain::FXNegate,
    .FXNegateMore = plain::FXNegateMore,
    .FXIncoherence = plain::FXIncoherence,
    .FXPixelated = plain::FXPixelated,
    .FXDarken = plain::FXDarken,
    .FXLighten = plain::FXLighten,
    .FXEmboss = plain::FXEmboss,
};

} // namespace mirelle
