// Finds a window by its title and brings it to the front.
#pragma once

#include "desktop/windows/System.h"

#include <string_view>

namespace mirelle::windows {

// The window that a title asks for among those that are seen, the uppermost first; null where there is none.
HWND FindWindowTitled(std::string_view title);

// Brings the window to the front, opening it up where it is minimised. Returns whether it is there
// then, for which it is given a few seconds.
bool BringToFront(HWND window);

} // namespace mirelle::windows
