// From numbers to text.
#include "forms/Numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace mirelle {
namespace {

// A value's decimal spelling: the digits d1 d2 d3 ... without zeros at the end, read as d1.d2d3... times ten
// to the exponent.
struct Spelling {
    std::string digits;
    int exponent = 0;
};

template <class Float>
Spelling Spell(Float magnitude, int precision) {
    std::array<char, 64> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                       std::chars_format::scientific, precision - 1);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
    const std::size_t mark = text.find('e');

    Spelling spelling;
    for (const char c : text.substr(0, mark)) {
        if (c != '.') spelling.digits += c;
    }
    while (spelling.digits.size() > 1 && spelling.digits.back() == '0')
        spelling.digits.pop_back();
    const std::size_t power = mark + (text[mark + 1] == '+' ? 2 : 1); // from_chars takes no plus sign
    std::from_chars(text.data() + power, text.data() + text.size(), spelling.exponent);
    return spelling;
}

// The smallest power of ten that is still written plainly.
constexpr int kLeastPlainExponent = -5;

// A number stands plainly while the digits that its type shows can hold it: before the point at most
// `precision` digits, behind the point at most `precision` as well, zeros counted. So 0.05 is plain and a
// thirtieth is 3.33333333333333E-02. Below 0.00001 every number takes the exponent form.
bool IsPlain(const Spelling& spelling, int precision) {
    if (spelling.exponent >= 0) return spelling.exponent < precision;
    const int decimals = static_cast<int>(spelling.digits.size()) - 1 - spelling.exponent;
    return spelling.exponent >= kLeastPlainExponent && decimals <= precision;
}

std::string PlainForm(const Spelling& spelling) {
    if (spelling.exponent < 0) {
        return "0." + std::string(static_cast<std::size_t>(-spelling.exponent - 1), '0') + spelling.digits;
    }
    const std::size_t whole = static_cast<std::size_t>(spelling.exponent) + 1;
    std::string text = spelling.digits;
    if (text.size() <= whole) return text.append(whole - text.size(), '0');
    return text.insert(whole, 1, '.');
}

std::string ExponentForm(const Spelling& spelling) {
    std::string text = spelling.digits;
    if (text.size() > 1) text.insert(1, 1, '.');
    const std::string power = std::to_string(std::abs(spelling.exponent));
    text += spelling.exponent < 0 ? "E-" : "E+";
    if (power.size() < 2) text += '0';
    return text + power;
}

template <class Float>
std::string ShortForm(Float value, int precision) {
    if (std::isnan(value)) return "-1.#IND";
    const std::string sign = value < 0 ? "-" : "";
    if (std::isinf(value)) return sign + "1.#INF";
    const Spelling spelling = Spell(std::fabs(value), precision);
    return sign + (IsPlain(spelling, precision) ? PlainForm(spelling) : ExponentForm(spelling));
}

} // namespace

std::string CStr(double value) {
    // Most numbers are whole and short: their digits are all there is to show.
    constexpr double kShort = 1e15;
    if (std::fabs(value) < kShort && std::trunc(value) == value)
        return std::to_string(static_cast<std::int64_t>(value));
    return ShortForm(value, 15);
}

std::string CStr(float value) {
    return ShortForm(value, 7);
}

std::string CStr(std::int16_t value) {
    return std::to_string(value);
}

std::string CStr(std::int32_t value) {
    return std::to_string(value);
}

std::string Str(double value) {
    std::string text = CStr(value);
    if (text.front() != '-') text.insert(0, 1, ' ');
    if (text.compare(1, 2, "0.") == 0) text.erase(1, 1);
    return text;
}

} // namespace mirelle
