#include "tests/driver/Json.h"

#include "forms/Utf8.h"
#include "tests/driver/Errors.h"

#include <array>
#include <charconv>
#include <cmath>

namespace mirelle::driver {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Escape {
    char letter;
    char character;
};
constexpr std::array kEscapes = {
    Escape{'"', '"'},  Escape{'\\', '\\'}, Escape{'/', '/'},  Escape{'b', '\b'},
    Escape{'f', '\f'}, Escape{'n', '\n'},  Escape{'r', '\r'}, Escape{'t', '\t'},
};

void AppendEscaped(std::string& json, char32_t code) {
    for (const Escape& escape : kEscapes) {
        if (escape.character == static_cast<char>(code) && code < 0x80 && code != '/') {
            json += '\\';
            json += escape.letter;
            return;
        }
    }
    if (code < 0x20 || code == 0x7F) {
        constexpr std::string_view kDigits = "0123456789abcdef";
        json += "\\u00";
        json += kDigits[code >> 4];
        json += kDigits[code & 15];
        return;
    }
    AppendCharacter(json, code);
}

std::string Joined(const std::vector<std::string>& values, char open, char close) {
    std::string json(1, open);
    for (const std::string& value : values) {
        if (json.size() > 1) json += ',';
        json += value;
    }
    return json += close;
}

// Below this every whole number is exact and is written out in full.
constexpr double kGreatestWhole = 1e15;

template <class Number>
std::string NumberText(Number value) {
    if (!std::isfinite(value)) return "null";
    std::array<char, 64> text{};
    const bool whole = std::trunc(value) == value && std::fabs(value) < kGreatestWhole;
    const auto end = whole ? std::to_chars(text.begin(), text.end(), static_cast<long long>(value))
                           : std::to_chars(text.begin(), text.end(), value);
    return {text.begin(), end.ptr};
}

// The reader's place in its input; what is wrong there is a UsageError.
class StringReader {
public:
    StringReader(std::string_view input, std::size_t& at) : input_(input), at_(at) {}

    std::string Read() {
        ++at_; // the opening quote
        std::string text;
        for (;;) {
            const char next = Next();
            if (next == '"') return text;
            if (static_cast<unsigned char>(next) < 0x20) Fail("a control character");
            if (next == '\\') {
                ReadEscape(text);
            } else {
                text += next;
            }
        }
    }

private:
    char Next() {
        if (at_ >= input_.size()) Fail("no end");
        return input_[at_++];
    }

    void ReadEscape(std::string& text) {
        const char letter = Next();
        if (letter == 'u') return AppendCharacter(text, ReadCode());
        for (const Escape& escape : kEscapes) {
            if (escape.letter == letter) {
                text += escape.character;
                return;
            }
        }
        Fail("an unknown escape");
    }

    char32_t ReadCode() {
        const char32_t first = ReadUnit();
        if (first < 0xD800 || first > 0xDFFF) return first;
        if (first > 0xDBFF || Next() != '\\' || Next() != 'u') Fail("half of a surrogate pair");
        const char32_t second = ReadUnit();
        if (second < 0xDC00 || second > 0xDFFF) Fail("half of a surrogate pair");
        return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
    }

    char32_t ReadUnit() {
        char32_t unit = 0;
        for (int digit = 0; digit < 4; ++digit)
            unit = unit * 16 + HexDigit(Next());
        return unit;
    }

    char32_t HexDigit(char digit) {
        if (digit >= '0' && digit <= '9') return static_cast<char32_t>(digit - '0');
        if (digit >= 'a' && digit <= 'f') return static_cast<char32_t>(digit - 'a' + 10);
        if (digit >= 'A' && digit <= 'F') return static_cast<char32_t>(digit - 'A' + 10);
        Fail("a \\u without its four digits");
    }

    [[noreturn]] static void Fail(const std::string& what) { throw UsageError("a JSON string with " + what); }

    std::string_view input_;
    std::size_t& at_;
};

} // namespace

std::string JsonString(std::string_view text) {
    std::string json = "\"";
    while (!text.empty()) {
        const Utf8Character character = FirstCharacter(text);
        AppendEscaped(json, character.IsMalformed() ? kReplacement : character.code);
        text.remove_prefix(character.bytes);
    }
    return json += '"';
}

std::string JsonNumber(double value) {
    return NumberText(value);
}

std::string JsonNumber(float value) {
    return NumberText(value);
}

std::string JsonNumber(int value) {
    return std::to_string(value);
}

std::string JsonBool(bool value) {
    return value ? "true" : "false";
}

std::string JsonList(const std::vector<std::string>& values) {
    return Joined(values, '[', ']');
}

std::string JsonObject(std::initializer_list<std::pair<std::string_view, std::string>> members) {
    std::vector<std::string> pairs;
    for (const auto& [name, value] : members)
        pairs.push_back(JsonString(name) + ":" + value);
    return Joined(pairs, '{', '}');
}

std::string JsonStrings(const std::vector<std::string>& texts) {
    std::vector<std::string> values;
    values.reserve(texts.size());
    for (const std::string& text : texts)
        values.push_back(JsonString(text));
    return JsonList(values);
}

std::string ReadJsonString(std::string_view input, std::size_t& at) {
    return StringReader(input, at).Read();
}

} // namespace mirelle::driver
