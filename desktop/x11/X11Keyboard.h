// The one key that long handlers look at, on an X desktop.
#pragma once

#include "forms/ports/Time.h"

#include <memory>

namespace mirelle {

class X11Keyboard : public Keyboard {
public:
    // Watches the keyboards of the display that DISPLAY names; where there is none, Escape never goes down.
    X11Keyboard();
    ~X11Keyboard() override;

    bool EscapeWentDown() override;

private:
    struct Watch;
    std::unique_ptr<Watch> watch_;
};

} // namespace mirelle
