#include "desktop/x11/X11Keyboard.h"

#include "desktop/x11/EscapeWatch.h"

namespace mirelle {

struct X11Keyboard::Watch {
    explicit Watch(std::unique_ptr<x11::Connection> connection) : escape(std::move(connection)) {}

    x11::EscapeWatch escape;
};

X11Keyboard::X11Keyboard() {
    if (std::unique_ptr<x11::Connection> connection = x11::Connection::Open())
        watch_ = std::make_unique<Watch>(std::move(connection));
}

X11Keyboard::~X11Keyboard() = default;

bool X11Keyboard::EscapeWentDown() {
    return watch_ != nullptr && watch_->escape.WentDown();
}

} // namespace mirelle
