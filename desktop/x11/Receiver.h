// The window that our keys go to, and whether it has read them.
//
// The server passes keys on at once; the program behind the window reads them when it comes to it, and looks
// up what they mean only then. A key code that was lent to a character must keep it until that has happened.
#pragma once

#include "desktop/x11/Connection.h"

namespace mirelle::x11 {

enum class Reading {
    Done,    // everything sent so far has been read
    Unknown, // the window does not tell, or did not in time
    Ours,    // the window is this process's own: it can't read while we wait
};

// The window that has the focus, None where none has.
Window FocusedWindow(const Connection& connection);

// Waits until the program behind a window has read the keys sent to it so far, but a few seconds at most. A
// program that takes part in _NET_WM_PING tells; for others this waits a while and hopes.
Reading AwaitReading(const Connection& connection, Window window);

// The windows from `window` up to the root's child.
std::vector<Window> WithParents(const Connection& connection, Window window);

} // namespace mirelle::x11
