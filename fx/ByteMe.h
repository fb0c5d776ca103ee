// The clamp that several effects share.
#pragma once

#include "forms/Numbers.h"

namespace mirelle {

// Above 255 the value becomes 255, below 0 it becomes 0.
inline void ByteMe(Integer& value) {
    if (value.Value() > 255) value = 255;
    if (value.Value() < 0) value = 0;
}

} // namespace mirelle
