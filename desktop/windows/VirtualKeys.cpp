#include "desktop/windows/VirtualKeys.h"

#include <algorithm>
#include <array>

namespace mirelle::windows {
namespace {

struct NamedRow {
    Key key;
    WORD code;
    bool extended;
};

constexpr std::array kNamed = {
    NamedRow{Key::Backspace, VK_BACK, false},   NamedRow{Key::Break, VK_CANCEL, true},
    NamedRow{Key::CapsLock, VK_CAPITAL, false}, NamedRow{Key::Delete, VK_DELETE, true},
    NamedRow{Key::Down, VK_DOWN, true},         NamedRow{Key::End, VK_END, true},
    NamedRow{Key::Enter, VK_RETURN, false},     NamedRow{Key::Escape, VK_ESCAPE, false},
    NamedRow{Key::Help, VK_HELP, false},        NamedRow{Key::Home, VK_HOME, true},
    NamedRow{Key::Insert, VK_INSERT, true},     NamedRow{Key::Left, VK_LEFT, true},
    NamedRow{Key::NumLock, VK_NUMLOCK, true},   NamedRow{Key::PageDown, VK_NEXT, true},
    NamedRow{Key::PageUp, VK_PRIOR, true},      NamedRow{Key::PrintScreen, VK_SNAPSHOT, true},
    NamedRow{Key::Right, VK_RIGHT, true},       NamedRow{Key::ScrollLock, VK_SCROLL, false},
    NamedRow{Key::Tab, VK_TAB, false},          NamedRow{Key::Up, VK_UP, true},
};

// Of VkKeyScanEx: what its second byte says.
constexpr int kScanShift = 1;
constexpr int kScanCtrl = 2;
constexpr int kScanAlt = 4;
constexpr int kScanKnown = kScanShift | kScanCtrl | kScanAlt;

constexpr BYTE kDown = 0x80;
// The state of the thread's keyboard stays what it is (Windows 10; earlier ones take no notice of it).
constexpr UINT kLeaveState = 1U << 2;

// Whether the key, with these modifiers down, gives just this character at once.
bool GivesAlone(wchar_t character, WORD code, Modifiers modifiers, HKL layout) {
    std::array<BYTE, 256> down{};
    if ((modifiers & kShift) != 0) down[VK_SHIFT] = kDown;
    if ((modifiers & kCtrl) != 0) down[VK_CONTROL] = kDown;
    if ((modifiers & kAlt) != 0) down[VK_MENU] = kDown;
    std::array<wchar_t, 8> text{};
    const UINT scan = MapVirtualKeyExW(code, MAPVK_VK_TO_VSC, layout);
    const int count =
        ToUnicodeEx(code, scan, down.data(), text.data(), static_cast<int>(text.size()), kLeaveState, layout);
    if (count < 0)
        ToUnicodeEx(code, scan, down.data(), text.data(), static_cast<int>(text.size()), kLeaveState, layout);
    return count == 1 && text[0] == character;
}

} // namespace

std::optional<VirtualKey> NamedKey(Key key) {
    if (key >= Key::F1 && key <= Key::F16)
        return VirtualKey{static_cast<WORD>(VK_F1 + (static_cast<int>(key) - static_cast<int>(Key::F1))),
                          false};
    const auto row =
        std::find_if(kNamed.begin(), kNamed.end(), [key](const NamedRow& each) { return each.key == key; });
    if (row == kNamed.end()) return std::nullopt;
    return VirtualKey{row->code, row->extended};
}

std::optional<VirtualKey> CharacterKey(char32_t character, HKL layout) {
    if (character > 0xFFFF) return std::nullopt;
    const auto unit = static_cast<wchar_t>(character);
    const SHORT scan = VkKeyScanExW(unit, layout);
    const int state = (scan >> 8) & 0xFF;
    if (scan == -1 || (state & ~kScanKnown) != 0) return std::nullopt;
    VirtualKey key{static_cast<WORD>(scan & 0xFF)};
    key.modifiers =
        static_cast<Modifiers>(((state & kScanShift) != 0 ? kShift : 0) |
                               ((state & kScanCtrl) != 0 ? kCtrl : 0) | ((state & kScanAlt) != 0 ? kAlt : 0));
    if (!GivesAlone(unit, key.code, key.modifiers, layout)) return std::nullopt;
    return key;
}

} // namespace mirelle::windows
