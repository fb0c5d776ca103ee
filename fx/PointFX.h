// The buttons of the point effects: control, tool tip, effect, and for the channel swaps which channel goes
// where.
#pragma once

#include "fx/PointSet.h"

#include <array>
#include <string_view>

namespace mirelle {

struct PointButton {
    std::string_view control;
    std::string_view toolTip;
    PointEffect effect;
    PointArguments arguments{};
};

// A swap as its name tells it: the source channels that red, green and blue take.
constexpr PointArguments Swap(int red, int green, int blue) {
    return {.swap = {blue, green, red}};
}

inline constexpr std::array kPointButtons{
    PointButton{"cmdNegativeX", "Invert", &PointSet::Invert},
    PointButton{"cmdFlipVert", "Flip Vertical", &PointSet::FlipVertical},
    PointButton{"cmdFlipHoriz", "Flip Horizontal", &PointSet::FlipHorizontal},
    PointButton{"cmdGreyScale", "Grey Scale", &PointSet::GreyScale},
    PointButton{"cmdRGB2BGR", "RGB>BGR", &PointSet::SwapChannels, Swap(0, 1, 2)},
    PointButton{"cmdRGB2BRG", "RGB>BRG", &PointSet::SwapChannels, Swap(0, 2, 1)},
    PointButton{"cmdRGB2GBR", "RGB>GBR", &PointSet::SwapChannels, Swap(1, 0, 2)},
    PointButton{"cmdRGB2GRB", "RGB>GRB", &PointSet::SwapChannels, Swap(1, 2, 0)},
    PointButton{"cmdRGB2RBG", "RGB>RBG", &PointSet::SwapChannels, Swap(2, 0, 1)},
};

} // namespace mirelle
