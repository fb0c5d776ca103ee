// A connection to the X server of our own, apart from the window's, and the errors that come back on it.
//
// Headers that include Xlib stay inside this folder: its macros (None, Bool, Status ...) break other code.
// What the window includes is X11Console.h and X11Keyboard.h.
#pragma once

#include <X11/Xlib.h>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace mirelle::x11 {

class Connection {
public:
    // To the server that DISPLAY names; nothing where there is none. When the server goes, the program ends.
    static std::unique_ptr<Connection> Open();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    Display* Server() const { return display_; }
    Window Root() const { return DefaultRootWindow(display_); }
    Atom Named(const char* name) const { return XInternAtom(display_, name, False); }
    // Returns when the server has carried out everything that was asked of it.
    void Sync() const { XSync(display_, False); }
    // The next event that has arrived; nothing, at once, where none has.
    std::optional<XEvent> NextEvent() const;

private:
    explicit Connection(Display* display) : display_(display) {}

    Display* display_;
};

// While one lives, the errors of its connection are noted here instead of ending the program: windows of
// others may vanish at any moment. Errors of other connections go to the handler that was there before.
class ErrorTrap {
public:
    explicit ErrorTrap(const Connection& connection);
    ~ErrorTrap();
    ErrorTrap(const ErrorTrap&) = delete;
    ErrorTrap& operator=(const ErrorTrap&) = delete;

private:
    static int Handle(Display* display, XErrorEvent* event);

    const Connection& connection_;
    ErrorTrap* outer_;
};

// A window's property of 32-bit values; empty where the window has none of that name and type.
std::vector<unsigned long> NumbersOf(const Connection& connection, Window window, const char* property,
                                     Atom type);
// A window's title in UTF-8: its _NET_WM_NAME, else its WM_NAME, else empty.
std::string TitleOf(const Connection& connection, Window window);

// Sends the window manager, or whoever watches the root window, a message about a window.
void TellRoot(const Connection& connection, Window about, const char* message,
              const std::array<long, 5>& values);

} // namespace mirelle::x11
