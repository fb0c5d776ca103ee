// The program's own process, on Windows.
#pragma once

#include "forms/ports/Process.h"

namespace mirelle {

class WindowsClipboard;

class WindowsProcess : public Process {
public:
    explicit WindowsProcess(const WindowsClipboard& clipboard) : clipboard_(clipboard) {}

    // Nothing is saved and no destructor runs. The clipboard is left as it is to be: what was copied out of
    // a text field stays there, and a clearing that waits takes place.
    [[noreturn]] void End() override;

private:
    const WindowsClipboard& clipboard_;
};

} // namespace mirelle
