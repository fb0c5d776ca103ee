// A window's place above or among the other windows.
#pragma once

#include <cstdint>

namespace mirelle::windows {

// Keeps the window (its handle) above all others or lets it go, without moving or sizing it. Returns whether
// Windows did so.
bool SetTopMost(std::uintptr_t window, bool topmost);

} // namespace mirelle::windows
