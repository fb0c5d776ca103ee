// The keyboard's layout as it stands now: which key, under which modifiers and in which layout group, gives a
// symbol.
#pragma once

#include "desktop/x11/Connection.h"

#include <X11/Xlib.h>

#include <array>
#include <optional>
#include <unordered_map>
#include <vector>

namespace mirelle::x11 {

// Groups are the layouts that a user switches between, 0..3.
inline constexpr int kGroups = 4;
// The real modifiers: Shift, Lock, Control, Mod1 ... Mod5. A set of them is a mask of these bits.
inline constexpr int kRealModifiers = 8;

// Where a symbol lies.
struct KeyPosition {
    KeyCode code = 0;
    int group = 0;
    unsigned modifiers = 0;
};

class Layout {
public:
    // Asks the server. Later changes of the layout are not seen.
    explicit Layout(const Connection& connection);

    // The group that is in force.
    int ActiveGroup() const { return activeGroup_; }
    // The active group comes first, then the fewest modifiers. Only positions whose modifiers have keys
    // count.
    std::optional<KeyPosition> Find(KeySym symbol) const;
    // The key that holds a modifier down while a group is in force; 0 where there is none. Keys that lock do
    // not count.
    KeyCode KeyOf(int modifier, int group) const { return modifierKeys_[group][modifier]; }
    // Keys that give nothing at all, then keys that give nothing but a symbol of a vendor's (media keys and
    // the like). No modifiers among them.
    const std::vector<KeyCode>& EmptyKeys() const { return emptyKeys_; }
    const std::vector<KeyCode>& VendorKeys() const { return vendorKeys_; }

    // Note that a key now gives a symbol in every group, with or without modifiers, and that one has no key
    // any more.
    void Add(KeySym symbol, KeyCode code) { positions_[symbol] = {code, activeGroup_, 0}; }
    void Remove(KeySym symbol) { positions_.erase(symbol); }

private:
    struct Map;
    void FindModifierKeys(const Map& map);
    void FindFreeKeys(const Map& map);
    void FindSymbols(const Map& map, int group);
    void AddPositions(const Map& map, int code, int group);
    bool CanHold(unsigned modifiers, int group) const;

    int activeGroup_ = 0;
    std::array<std::array<KeyCode, kRealModifiers>, kGroups> modifierKeys_{};
    std::vector<KeyCode> emptyKeys_;
    std::vector<KeyCode> vendorKeys_;
    std::unordered_map<KeySym, KeyPosition> positions_;
};

} // namespace mirelle::x11
