// The one key that long handlers look at, on a Windows desktop.
#pragma once

#include "forms/ports/Time.h"

namespace mirelle {

class WindowsKeyboard : public Keyboard {
public:
    // Whatever was pressed before it was made does not count.
    WindowsKeyboard();

    bool EscapeWentDown() override;

private:
    bool wasDown_ = false; // at the last look
};

} // namespace mirelle
