#include "forms/Utf8.h"

#include <array>

namespace mirelle {
namespace {

constexpr char32_t kMalformed = 0x110000;

// The lead bytes of the Unicode standard, table 3-7, by the length of the character that they begin.
struct Lead {
    unsigned char mask;
    unsigned char pattern;
    char32_t least; // anything below is overlong
};
constexpr std::array kLeads = {
    Lead{0xE0, 0xC0, 0x80},
    Lead{0xF0, 0xE0, 0x800},
    Lead{0xF8, 0xF0, 0x10000},
};

bool IsScalar(char32_t code) {
    return code < kMalformed && (code < 0xD800 || code > 0xDFFF);
}

} // namespace

Utf8Character FirstCharacter(std::string_view text) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (byte(0) < 0x80) return {byte(0), 1};
    const Utf8Character malformed{kMalformed + byte(0), 1};

    for (std::size_t more = 1; more <= kLeads.size(); ++more) {
        const Lead& lead = kLeads[more - 1];
        if ((byte(0) & lead.mask) != lead.pattern) continue;
        if (text.size() <= more) return malformed;
        char32_t code = byte(0) & static_cast<unsigned char>(~lead.mask);
        for (std::size_t i = 1; i <= more; ++i) {
            if ((byte(i) & 0xC0) != 0x80) return malformed;
            code = (code << 6) | (byte(i) & 0x3F);
        }
        return code >= lead.least && IsScalar(code) ? Utf8Character{code, more + 1} : malformed;
    }
    return malformed;
}

void AppendCharacter(std::string& text, char32_t code) {
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto appendRest = [&](int shift) { append(0x80 | ((code >> shift) & 0x3F)); };
    if (code >= kMalformed) {
        append(code - kMalformed);
    } else if (code < 0x80) {
        append(code);
    } else if (code < 0x800) {
        append(0xC0 | (code >> 6));
        appendRest(0);
    } else if (code < 0x10000) {
        append(0xE0 | (code >> 12));
        appendRest(6);
        appendRest(0);
    } else {
        append(0xF0 | (code >> 18));
        appendRest(12);
        appendRest(6);
        appendRest(0);
    }
}

} // namespace mirelle
