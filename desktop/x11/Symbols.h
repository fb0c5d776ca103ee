// Key symbols: the names under which the server knows what is printed on keys.
#pragma once

#include "bridge/Keystrokes.h"

#include <X11/X.h>

#include <optional>

namespace mirelle::x11 {

// The symbol that stands for a character, one for each.
KeySym SymbolOf(char32_t character);
// The symbol of a named key (not Key::Character).
KeySym SymbolOf(Key key);
KeySym SymbolOf(const KeyStroke& stroke);

// The character that a symbol types; nothing for keys that type none, dead accents and the keypad (whose
// characters depend on Num Lock).
std::optional<char32_t> CharacterOf(KeySym symbol);

// Layouts name many characters by older symbols. This gives the one that SymbolOf gives; a symbol that types
// no character stays.
KeySym Canonical(KeySym symbol);

} // namespace mirelle::x11
