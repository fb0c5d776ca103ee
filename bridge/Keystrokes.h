// The keystroke language: what a text that goes to SendKeys makes a keyboard do.
//
// This is the interpreter alone: it turns a text into strokes and knows nothing of layouts, key codes or
// windows. The players in desktop/ carry the strokes out.
//
//   +  ^  %          Shift, Ctrl, Alt for the next key, or for the group that follows
//   ( )              a group: its keys share the modifiers ahead of it, which stay down throughout. Groups
//   nest ~                Enter {NAME}           a key by its name, without regard to case: BACKSPACE BS BKSP
//   BREAK CAPSLOCK DELETE DEL
//                    DOWN END ENTER ESC HELP HOME INSERT INS LEFT NUMLOCK PGDN PGUP PRTSC RIGHT SCROLLLOCK
//                    TAB UP F1 to F16
//   {c}              the character c itself, whatever it means outside braces: {+}, {{}, {}}, {(}
//   {NAME n} {c n}   that key n times; one blank or more ahead of the number
//   anything else    the character itself, [ and ] among them
//
// A control character presses the key that gives it on a keyboard: 8 Backspace, 9 Tab, 10 Ctrl+Enter,
// 13 Enter, 27 Escape, 127 Ctrl+Backspace. No single key gives the others, so a text that holds one is
// not well formed.
//
// A modifier written twice counts once. One that no key follows (at the end of the text or of its group)
// does nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace mirelle {

enum class Key : std::uint8_t {
    Character, // the key, or keys, that give KeyStroke::character
    Backspace,
    Break,
    CapsLock,
    Delete,
    Down,
    End,
    Enter,
    Escape,
    Help,
    Home,
    Insert,
    Left,
    NumLock,
    PageDown,
    PageUp,
    PrintScreen,
    Right,
    ScrollLock,
    Tab,
    Up,
    F1,
    F2,
    F3,
    F4,
    F5,
    F6,
    F7,
    F8,
    F9,
    F10,
    F11,
    F12,
    F13,
    F14,
    F15,
    F16,
};

// A set of modifier keys, one bit each.
using Modifiers = std::uint8_t;
inline constexpr Modifiers kNoModifiers = 0;
inline constexpr Modifiers kShift = 1;
inline constexpr Modifiers kCtrl = 2;
inline constexpr Modifiers kAlt = 4;

// One press and release of a key while some modifiers are down.
struct KeyStroke {
    Key key = Key::Character;
    // The character to type where key is Key::Character, else 0. Never a control character or a surrogate.
    char32_t character = 0;
    // What the text asks to be down. What a character needs besides on some layout is the player's to add.
    Modifiers modifiers = kNoModifiers;
    // Those of `modifiers` that have not been let go since the stroke before, because one group holds both.
    Modifiers kept = kNoModifiers;

    friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

// The greatest number that may follow a key's name, and the most strokes that one text may come to: both
// bound what a few characters can set off.
inline constexpr int kMaxKeyCount = 32767;
inline constexpr std::size_t kMaxKeyStrokes = 1'000'000;

// The strokes of a text in UTF-8, in order. Each byte that belongs to no well-formed character counts as
// U+FFFD.
//
// Raises error 5 where the text is not well formed: a brace or a parenthesis without its partner, a name
// or a count that is none, a control character without a key, or more strokes than kMaxKeyStrokes.
std::vector<KeyStroke> InterpretKeystrokes(std::string_view text);

} // namespace mirelle
