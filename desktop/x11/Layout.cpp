#include "desktop/x11/Layout.h"

#include "desktop/x11/Symbols.h"

#include <X11/XKBlib.h>

#include <algorithm>
#include <bit>
#include <string_view>

namespace mirelle::x11 {
namespace {

// Codes that layouts fill in for programs and that no keyboard has.
constexpr std::array<std::string_view, 7> kStandIns = {"ALT", "META", "SUPR", "HYPR", "LVL3", "LVL5", "MDSW"};

constexpr KeySym kFirstVendorSymbol = 0x10000000;

constexpr unsigned Bit(int modifier) {
    return 1U << unsigned(modifier);
}

} // namespace

// The server's description of the keyboard, freed at the end.
struct Layout::Map {
    explicit Map(Display* display) : xkb(XkbGetMap(display, XkbAllMapComponentsMask, XkbUseCoreKbd)) {
        if (xkb == nullptr) return;
        XkbGetControls(display, XkbGroupsWrapMask, xkb);
        XkbGetNames(display, XkbKeyNamesMask, xkb);
    }
    ~Map() {
        if (xkb != nullptr) XkbFreeKeyboard(xkb, XkbAllComponentsMask, True);
    }
    Map(const Map&) = delete;
    Map& operator=(const Map&) = delete;

    int Groups() const {
        return std::clamp<int>(xkb->ctrls != nullptr ? xkb->ctrls->num_groups : 1, 1, kGroups);
    }

    // The group of one key that counts while `group` is in force on the keyboard: a key may have fewer.
    int GroupOf(int code, int group) const {
        const int groups = XkbKeyNumGroups(xkb, code);
        if (group < groups || groups == 0) return group;
        const unsigned info = XkbKeyGroupInfo(xkb, code);
        switch (XkbOutOfRangeGroupAction(info)) {
        case XkbClampIntoRange:
            return groups - 1;
        case XkbRedirectIntoRange: {
            const int target = int(XkbOutOfRangeGroupNumber(info));
            return target < groups ? target : 0;
        }
        default:
            return group % groups;
        }
    }

    // The modifiers that a key holds down in a group, 0 for one that does something else.
    unsigned HeldBy(int code, int group) const {
        if (XkbKeyNumGroups(xkb, code) == 0 || !XkbKeyHasActions(xkb, code)) return 0;
        const XkbAction* action = XkbKeyActionEntry(xkb, code, 0, GroupOf(code, group));
        if (action == nullptr || action->type != XkbSA_SetMods) return 0;
        return (action->mods.flags & XkbSA_UseModMapMods) != 0 ? xkb->map->modmap[code] : action->mods.mask;
    }

    bool IsStandIn(int code) const {
        if (xkb->names == nullptr || xkb->names->keys == nullptr) return false;
        const char* name = xkb->names->keys[code].name;
        const std::string_view whole(name, XkbKeyNameLength);
        const std::string_view trimmed = whole.substr(0, std::min(whole.find('\0'), whole.size()));
        return std::ranges::find(kStandIns, trimmed) != kStandIns.end();
    }

    XkbDescPtr xkb;
};

Layout::Layout(const Connection& connection) {
    const Map map(connection.Server());
    XkbStateRec state{};
    if (map.xkb == nullptr || XkbGetState(connection.Server(), XkbUseCoreKbd, &state) != Success) return;
    activeGroup_ = std::min<int>(state.group, kGroups - 1);
    FindModifierKeys(map);
    FindFreeKeys(map);
    FindSymbols(map, activeGroup_);
    for (int group = 0; group < map.Groups(); ++group)
        if (group != activeGroup_) FindSymbols(map, group);
}

std::optional<KeyPosition> Layout::Find(KeySym symbol) const {
    const auto found = positions_.find(symbol);
    return found != positions_.end() ? std::optional(found->second) : std::nullopt;
}

void Layout::FindModifierKeys(const Map& map) {
    for (int group = 0; group < kGroups; ++group) {
        for (int code = map.xkb->min_key_code; code <= map.xkb->max_key_code; ++code) {
            const unsigned held = map.HeldBy(code, group);
            if (!std::has_single_bit(held)) continue;
            KeyCode& key = modifierKeys_[group][std::countr_zero(held)];
            if (key == 0 || (map.IsStandIn(key) && !map.IsStandIn(code))) key = KeyCode(code);
        }
    }
}

void Layout::FindFreeKeys(const Map& map) {
    for (int code = map.xkb->min_key_code; code <= map.xkb->max_key_code; ++code) {
        if (map.xkb->map->modmap[code] != 0) continue;
        const KeySym* symbols = XkbKeySymsPtr(map.xkb, code);
        const int count = XkbKeyNumSyms(map.xkb, code);
        if (std::all_of(symbols, symbols + count, [](KeySym symbol) { return symbol == NoSymbol; }))
            emptyKeys_.push_back(KeyCode(code));
        else if (count == 1 && symbols[0] >= kFirstVendorSymbol)
            vendorKeys_.push_back(KeyCode(code));
    }
}

void Layout::FindSymbols(const Map& map, int group) {
    for (int code = map.xkb->min_key_code; code <= map.xkb->max_key_code; ++code)
        if (XkbKeyNumGroups(map.xkb, code) > 0) AddPositions(map, code, group);
}

void Layout::AddPositions(const Map& map, int code, int group) {
    const int keyGroup = map.GroupOf(code, group);
    const XkbKeyTypeRec& type = *XkbKeyKeyType(map.xkb, code, keyGroup);
    const auto add = [&](int level, unsigned modifiers) {
        const KeySym symbol = Canonical(XkbKeySymEntry(map.xkb, code, level, keyGroup));
        if (symbol == NoSymbol || !CanHold(modifiers, group)) return;
        const auto [place, isNew] =
            positions_.try_emplace(symbol, KeyPosition{KeyCode(code), group, modifiers});
        KeyPosition& known = place->second;
        if (!isNew && known.group == group && std::popcount(modifiers) < std::popcount(known.modifiers))
            known = {KeyCode(code), group, modifiers};
    };
    // What no entry of the type tells is level 0.
    add(0, 0);
    for (int i = 0; i < type.map_count; ++i)
        if (type.map[i].active != 0) add(type.map[i].level, type.map[i].mods.mask);
}

bool Layout::CanHold(unsigned modifiers, int group) const {
    for (int modifier = 0; modifier < kRealModifiers; ++modifier)
        if ((modifiers & Bit(modifier)) != 0 && modifierKeys_[group][modifier] == 0) return false;
    return true;
}

} // namespace mirelle::x11
