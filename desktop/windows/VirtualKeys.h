// Which key of Windows a key stroke asks for.
#pragma once

#include "bridge/Keystrokes.h"
#include "desktop/windows/System.h"

#include <cstdint>
#include <optional>

namespace mirelle::windows {

struct VirtualKey {
    WORD code = 0;
    // Of the keys beside the letters, not of those on the number pad: these would type numbers.
    bool extended = false;
    // What the layout wants to be down for the character.
    Modifiers modifiers = kNoModifiers;
};

// A named key. Nothing for Key::Character.
std::optional<VirtualKey> NamedKey(Key key);

// The key that gives the character on this layout, right away and by itself. Nothing where the layout lacks
// it, and where its key is a dead one, which would wait for the next.
std::optional<VirtualKey> CharacterKey(char32_t character, HKL layout);

} // namespace mirelle::windows
