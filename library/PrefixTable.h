// The prefixes of material names and the library folders that they lead to.
#pragma once

#include <array>

namespace mirelle {

struct PrefixRow {
    const char* prefix;
    const char* folder; // below the program's own folder
};

inline constexpr std::array kPrefixes = {
    PrefixRow{"BldgFace_", "Support/Materials/"},
    PrefixRow{"Art_", "Support/Materials/Art/"},
    PrefixRow{"Fractal_", "Support/Materials/Fractal/"},
    PrefixRow{"Graffiti_", "Support/Materials/Graffiti/"},
    PrefixRow{"Metal_", "Support/Materials/Metal/"},
    PrefixRow{"Color_", "Support/Materials/Color/"},
    PrefixRow{"Gradient_", "Support/Materials/Gradient/"},
    PrefixRow{"Bio_", "Support/Materials/Bio/"},
    PrefixRow{"Arch_", "Support/Materials/Architecture/"},
    PrefixRow{"Industrial_", "Support/Materials/Industrial/"},
    PrefixRow{"Material_", "Support/Materials/"},
    PrefixRow{"Texture_", "Support/Materials/"},
    PrefixRow{"Misc_", "Support/Materials/Misc"},
};

} // namespace mirelle
