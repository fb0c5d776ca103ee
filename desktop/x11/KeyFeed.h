// Feeds the server presses and releases, and keeps count of which modifier keys are down.
#pragma once

#include "desktop/x11/Connection.h"
#include "desktop/x11/Layout.h"

#include <array>

namespace mirelle::x11 {

// No press is ever left waiting for its release: both go to the server in one piece, so that however long we
// are held up the server does not begin to repeat a key. All modifiers are up again at the end.
class KeyFeed {
public:
    explicit KeyFeed(const Connection& connection, const Layout& layout);
    ~KeyFeed();
    KeyFeed(const KeyFeed&) = delete;
    KeyFeed& operator=(const KeyFeed&) = delete;

    // Modifiers as masks of real ones. Those that have no key in the layout are left out.
    void LetGo(unsigned modifiers);
    void Hold(unsigned modifiers);
    unsigned Held() const { return held_; }
    // The layout group that the keys that follow are read in. Changes only while no modifier is held.
    void UseGroup(int group);
    void Tap(KeyCode code);

private:
    void Send(KeyCode code, bool press);

    const Connection& connection_;
    const Layout& layout_;
    unsigned held_ = 0;
    std::array<KeyCode, kRealModifiers> heldKeys_{};
    int group_;
    int waiting_ = 0; // requests that the server has not been seen to take
};

} // namespace mirelle::x11
