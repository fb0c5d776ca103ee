// Learns what fonts the system has while the application is being made.
#pragma once

#include <future>

namespace mirelle::look {

// Reads the system's list of fonts on a thread of its own. Begun before the application is made, it is done
// by the time that the application has connected to its display, and the first text need not wait for it.
// Wait for it before any font is used. Does nothing where the toolkit asks no list of ours.
std::future<void> ReadFontsAhead();

} // namespace mirelle::look
