#include "gradient/HexRGB.h"

#include <array>
#include <charconv>

namespace mirelle {
namespace {

std::string TwoDigits(std::int16_t component) {
    std::array<char, 8> digits{};
    constexpr int kHexadecimal = 16;
    const auto end =
        std::to_chars(digits.begin(), digits.end(), static_cast<std::uint16_t>(component), kHexadecimal);
    std::string text(digits.begin(), end.ptr);
    for (char& digit : text) {
        if (digit >= 'a') digit = static_cast<char>(digit - 'a' + 'A');
    }
    return text.size() < 2 ? "0" + text : text;
}

} // namespace

std::string HexRGB(std::int16_t red, std::int16_t green, std::int16_t blue) {
    return "&H" + TwoDigits(blue) + TwoDigits(green) + TwoDigits(red) + "&";
}

} // namespace mirelle
