// Port: the screen, and the window's place in the stack of windows.
#pragma once

namespace mirelle {

struct ScreenSize {
    int width = 0; // device pixels
    int height = 0;
};

class Screen {
public:
    virtual ~Screen() = default;

    virtual ScreenSize Size() const = 0;
    // The client area that a maximised window gets.
    virtual ScreenSize MaximisedClientSize() const = 0;
    // SetWindowPos with HWND_TOPMOST or HWND_NOTOPMOST, without moving or sizing. Returns whether it was
    // done.
    virtual bool SetTopMost(bool topmost) = 0;
};

} // namespace mirelle
