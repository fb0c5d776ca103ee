#include "desktop/x11/KeyPlayer.h"

#include "desktop/x11/HeldKeys.h"
#include "desktop/x11/KeyFeed.h"
#include "desktop/x11/LockedState.h"
#include "desktop/x11/Receiver.h"
#include "desktop/x11/Symbols.h"
#include "forms/RunTimeError.h"

#include <X11/extensions/XTest.h>

#include <algorithm>

namespace mirelle::x11 {
namespace {

bool IsLockKey(const KeyStroke& stroke) {
    return stroke.key == Key::CapsLock || stroke.key == Key::NumLock || stroke.key == Key::ScrollLock;
}

unsigned MaskOf(Modifiers modifiers) {
    return ((modifiers & kShift) != 0 ? unsigned(ShiftMask) : 0U) |
           ((modifiers & kCtrl) != 0 ? unsigned(ControlMask) : 0U) |
           ((modifiers & kAlt) != 0 ? unsigned(Mod1Mask) : 0U);
}

// The symbols of the strokes that the layout lacks, each once, in the order of their first use.
std::vector<KeySym> LackingIn(const Layout& layout, std::span<const KeyStroke> strokes) {
    std::vector<KeySym> lacking;
    std::unordered_map<KeySym, bool> seen;
    for (const KeyStroke& stroke : strokes) {
        const KeySym symbol = SymbolOf(stroke);
        if (seen.try_emplace(symbol, true).second && !layout.Find(symbol)) lacking.push_back(symbol);
    }
    return lacking;
}

// The server gives its master keyboard the layout of whichever keyboard spoke last. A release of a key that
// is not down makes ours the last, so that the layout we read is the one that our keys will meet.
void SpeakUp(const Connection& connection) {
    int least = 0;
    int greatest = 0;
    XDisplayKeycodes(connection.Server(), &least, &greatest);
    XTestFakeKeyEvent(connection.Server(), unsigned(greatest), False, 0);
    connection.Sync();
}

} // namespace

void KeyPlayer::Play(std::span<const KeyStroke> strokes) {
    const ErrorTrap trap(connection_);
    const HeldKeys held(connection_);
    SpeakUp(connection_);
    receiver_ = FocusedWindow(connection_);
    while (!strokes.empty()) {
        const bool locks = IsLockKey(strokes.front());
        const auto end = std::ranges::find_if(
            strokes, [locks](const KeyStroke& stroke) { return IsLockKey(stroke) != locks; });
        const auto run = strokes.first(std::size_t(end - strokes.begin()));
        if (locks)
            PlayLockKeys(run);
        else
            PlayText(run);
        strokes = strokes.subspan(run.size());
    }
}

// These are for the locks as the user sees them.
void KeyPlayer::PlayLockKeys(std::span<const KeyStroke> strokes) {
    Layout layout(connection_);
    borrowed_.Lend(LackingIn(layout, strokes), layout);
    TapAll(strokes, layout);
}

void KeyPlayer::PlayText(std::span<const KeyStroke> strokes) {
    const LockedState locks(connection_);
    Layout layout(connection_);
    borrowed_.Lend(LackingIn(layout, strokes), layout);
    while (!strokes.empty()) {
        const auto end = std::ranges::find_if(
            strokes, [&](const KeyStroke& stroke) { return !layout.Find(SymbolOf(stroke)); });
        const auto batch = strokes.first(std::size_t(end - strokes.begin()));
        TapAll(batch, layout);
        strokes = strokes.subspan(batch.size());
        if (strokes.empty()) return;
        // The characters that follow need the keys of those that are typed.
        AwaitReading(connection_, receiver_);
        borrowed_.Withdraw(layout);
        if (borrowed_.LendAgain(LackingIn(layout, strokes), layout) == 0)
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
}

void KeyPlayer::TapAll(std::span<const KeyStroke> strokes, const Layout& layout) {
    KeyFeed feed(connection_, layout);
    unsigned chord = 0;
    for (const KeyStroke& stroke : strokes) {
        const std::optional<KeyPosition> position = layout.Find(SymbolOf(stroke));
        if (!position) continue;
        // A chord is let go before the next one, but for what a group keeps. What is held for a character's
        // sake stays down as long as the characters need it.
        feed.LetGo(chord & ~MaskOf(stroke.kept));
        chord = MaskOf(stroke.modifiers);
        const unsigned needed = chord | position->modifiers;
        feed.LetGo(feed.Held() & ~needed);
        feed.UseGroup(position->group);
        feed.Hold(needed);
        feed.Tap(position->code);
    }
}

void KeyPlayer::GiveBack() {
    if (!borrowed_.Any()) return;
    const ErrorTrap trap(connection_);
    if (AwaitReading(connection_, receiver_) != Reading::Ours) borrowed_.GiveBack();
}

} // namespace mirelle::x11
