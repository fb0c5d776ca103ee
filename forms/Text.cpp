#include "forms/Text.h"

#include "forms/LetterCase.h"
#include "forms/RunTimeError.h"
#include "forms/Utf8.h"

#include <algorithm>
#include <cstddef>

namespace mirelle {
namespace {

Utf8Character TakeCharacter(std::string_view& rest) {
    const Utf8Character character = FirstCharacter(rest);
    rest.remove_prefix(character.bytes);
    return character;
}

template <class Mapping>
std::string Mapped(std::string_view text, Mapping mapping) {
    std::string mapped;
    mapped.reserve(text.size());
    while (!text.empty())
        AppendCharacter(mapped, mapping(TakeCharacter(text).code));
    return mapped;
}

void RequireCount(int count) {
    if (count < 0) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

} // namespace

int Len(std::string_view text) {
    int units = 0;
    while (!text.empty())
        units += TakeCharacter(text).Units();
    return units;
}

std::string Left(std::string_view text, int count) {
    RequireCount(count);
    std::string_view rest = text;
    while (!rest.empty()) {
        const Utf8Character character = FirstCharacter(rest);
        if (character.Units() > count) break;
        count -= character.Units();
        rest.remove_prefix(character.bytes);
    }
    return std::string(text.substr(0, text.size() - rest.size()));
}

std::string Right(std::string_view text, int count) {
    RequireCount(count);
    int units = Len(text);
    while (units > count)
        units -= TakeCharacter(text).Units();
    return std::string(text);
}

std::string Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return "";
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> pieces;
    if (text.empty()) return pieces;
    if (separator.empty()) return {std::string(text)};
    for (std::size_t at = text.find(separator); at != std::string_view::npos; at = text.find(separator)) {
        pieces.emplace_back(text.substr(0, at));
        text.remove_prefix(at + separator.size());
    }
    pieces.emplace_back(text);
    return pieces;
}

std::string Replace(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(text);
    std::string replaced;
    for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what)) {
        replaced.append(text.substr(0, at)).append(with);
        text.remove_prefix(at + what.size());
    }
    return replaced.append(text);
}

// Nearly all texts are plain, and there are a hundred thousand of them in a large folder.
std::string LowerCase(std::string_view text) {
    const auto isPlain = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (!std::ranges::all_of(text, isPlain)) return Mapped(text, SmallLetter);
    std::string small(text);
    for (char& c : small) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return small;
}

std::string UpperCase(std::string_view text) {
    return Mapped(text, CapitalLetter);
}

bool Contains(std::string_view text, std::string_view what) {
    return text.find(what) != std::string_view::npos;
}

std::string Before(std::string_view text, std::string_view mark) {
    return std::string(text.substr(0, text.find(mark)));
}

int CompareNoCase(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        const char32_t inA = FoldedLetter(TakeCharacter(a).code);
        const char32_t inB = FoldedLetter(TakeCharacter(b).code);
        if (inA != inB) return inA < inB ? -1 : 1;
    }
    return a.empty() ? (b.empty() ? 0 : -1) : 1;
}

} // namespace mirelle
