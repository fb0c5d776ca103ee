// Ahead of Xlib, whose macros break it.
#include <gtest/gtest.h>

#include "desktop/x11/Symbols.h"

#include "desktop/x11/SymbolTable.h"

#include <X11/keysym.h>

namespace mirelle::x11 {
namespace {

TEST(Symbols, EveryCharacterHasASymbolThatGivesItBack) {
    for (char32_t c = 0x20; c <= 0x10FFFF; ++c) {
        if (c == 0x7F) c = 0xA0; // no controls
        ASSERT_EQ(CharacterOf(SymbolOf(c)), c) << std::uint32_t(c);
    }
}

TEST(Symbols, OlderNamesStandForTheSameCharacters) {
    EXPECT_EQ(Canonical(XK_Cyrillic_zhe), SymbolOf(U'ж'));
    EXPECT_EQ(Canonical(XK_Greek_OMEGA), SymbolOf(U'Ω'));
    EXPECT_EQ(Canonical(XK_EuroSign), SymbolOf(U'€'));
    EXPECT_EQ(Canonical(XK_lstroke), SymbolOf(U'ł'));
    EXPECT_EQ(Canonical(XK_hebrew_shin), SymbolOf(U'ש'));
    EXPECT_EQ(Canonical(XK_eacute), SymbolOf(U'é'));
}

TEST(Symbols, KeysThatTypeNoCharacterStayWhatTheyAre) {
    for (const KeySym symbol : {XK_Return, XK_Left, XK_F1, XK_dead_acute, XK_Shift_L, XK_KP_1, XK_Escape}) {
        EXPECT_EQ(CharacterOf(symbol), std::nullopt) << symbol;
        EXPECT_EQ(Canonical(symbol), symbol);
    }
}

TEST(Symbols, TheTableIsInOrderAndItsRunsDoNotOverlap) {
    KeySym next = 0x100;
    for (const NamedSymbols& run : kNamedSymbols) {
        EXPECT_GE(run.symbol, next);
        next = KeySym(run.symbol) + run.count;
    }
}

TEST(Symbols, FunctionKeysAreInTheirOrder) {
    EXPECT_EQ(SymbolOf(Key::F1), KeySym(XK_F1));
    EXPECT_EQ(SymbolOf(Key::F16), KeySym(XK_F16));
    EXPECT_EQ(SymbolOf(Key::PageDown), KeySym(XK_Page_Down));
}

} // namespace
} // namespace mirelle::x11
