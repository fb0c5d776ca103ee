// The program's own process.
#pragma once

#include "forms/ports/Process.h"

namespace mirelle {

class QtProcess : public Process {
public:
    // Nothing is saved and no destructor runs: whatever handler is running ends here.
    [[noreturn]] void End() override;
};

} // namespace mirelle
