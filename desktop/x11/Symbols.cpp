#include "desktop/x11/Symbols.h"

#include "desktop/x11/SymbolTable.h"

#include <X11/keysym.h>

#include <algorithm>

namespace mirelle::x11 {
namespace {

// Symbols from here on are a character's number in Unicode plus this.
constexpr KeySym kUnicodeSymbols = 0x1000000;

bool IsLatin1(unsigned long code) {
    return (code >= 0x20 && code <= 0x7E) || (code >= 0xA0 && code <= 0xFF);
}

} // namespace

KeySym SymbolOf(char32_t character) {
    return IsLatin1(character) ? character : kUnicodeSymbols + character;
}

KeySym SymbolOf(Key key) {
    switch (key) {
    case Key::Character:
        return NoSymbol;
    case Key::Backspace:
        return XK_BackSpace;
    case Key::Break:
        return XK_Break;
    case Key::CapsLock:
        return XK_Caps_Lock;
    case Key::Delete:
        return XK_Delete;
    case Key::Down:
        return XK_Down;
    case Key::End:
        return XK_End;
    case Key::Enter:
        return XK_Return;
    case Key::Escape:
        return XK_Escape;
    case Key::Help:
        return XK_Help;
    case Key::Home:
        return XK_Home;
    case Key::Insert:
        return XK_Insert;
    case Key::Left:
        return XK_Left;
    case Key::NumLock:
        return XK_Num_Lock;
    case Key::PageDown:
        return XK_Page_Down;
    case Key::PageUp:
        return XK_Page_Up;
    case Key::PrintScreen:
        return XK_Print;
    case Key::Right:
        return XK_Right;
    case Key::ScrollLock:
        return XK_Scroll_Lock;
    case Key::Tab:
        return XK_Tab;
    case Key::Up:
        return XK_Up;
    default:
        return XK_F1 + (KeySym(key) - KeySym(Key::F1));
    }
}

KeySym SymbolOf(const KeyStroke& stroke) {
    return stroke.key == Key::Character ? SymbolOf(stroke.character) : SymbolOf(stroke.key);
}

std::optional<char32_t> CharacterOf(KeySym symbol) {
    if (IsLatin1(symbol)) return char32_t(symbol);
    if (symbol >= kUnicodeSymbols + 0x100 && symbol <= kUnicodeSymbols + 0x10FFFF)
        return char32_t(symbol - kUnicodeSymbols);
    const auto after = std::ranges::upper_bound(kNamedSymbols, symbol, {}, &NamedSymbols::symbol);
    if (after == std::ranges::begin(kNamedSymbols)) return std::nullopt;
    const NamedSymbols& run = *(after - 1);
    if (symbol >= KeySym(run.symbol) + run.count) return std::nullopt;
    return char32_t(run.character + (symbol - run.symbol));
}

KeySym Canonical(KeySym symbol) {
    const std::optional<char32_t> character = CharacterOf(symbol);
    return character ? SymbolOf(*character) : symbol;
}

} // namespace mirelle::x11
