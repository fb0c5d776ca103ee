// Types key strokes into the window that has the focus, as a keyboard would, through SendInput.
//
// A character is typed by its own key where the layout of that window has one and Caps Lock is off, and is
// handed over as the character itself where not, so that every character arrives on every layout.
#pragma once

#include "bridge/Keystrokes.h"
#include "desktop/windows/System.h"

#include <span>
#include <vector>

namespace mirelle::windows {

// What goes to the system's queue for the strokes, in order: presses and releases, all keys up at the end.
std::vector<INPUT> InputOf(std::span<const KeyStroke> strokes, HKL layout, bool capsLock);

// The layout that the window with the focus reads keys by.
HKL LayoutOfFocus();

// Lets go of the modifiers and Windows keys that the user holds down, without opening a menu by it.
void ReleaseHeldModifiers();

// Releases held modifiers, then types. Returns when the system has taken all strokes; the window's program
// may still be reading. Raises error 70 where the system refuses, as it does for the window of a program with
// more rights.
void PlayKeys(std::span<const KeyStroke> strokes);

} // namespace mirelle::windows
