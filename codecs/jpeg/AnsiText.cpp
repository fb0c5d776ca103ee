#include "codecs/jpeg/AnsiText.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace mirelle::jpeg {
namespace {

// What the bytes 0x80 to 0x9F stand for; the others are the character's own number. Five of them stand for
// the control character of their number.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr char32_t kNoCharacter = 0xFFFD;

struct Decoded {
    char32_t character = kNoCharacter;
    std::size_t bytes = 1;
};

Decoded DecodeFirst(std::string_view text) {
    const auto byteAt = [text](std::size_t i) -> char32_t {
        return i < text.size() ? static_cast<std::uint8_t>(text[i]) : 0;
    };
    struct Form {
        char32_t lead, mask, smallest;
        std::size_t bytes;
    };
    constexpr std::array kForms = {
        Form{0x00, 0x80, 0, 1},
        Form{0xC0, 0xE0, 0x80, 2},
        Form{0xE0, 0xF0, 0x800, 3},
        Form{0xF0, 0xF8, 0x10000, 4},
    };
    const char32_t lead = byteAt(0);
    const auto form = std::find_if(kForms.begin(), kForms.end(),
                                   [lead](const Form& f) { return (lead & f.mask) == f.lead; });
    if (form == kForms.end()) return {};
    char32_t character = lead & ~form->mask & 0xFF;
    for (std::size_t i = 1; i < form->bytes; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80) return {};
        character = character << 6 | (byteAt(i) & 0x3F);
    }
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (character < form->smallest || character > 0x10FFFF || surrogate) return {};
    return {character, form->bytes};
}

char AnsiByte(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    const auto place = std::find(kUpperControls.begin(), kUpperControls.end(), character);
    return place == kUpperControls.end() ? '?' : static_cast<char>(0x80 + (place - kUpperControls.begin()));
}

} // namespace

std::string AnsiBytes(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const Decoded first = DecodeFirst(text);
        bytes.append(first.character > 0xFFFF ? 2 : 1, AnsiByte(first.character));
        text.remove_prefix(first.bytes);
    }
    return bytes;
}

} // namespace mirelle::jpeg
