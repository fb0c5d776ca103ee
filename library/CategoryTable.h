// The ten category folders of the library, in the order of the buttons that lead to them.
#pragma once

#include <array>

namespace mirelle {

// Below the program's own folder; row i belongs to cmdMatDirs(i).
inline constexpr std::array kCategoryFolders = {
    "Support/Materials/Art/",   "Support/Materials/Fractal/",      "Support/Materials/Graffiti/",
    "Support/Materials/Metal/", "Support/Materials/Color/",        "Support/Materials/Gradient/",
    "Support/Materials/Bio/",   "Support/Materials/Architecture/", "Support/Materials/Industrial/",
    "Support/Materials/Misc/",
};

} // namespace mirelle
