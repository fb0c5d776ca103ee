// Brings a window of another program to the front.
#pragma once

#include "desktop/x11/Connection.h"

namespace mirelle::x11 {

// Raises the window and gives it the focus. Returns whether it has the focus (itself or a window in it),
// which it is given a few seconds to get.
bool Activate(const Connection& connection, Window window);

} // namespace mirelle::x11
