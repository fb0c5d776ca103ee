#include "forms/Utf8.h"

#include <gtest/gtest.h>
#include <string>

namespace mirelle {
namespace {

// The bytes of a character, written down from the definition rather than taken from the code under test.
std::string Encoded(char32_t code) {
    const auto byte = [](char32_t value) { return static_cast<char>(static_cast<unsigned char>(value)); };
    if (code < 0x80) return {byte(code)};
    if (code < 0x800) return {byte(0xC0 + code / 64), byte(0x80 + code % 64)};
    if (code < 0x10000)
        return {byte(0xE0 + code / 4096), byte(0x80 + code / 64 % 64), byte(0x80 + code % 64)};
    return {byte(0xF0 + code / 262144), byte(0x80 + code / 4096 % 64), byte(0x80 + code / 64 % 64),
            byte(0x80 + code % 64)};
}

bool IsSurrogate(char32_t code) {
    return code >= 0xD800 && code <= 0xDFFF;
}

TEST(Utf8, ReadsAndWritesEveryCharacter) {
    for (char32_t code = 0; code <= 0x10FFFF; ++code) {
        if (IsSurrogate(code)) continue;
        const std::string bytes = Encoded(code);
        const Utf8Character character = FirstCharacter(bytes + "x");
        ASSERT_EQ(character.code, code);
        ASSERT_EQ(character.bytes, bytes.size());
        ASSERT_EQ(character.Units(), code > 0xFFFF ? 2 : 1);
        std::string written;
        AppendCharacter(written, code);
        ASSERT_EQ(written, bytes);
    }
}

// Every sequence of three bytes is either one that some character has, or starts with a byte of its own.
TEST(Utf8, TakesAnyThreeBytesApartAndPutsThemTogetherAgain) {
    std::string text(3, '\0');
    std::string again;
    for (unsigned bits = 0; bits <= 0xFFFFFF; ++bits) {
        // Continuation bytes behave alike but for the ends of their ranges, so only those are tried in the
        // last place.
        const unsigned last = bits & 0xFF;
        if (last != 0x00 && last != 0x7F && last != 0x80 && last != 0xBF && last != 0xC0 && last != 0xFF)
            continue;
        text[0] = static_cast<char>(bits >> 16);
        text[1] = static_cast<char>((bits >> 8) & 0xFF);
        text[2] = static_cast<char>(last);
        again.clear();
        for (std::string_view rest = text; !rest.empty();) {
            const Utf8Character character = FirstCharacter(rest);
            ASSERT_LE(character.bytes, rest.size());
            if (character.IsMalformed()) {
                ASSERT_EQ(character.bytes, 1U);
            } else {
                ASSERT_EQ(Encoded(character.code), rest.substr(0, character.bytes));
            }
            AppendCharacter(again, character.code);
            rest.remove_prefix(character.bytes);
        }
        ASSERT_EQ(again, text) << std::hex << bits;
    }
}

TEST(Utf8, SeesMalformedBytesOneByOne) {
    for (const char* text :
         {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC3", "\xC3x", "\xE2\x82", "\xE2\x82x", "\xE0\x9F\xBF",
          "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x9F\x98", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
          "\xF8\x88\x80\x80\x80", "\xFE", "\xFF"}) {
        const Utf8Character character = FirstCharacter(text);
        EXPECT_TRUE(character.IsMalformed()) << testing::PrintToString(std::string(text));
        EXPECT_EQ(character.bytes, 1U);
        EXPECT_EQ(character.Units(), 1);
        std::string written;
        AppendCharacter(written, character.code);
        EXPECT_EQ(written, std::string(text, 1));
    }
}

} // namespace
} // namespace mirelle
