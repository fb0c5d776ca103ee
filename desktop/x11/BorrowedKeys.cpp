#include "desktop/x11/BorrowedKeys.h"

#include <algorithm>
#include <functional>

namespace mirelle::x11 {
namespace {

// Codes in the order in which they are lent: neighbours first, as a change covers everything from its first
// key to its last.
std::vector<KeyCode> LongestRunsFirst(const std::vector<KeyCode>& codes) {
    std::vector<std::vector<KeyCode>> runs;
    for (const KeyCode code : codes) {
        if (runs.empty() || runs.back().back() + 1 != code) runs.emplace_back();
        runs.back().push_back(code);
    }
    std::ranges::stable_sort(runs, std::greater(), &std::vector<KeyCode>::size);
    std::vector<KeyCode> ordered;
    for (const auto& run : runs)
        ordered.insert(ordered.end(), run.begin(), run.end());
    return ordered;
}

} // namespace

// One change of the keyboard's mapping. The server hears of it at the end.
class BorrowedKeys::Change {
public:
    explicit Change(const Connection& connection)
        : connection_(connection),
          xkb_(XkbGetMap(connection.Server(), XkbKeyTypesMask | XkbKeySymsMask, XkbUseCoreKbd)) {}
    ~Change() {
        if (changes_.changed != 0) XkbChangeMap(connection_.Server(), xkb_, &changes_);
        if (xkb_ != nullptr) XkbFreeKeyboard(xkb_, XkbAllComponentsMask, True);
        connection_.Sync();
    }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

    bool IsPossible() const { return xkb_ != nullptr; }

    Given Of(KeyCode code) const {
        const XkbSymMapRec& map = xkb_->map->key_sym_map[code];
        Given given{XkbKeyNumGroups(xkb_, code), map.group_info, {}, {}};
        std::ranges::copy(map.kt_index, given.types.begin());
        const KeySym* symbols = XkbKeySymsPtr(xkb_, code);
        given.symbols.assign(symbols, symbols + std::ptrdiff_t{XkbKeyNumSyms(xkb_, code)});
        return given;
    }

    // The key gives one symbol, whatever the modifiers and the group are.
    void Set(KeyCode code, KeySym symbol) { Set(code, Given{1, 1, {XkbOneLevelIndex}, {symbol}}); }

    void Set(KeyCode code, Given given) {
        if (XkbChangeTypesOfKey(xkb_, code, given.groups, XkbAllGroupsMask, given.types.data(), nullptr) !=
            Success)
            return;
        xkb_->map->key_sym_map[code].group_info = given.groupInfo;
        if (given.symbols.size() == std::size_t(XkbKeyNumSyms(xkb_, code)))
            std::ranges::copy(given.symbols, XkbKeySymsPtr(xkb_, code));
        Cover(code);
    }

private:
    void Cover(KeyCode code) {
        const bool first = changes_.changed == 0;
        const int begin = first ? code : std::min<int>(changes_.first_key_sym, code);
        const int end = first ? code + 1 : std::max(changes_.first_key_sym + changes_.num_key_syms, code + 1);
        changes_.changed = XkbKeySymsMask;
        changes_.first_key_sym = KeyCode(begin);
        changes_.num_key_syms = static_cast<unsigned char>(end - begin);
    }

    const Connection& connection_;
    XkbDescPtr xkb_;
    XkbMapChangesRec changes_{};
};

std::size_t BorrowedKeys::Lend(std::span<const KeySym> symbols, Layout& layout) {
    std::vector<KeyCode> free = LongestRunsFirst(layout.EmptyKeys());
    if (free.empty()) free = LongestRunsFirst(layout.VendorKeys());
    const std::size_t count = std::min(symbols.size(), free.size());
    if (count == 0) return 0;
    Change change(connection_);
    if (!change.IsPossible()) return 0;
    for (std::size_t i = 0; i < count; ++i) {
        lent_.push_back({free[i], symbols[i], change.Of(free[i])});
        change.Set(free[i], symbols[i]);
        layout.Add(symbols[i], free[i]);
    }
    return count;
}

void BorrowedKeys::Withdraw(Layout& layout) const {
    for (const Lent& lent : lent_)
        layout.Remove(lent.symbol);
}

std::size_t BorrowedKeys::LendAgain(std::span<const KeySym> symbols, Layout& layout) {
    const std::size_t count = std::min(symbols.size(), lent_.size());
    Change change(connection_);
    if (!change.IsPossible()) return 0;
    for (std::size_t i = 0; i < count; ++i) {
        lent_[i].symbol = symbols[i];
        change.Set(lent_[i].code, symbols[i]);
        layout.Add(symbols[i], lent_[i].code);
    }
    return count;
}

void BorrowedKeys::GiveBack() {
    if (lent_.empty()) return;
    Change change(connection_);
    if (!change.IsPossible()) return;
    for (Lent& lent : lent_)
        if (change.Of(lent.code).symbols == std::vector{lent.symbol})
            change.Set(lent.code, std::move(lent.before));
    lent_.clear();
}

} // namespace mirelle::x11
