// Finds windows of other programs by their titles.
#pragma once

#include "desktop/x11/Connection.h"

#include <string_view>

namespace mirelle::x11 {

// The window that a title asks for by the rule of bridge/WindowTitle.h, the uppermost where several fit as
// well; None where there is no such window.
Window FindWindow(const Connection& connection, std::string_view title);

// Whether a window manager runs that follows the usual hints (EWMH), and knows the one named.
bool ManagerSupports(const Connection& connection, const char* hint);

} // namespace mirelle::x11
