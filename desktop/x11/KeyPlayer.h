// Types key strokes into the window that has the focus, as a keyboard would, through the server's XTEST.
#pragma once

#include "bridge/Keystrokes.h"
#include "desktop/x11/BorrowedKeys.h"
#include "desktop/x11/Connection.h"
#include "desktop/x11/Layout.h"

#include <span>

namespace mirelle::x11 {

class KeyPlayer {
public:
    explicit KeyPlayer(const Connection& connection) : connection_(connection), borrowed_(connection) {}

    // Returns when the server has taken all strokes; the window's program may still be reading. Characters
    // that the layout lacks are typed through borrowed keys, which stay borrowed for the texts that follow.
    // Raises error 5 where a character is lacking and no key at all can be borrowed.
    void Play(std::span<const KeyStroke> strokes);

    // Gives the borrowed keys back, when the window that got the last strokes has read them. A window of this
    // process can't be waited for: then they stay borrowed until the next time.
    void GiveBack();

private:
    void PlayText(std::span<const KeyStroke> strokes);
    void PlayLockKeys(std::span<const KeyStroke> strokes);
    void TapAll(std::span<const KeyStroke> strokes, const Layout& layout);

    const Connection& connection_;
    BorrowedKeys borrowed_;
    Window receiver_ = None; // of the last strokes
};

} // namespace mirelle::x11
