#include "desktop/x11/KeyFeed.h"

#include <X11/extensions/XTest.h>
#include <X11/XKBlib.h>

namespace mirelle::x11 {
namespace {

// So many requests of 36 bytes stay well below Xlib's buffer of 16 KB, which would otherwise be emptied
// between a press and its release. The pause for the answer also keeps us from running far ahead.
constexpr int kMostWaiting = 320;

} // namespace

KeyFeed::KeyFeed(const Connection& connection, const Layout& layout)
    : connection_(connection), layout_(layout), group_(layout.ActiveGroup()) {
    connection_.Sync();
}

KeyFeed::~KeyFeed() {
    LetGo(held_);
    connection_.Sync();
}

void KeyFeed::LetGo(unsigned modifiers) {
    for (int modifier = 0; modifier < kRealModifiers; ++modifier) {
        if ((held_ & modifiers & 1U << unsigned(modifier)) == 0) continue;
        Send(heldKeys_[std::size_t(modifier)], false);
        held_ &= ~(1U << unsigned(modifier));
    }
}

void KeyFeed::Hold(unsigned modifiers) {
    for (int modifier = 0; modifier < kRealModifiers; ++modifier) {
        const unsigned bit = 1U << unsigned(modifier);
        const KeyCode code = layout_.KeyOf(modifier, group_);
        if ((modifiers & ~held_ & bit) == 0 || code == 0) continue;
        Send(code, true);
        heldKeys_[std::size_t(modifier)] = code;
        held_ |= bit;
    }
}

void KeyFeed::UseGroup(int group) {
    if (group == group_) return;
    LetGo(held_);
    XkbLockGroup(connection_.Server(), XkbUseCoreKbd, unsigned(group));
    group_ = group;
    ++waiting_;
}

void KeyFeed::Tap(KeyCode code) {
    Send(code, true);
    Send(code, false);
    if (waiting_ < kMostWaiting) return;
    connection_.Sync();
    waiting_ = 0;
}

void KeyFeed::Send(KeyCode code, bool press) {
    XTestFakeKeyEvent(connection_.Server(), code, press ? True : False, 0);
    ++waiting_;
}

} // namespace mirelle::x11
