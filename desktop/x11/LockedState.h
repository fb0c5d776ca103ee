// Caps Lock, Num Lock, the other locks and the sticky modifiers: off while one of these lives, so that they
// change nothing of what is typed, and afterwards as they were.
#pragma once

#include "desktop/x11/Connection.h"

namespace mirelle::x11 {

class LockedState {
public:
    explicit LockedState(const Connection& connection);
    ~LockedState();
    LockedState(const LockedState&) = delete;
    LockedState& operator=(const LockedState&) = delete;

private:
    const Connection& connection_;
    bool known_ = false;
    unsigned lockedModifiers_ = 0;
    unsigned latchedModifiers_ = 0;
    int lockedGroup_ = 0;
};

} // namespace mirelle::x11
