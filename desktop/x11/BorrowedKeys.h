// Key codes that the layout leaves free, borrowed for symbols that it lacks.
//
// Every change of the keyboard's mapping makes all programs on the desktop read it anew, so symbols are lent
// codes all at once, by one request. And a program looks up what a key means only when it comes to read it,
// so a code keeps its symbol until whoever gets the keys has read them.
#pragma once

#include "desktop/x11/Connection.h"
#include "desktop/x11/Layout.h"

#include <X11/XKBlib.h>

#include <array>
#include <span>
#include <vector>

namespace mirelle::x11 {

class BorrowedKeys {
public:
    explicit BorrowedKeys(const Connection& connection) : connection_(connection) {}
    ~BorrowedKeys() { GiveBack(); }
    BorrowedKeys(const BorrowedKeys&) = delete;
    BorrowedKeys& operator=(const BorrowedKeys&) = delete;

    bool Any() const { return !lent_.empty(); }
    // Gives each symbol a key of its own among those that `layout` has free, and notes it there. Returns how
    // many of the symbols, from the first, found one.
    std::size_t Lend(std::span<const KeySym> symbols, Layout& layout);
    // The same with the keys that are borrowed already. `Withdraw` first notes in the layout that what they
    // give now counts no more.
    void Withdraw(Layout& layout) const;
    std::size_t LendAgain(std::span<const KeySym> symbols, Layout& layout);
    // All keys are as they were, but for those that someone else has changed in the meantime.
    void GiveBack();

private:
    // What a key gave before.
    struct Given {
        int groups = 0;
        unsigned char groupInfo = 0;
        std::array<int, XkbNumKbdGroups> types{};
        std::vector<KeySym> symbols;
    };
    struct Lent {
        KeyCode code = 0;
        KeySym symbol = NoSymbol;
        Given before;
    };
    class Change;

    const Connection& connection_;
    std::vector<Lent> lent_;
};

} // namespace mirelle::x11
