// The program's own process, on Windows.
#pragma once

#include "forms/ports/Process.h"

namespace mirelle {

class WindowsProcess : public Process {
public:
    // Nothing is saved and no destructor runs. What was copied out of a text field stays on the clipboard.
    [[noreturn]] void End() override;
};

} // namespace mirelle
