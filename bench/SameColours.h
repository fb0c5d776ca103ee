// Whether two pictures show the same. The fourth bytes of a picture count for nothing.
#pragma once

#include "forms/Picture.h"

#include <algorithm>

namespace mirelle::bench {

inline bool SameColours(const Bitmap& a, const Bitmap& b) {
    return a.Width() == b.Width() && std::ranges::equal(a.Pixels(), b.Pixels(), {}, ColorOf, ColorOf);
}

} // namespace mirelle::bench
