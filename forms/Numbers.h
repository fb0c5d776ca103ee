// Numbers as the forms runtime knows them: checked 16- and 32-bit integers, rounding half to even, and the
// ways between numbers and text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mirelle {

// The nearest whole number, a tie to the even one. The result is a double, so that no range is lost here.
double RoundHalfEven(double value);

// The nearest 16- or 32-bit integer, a tie to the even one. Raises error 6 when the result leaves the range.
std::int16_t ToInteger(double value);
std::int32_t ToLong(double value);

// A checked integer: every step of arithmetic that leaves the range raises error 6, and division truncates
// toward zero (error 11 for a zero divisor). Integer is 16 bits wide, Long 32.
template <class Rep>
class CheckedInteger {
public:
    constexpr CheckedInteger() = default;
    constexpr CheckedInteger(Rep value) : value_(value) {} // NOLINT(google-explicit-constructor)

    // From a wider number; raises error 6 when it does not fit.
    static CheckedInteger From(std::int64_t wide);

    constexpr operator Rep() const { return value_; } // NOLINT(google-explicit-constructor)
    constexpr Rep Value() const { return value_; }

    friend CheckedInteger operator+(CheckedInteger a, CheckedInteger b) {
        return From(std::int64_t{a.value_} + b.value_);
    }
    friend CheckedInteger operator-(CheckedInteger a, CheckedInteger b) {
        return From(std::int64_t{a.value_} - b.value_);
    }
    friend CheckedInteger operator*(CheckedInteger a, CheckedInteger b) {
        return From(std::int64_t{a.value_} * b.value_);
    }
    friend CheckedInteger operator/(CheckedInteger a, CheckedInteger b) { return Divide(a, b); }
    CheckedInteger& operator+=(CheckedInteger other) { return *this = *this + other; }
    CheckedInteger& operator-=(CheckedInteger other) { return *this = *this - other; }

private:
    static CheckedInteger Divide(CheckedInteger a, CheckedInteger b);

    Rep value_ = 0;
};

extern template class CheckedInteger<std::int16_t>;
extern template class CheckedInteger<std::int32_t>;

using Integer = CheckedInteger<std::int16_t>;
using Long = CheckedInteger<std::int32_t>;

// The leading number of a text, 0 if there is none. Blanks, tabs and line feeds are skipped anywhere in it;
// "&H" and
// "&O" lead hexadecimal and octal numbers (four hexadecimal digits or fewer read as a signed 16-bit value, as
// in a source text); an exponent is led by E or D. Never raises but for error 6 on a number beyond a double's
// range.
double Val(std::string_view text);

// Whether the whole text reads as a number: blanks around it, a sign, digits with commas between them, a
// point, an exponent, a currency sign, parentheses as a minus, "&H" and "&O" forms.
bool IsNumeric(std::string_view text);

// The number that a text is converted to where a number is wanted ("12" + 1). Raises error 13 on any other
// text.
double TextToNumber(std::string_view text);

// Default short text forms: 15 significant digits for a double, 7 for a Single; no needless zeros, "0.5" and
// "-0.5" with their leading zero, exponent forms as in 1E+20 and 1.5E-07.
std::string CStr(double value);
std::string CStr(float value);
std::string CStr(std::int16_t value);
std::string CStr(std::int32_t value);
inline std::string CStr(Integer value) {
    return CStr(value.Value());
}
inline std::string CStr(Long value) {
    return CStr(value.Value());
}

// Str: as CStr, with a leading blank in the sign's place for numbers that are not negative, and without the
// zero ahead of the point (".5").
std::string Str(double value);

} // namespace mirelle
