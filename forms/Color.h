// Colour values taken apart, and the text form in which colours are kept and sent.
#pragma once

#include "forms/Picture.h"

#include <string>

namespace mirelle {

struct ColorParts {
    int red = 0;
    int green = 0;
    int blue = 0;
};

// red = value mod 256, green = (value div 256) mod 256, blue = value div 65536, all truncating toward zero,
// so that kOffPicture gives -1, 0, 0.
constexpr ColorParts PartsOf(Color value) {
    return {value % 256, value / 256 % 256, value / 65536};
}

inline Color ColorOf(ColorParts parts) {
    return RGB(parts.red, parts.green, parts.blue);
}

// "255,128,0"
inline std::string ColorText(ColorParts parts) {
    return std::to_string(parts.red) + "," + std::to_string(parts.green) + "," + std::to_string(parts.blue);
}

} // namespace mirelle
