#include "desktop/x11/LockedState.h"

#include <X11/XKBlib.h>

namespace mirelle::x11 {
namespace {

constexpr unsigned kAllModifiers = 0xFF;

void Lock(Display* server, unsigned modifiers) {
    XkbLockModifiers(server, XkbUseCoreKbd, kAllModifiers, modifiers);
}

void Latch(Display* server, unsigned modifiers) {
    XkbLatchModifiers(server, XkbUseCoreKbd, kAllModifiers, modifiers);
}

} // namespace

LockedState::LockedState(const Connection& connection) : connection_(connection) {
    XkbStateRec state{};
    if (XkbGetState(connection_.Server(), XkbUseCoreKbd, &state) != Success) return;
    known_ = true;
    lockedModifiers_ = state.locked_mods;
    latchedModifiers_ = state.latched_mods;
    lockedGroup_ = state.locked_group;
    if (lockedModifiers_ != 0) Lock(connection_.Server(), 0);
    if (latchedModifiers_ != 0) Latch(connection_.Server(), 0);
    if (state.latched_group != 0) XkbLatchGroup(connection_.Server(), XkbUseCoreKbd, 0);
}

LockedState::~LockedState() {
    if (!known_) return;
    // The group was moved where a character lies in another layout.
    XkbLockGroup(connection_.Server(), XkbUseCoreKbd, unsigned(lockedGroup_));
    if (lockedModifiers_ != 0) Lock(connection_.Server(), lockedModifiers_);
    if (latchedModifiers_ != 0) Latch(connection_.Server(), latchedModifiers_);
    connection_.Sync();
}

} // namespace mirelle::x11
