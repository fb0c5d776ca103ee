// The system's own header of GDI+, with what it takes for granted: the macros of the system's header that
// this program does without are functions here.
#pragma once

#include "desktop/windows/System.h"
#include "forms/Picture.h"

#include <objidl.h>

#include <algorithm>

namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus
using mirelle::RGB;

#include <gdiplus.h>
