// The kernel buttons of the "Image FX" panel: control, tool tip, kernel, arguments.
#pragma once

#include "fx/KernelSet.h"

#include <array>
#include <string_view>

namespace mirelle {

struct KernelButton {
    std::string_view control;
    std::string_view toolTip;
    Kernel kernel;
    KernelArguments arguments{};
    // Whether the Working picture goes into the Undo picture first.
    bool takesUndoCopy = true;
};

inline constexpr std::array kKernelButtons{
    KernelButton{"cmdBlur1", "Blur", &KernelSet::FXBlur},
    KernelButton{"cmdBlur2", "Blur More", &KernelSet::FXBlurMore},
    KernelButton{"cmdNoRed", "No Red", &KernelSet::FXNoRed},
    KernelButton{"cmdNoGreen", "No Green", &KernelSet::FXNoGreen},
    KernelButton{"cmdNoBlue", "No Blue", &KernelSet::FXNoBlue},
    KernelButton{"cmdIncreaseRed", "Increase Red", &KernelSet::FXShiftRed, {{50}}},
    KernelButton{"cmdIncreaseGreen", "Increase Green", &KernelSet::FXShiftGreen, {{50}}},
    KernelButton{"cmdIncreaseBlue", "Increase Blue", &KernelSet::FXShiftBlue, {{50}}},
    KernelButton{"cmdIncreaseRGB", "Increase RGB", &KernelSet::FXShiftRGB, {{50, 100, 50}}},
    KernelButton{"cmdDecreaseRed", "Decrease Red", &KernelSet::FXShiftRed, {{-50}}},
    // Alone with cmdDarken it takes no undo copy, unlike their counterparts.
    KernelButton{"cmdDecreaseGreen", "Decrease Green", &KernelSet::FXShiftGreen, {{-50}}, false},
    KernelButton{"cmdDecreaseBlue", "Decrease Blue", &KernelSet::FXShiftBlue, {{-50}}},
    KernelButton{"cmdDecreaseRGB", "Decrease RGB", &KernelSet::FXShiftRGB, {{-50, -100, -50}}},
    KernelButton{"cmdGlowInTheDark", "Glow", &KernelSet::FXGlow, {{}, 1.0F}},
    KernelButton{"cmdSunShinnyDay", "Bright", &KernelSet::FXGlow, {{}, 10.0F}},
    KernelButton{"cmdVividSilk", "Vivid", &KernelSet::FXVivid},
    KernelButton{"cmdSilk", "Silk", &KernelSet::FXSilk},
    KernelButton{"cmdFlatten", "Flatten", &KernelSet::FXFlatten},
    KernelButton{"cmdFlatten2", "Flatten2", &KernelSet::FXFlatten2},
    KernelButton{"cmdNeonNegation", "Neon Negate", &KernelSet::FXNeonNegate, {{255}}},
    KernelButton{"cmdNegative", "Negate", &KernelSet::FXNegate},
    KernelButton{"cmdVividNeg", "Negate More", &KernelSet::FXNegateMore},
    KernelButton{"cmdIncoherence", "Incoherence", &KernelSet::FXIncoherence},
    KernelButton{"cmdPixilated", "Pixelated", &KernelSet::FXPixelated},
    KernelButton{"cmdDarken", "Darken", &KernelSet::FXDarken, {{50}}, false},
    KernelButton{"cmdLighten", "Lighten", &KernelSet::FXLighten, {{50}}},
    KernelButton{"cmdEmboss", "Emboss", &KernelSet::FXEmboss, {{100}}},
};

// What the vertical smudger runs at each pass; no button reaches it, so it has no tool tip.
inline constexpr KernelButton kBlurVertical{"BlurVertical", "", &KernelSet::FXBlurMoreVert};
constexpr int kSmudgerPasses = 151;

} // namespace mirelle
