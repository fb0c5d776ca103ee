// What the keyboards themselves do, whichever window has the focus and whatever the server makes of it.
#pragma once

#include "desktop/x11/Connection.h"

#include <optional>

namespace mirelle::x11 {

struct RawKey {
    int device = 0;
    KeyCode code = 0;
    bool pressed = false; // else released
};

class RawKeys {
public:
    // Where the server lacks XInput 2.1 nothing ever comes.
    explicit RawKeys(const Connection& connection);

    // A keyboard's number, or kMasterKeyboards for all keys that reach windows.
    static constexpr int kMasterKeyboards = 1;
    void Watch(int device);
    void Ignore(int device);
    // What an event of the connection tells; nothing where it is about something else.
    std::optional<RawKey> In(XEvent& event) const;

private:
    void Select(int device, bool wanted) const;

    const Connection& connection_;
    int extension_ = 0;
};

} // namespace mirelle::x11
