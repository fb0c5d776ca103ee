#include "desktop/windows/KeyPlayer.h"

#include "desktop/windows/VirtualKeys.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_map>
#include <utility>

namespace mirelle::windows {
namespace {

// The queue of a window takes some thousands of strokes; beyond that they would be lost.
constexpr std::size_t kAtOnce = 500;
constexpr UINT kLongestReadingMs = 5000;
// A key without a meaning: pressed while Alt or a Windows key goes up, it keeps menus from opening.
constexpr WORD kNoKey = 0xE8;

struct ModifierKey {
    Modifiers modifier;
    WORD code;
};
constexpr std::array kModifierKeys = {
    ModifierKey{kCtrl, VK_CONTROL},
    ModifierKey{kAlt, VK_MENU},
    ModifierKey{kShift, VK_SHIFT},
};

struct HeldKey {
    WORD code;
    bool extended;
};
constexpr std::array kHeld = {
    HeldKey{VK_LSHIFT, false},  HeldKey{VK_RSHIFT, true}, HeldKey{VK_LCONTROL, false},
    HeldKey{VK_RCONTROL, true}, HeldKey{VK_LMENU, false}, HeldKey{VK_RMENU, true},
    HeldKey{VK_LWIN, true},     HeldKey{VK_RWIN, true},
};

INPUT KeyInput(WORD code, WORD scan, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = code;
    input.ki.wScan = scan;
    input.ki.dwFlags = flags;
    return input;
}

INPUT KeyInput(WORD code, bool extended, bool up) {
    const UINT scan = MapVirtualKeyW(code, MAPVK_VK_TO_VSC);
    return KeyInput(code, static_cast<WORD>(scan),
                    (extended ? DWORD(KEYEVENTF_EXTENDEDKEY) : 0) | (up ? DWORD(KEYEVENTF_KEYUP) : 0));
}

class Feed {
public:
    Feed(HKL layout, bool capsLock) : layout_(layout), capsLock_(capsLock) {}

    void Add(const KeyStroke& stroke) {
        // A chord is let go before the next one, but for what a group keeps.
        Hold(static_cast<Modifiers>(held_ & stroke.kept));
        if (stroke.key != Key::Character) {
            if (const std::optional<VirtualKey> key = NamedKey(stroke.key)) Tap(*key, stroke.modifiers);
        } else if (const std::optional<VirtualKey> key = KeyFor(stroke)) {
            Tap(*key, static_cast<Modifiers>(stroke.modifiers | key->modifiers));
        } else {
            Hold(stroke.modifiers);
            AddCharacter(stroke.character);
        }
    }

    std::vector<INPUT> End() {
        Hold(kNoModifiers);
        return std::move(input_);
    }

private:
    // A chord is always of keys. Caps Lock would turn letters round, so that no key can be relied on for
    // text.
    std::optional<VirtualKey> KeyFor(const KeyStroke& stroke) {
        const bool isText = (stroke.modifiers & (kCtrl | kAlt)) == 0;
        if (capsLock_ && isText && stroke.modifiers == kNoModifiers) return std::nullopt;
        const auto [found, isNew] = known_.try_emplace(stroke.character);
        if (isNew) found->second = CharacterKey(stroke.character, layout_);
        return found->second;
    }

    void Hold(Modifiers wanted) {
        for (const ModifierKey& key : kModifierKeys) {
            const bool isHeld = (held_ & key.modifier) != 0;
            const bool isWanted = (wanted & key.modifier) != 0;
            if (isHeld != isWanted) input_.push_back(KeyInput(key.code, false, isHeld));
        }
        held_ = wanted;
    }

    void Tap(const VirtualKey& key, Modifiers modifiers) {
        Hold(modifiers);
        input_.push_back(KeyInput(key.code, key.extended, false));
        input_.push_back(KeyInput(key.code, key.extended, true));
    }

    void AddCharacter(char32_t character) {
        const auto unit = [this](char32_t code) {
            const auto scan = static_cast<WORD>(code);
            input_.push_back(KeyInput(0, scan, KEYEVENTF_UNICODE));
            input_.push_back(KeyInput(0, scan, DWORD(KEYEVENTF_UNICODE) | DWORD(KEYEVENTF_KEYUP)));
        };
        if (character <= 0xFFFF) return unit(character);
        unit(0xD800 + ((character - 0x10000) >> 10));
        unit(0xDC00 + ((character - 0x10000) & 0x3FF));
    }

    HKL layout_;
    bool capsLock_;
    Modifiers held_ = kNoModifiers;
    std::unordered_map<char32_t, std::optional<VirtualKey>> known_;
    std::vector<INPUT> input_;
};

void Send(std::span<INPUT> input) {
    if (SendInput(static_cast<UINT>(input.size()), input.data(), sizeof(INPUT)) != input.size())
        throw RunTimeError(ErrorNumber::PermissionDenied);
}

// Waits until the window's program has come round to its messages, with a limit.
void AwaitReading() {
    if (const HWND window = GetForegroundWindow()) {
        DWORD_PTR result = 0;
        SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kLongestReadingMs, &result);
    }
}

} // namespace

std::vector<INPUT> InputOf(std::span<const KeyStroke> strokes, HKL layout, bool capsLock) {
    Feed feed(layout, capsLock);
    for (const KeyStroke& stroke : strokes)
        feed.Add(stroke);
    return feed.End();
}

HKL LayoutOfFocus() {
    const HWND window = GetForegroundWindow();
    return GetKeyboardLayout(window ? GetWindowThreadProcessId(window, nullptr) : 0);
}

void ReleaseHeldModifiers() {
    std::vector<INPUT> input;
    for (const HeldKey& key : kHeld) {
        if ((GetAsyncKeyState(key.code) & 0x8000) == 0) continue;
        if (input.empty()) {
            input.push_back(KeyInput(kNoKey, false, false));
            input.push_back(KeyInput(kNoKey, false, true));
        }
        input.push_back(KeyInput(key.code, key.extended, true));
    }
    if (!input.empty()) Send(input);
}

void PlayKeys(std::span<const KeyStroke> strokes) {
    ReleaseHeldModifiers();
    const bool capsLock = (GetKeyState(VK_CAPITAL) & 1) != 0;
    std::vector<INPUT> input = InputOf(strokes, LayoutOfFocus(), capsLock);
    std::span<INPUT> rest = input;
    while (!rest.empty()) {
        const std::size_t count = std::min(rest.size(), kAtOnce);
        Send(rest.first(count));
        rest = rest.subspan(count);
        if (!rest.empty()) AwaitReading();
    }
}

} // namespace mirelle::windows
