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
// The nearest Single. Raises error 6 where there is none.
float ToSingle(double value);

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

// An Integer beside a Long is widened first, so that the step is checked as a Long.
inline Long Widen(Integer value) {
    return std::int32_t{value.Value()};
}
inline Long operator+(Long a, Integer b) {
    return a + Widen(b);
}
inline Long operator+(Integer a, Long b) {
    return Widen(a) + b;
}
inline Long operator-(Long a, Integer b) {
    return a - Widen(b);
}
inline Long operator-(Integer a, Long b) {
    return Widen(a) - b;
}
inline Long operator*(Long a, Integer b) {
    return a * Widen(b);
}
inline Long operator*(Integer a, Long b) {
    return Widen(a) * b;
}
inline Long operator/(Long a, Integer b) {
    return a / Widen(b);
}
inline Long operator/(Integer a, Long b) {
    return Widen(a) / b;
}

// The leading number of a text, 0 if there is none. Blanks, tabs and line feeds are skipped anywhere in it;
// an exponent is led by E or D. "&H" and "&O" lead hexadecimal and octal numbers, which read as in a source
// text: a number that fits in 16 bits is a signed 16-bit value ("&HFFFF" is -1), a longer one, or one that
// "&" ends, a signed 32-bit value. Raises error 6 on a number beyond the range (of a double, or of 32 bits),
// and nothing else.
double Val(std::string_view text);

// Whether the whole text reads as a number within a double's range: blanks around it, digits with commas
// among them, a point, an exponent, one "$", one sign ahead or behind or a pair of parentheses that stands
// for a minus; or an "&H" or "&O" form.
bool IsNumeric(std::string_view text);

// The number that a text is converted to where a number is wanted ("12" + 1): what IsNumeric takes. Raises
// error 6 on a number beyond the range, 13 on any other text.
double TextToNumber(std::string_view text);

// Default short text forms: 15 significant digits for a double, 7 for a Single; no needless zeros, "0.5" and
// "-0.5" with their leading zero. The exponent form, as in 1E+20 and 1.5E-07, begins where those digits can't
// hold the number plainly (from 1E+15, Single 1E+07, or with more decimals than digits), and below 0.00001.
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
