// The program's own process, on Windows.
#pragma once

#include "forms/ports/Process.h"

namespace mirelle {

class WindowsProcess : public Process {
public:
    // Nothing is saved and no destructor runs. What the program put on the clipboard stays there.
    [[noreturn]] void End() override;
};

} // namespace mirelle
