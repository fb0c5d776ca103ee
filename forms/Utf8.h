// UTF-8 taken apart and put together, character by character. A byte that belongs to no well-formed character
// (stray, cut off, overlong, a surrogate or beyond U+10FFFF) is a character of its own, so that any text can
// be walked and put together again byte for byte.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace mirelle {

struct Utf8Character {
    // The code point; for a malformed byte 0x110000 + the byte, which sorts behind all characters.
    char32_t code = 0;
    // Bytes in UTF-8, 1..4.
    std::size_t bytes = 1;

    bool IsMalformed() const { return code >= 0x110000; }
    // Units in UTF-16; a malformed byte counts as one.
    int Units() const { return bytes == 4 ? 2 : 1; }
};

// The character at the front of a text that is not empty.
Utf8Character FirstCharacter(std::string_view text);

// Appends a code point (or a malformed byte in the form above) to a text.
void AppendCharacter(std::string& text, char32_t code);

} // namespace mirelle
