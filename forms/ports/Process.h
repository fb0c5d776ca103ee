// Port: the program's own process.
#pragma once

namespace mirelle {

class Process {
public:
    virtual ~Process() = default;

    // Ends the program at once: nothing is saved, no handler goes on. A stand-in may throw something that is
    // no RunTimeError to leave the running handlers.
    [[noreturn]] virtual void End() = 0;
};

} // namespace mirelle
