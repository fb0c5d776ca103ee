// The keys that someone holds down while we type. They are let go first, as a held Shift would change what
// arrives and a key that is down can't be pressed; afterwards the modifiers among them are down again, if
// they are still held.
#pragma once

#include "desktop/x11/Connection.h"
#include "desktop/x11/RawKeys.h"

#include <memory>
#include <vector>

namespace mirelle::x11 {

// Lets the held keys go when it is made and restores them when it ends.
//
// A key is let go on behalf of the very keyboard that holds it, so that this keyboard and the server go on
// agreeing on what is down. Whether the user has let go in the meantime is told by the raw events of that
// keyboard, which come whatever we pretend.
class HeldKeys {
public:
    explicit HeldKeys(const Connection& connection);
    ~HeldKeys();
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    class Keyboard;
    struct Held {
        const Keyboard* keyboard = nullptr;
        KeyCode code = 0;
    };

    void Find();
    void ForgetReleased();

    const Connection& connection_;
    RawKeys raw_;
    std::vector<std::unique_ptr<Keyboard>> keyboards_;
    std::vector<Held> modifiers_; // the held keys that come back
};

} // namespace mirelle::x11
