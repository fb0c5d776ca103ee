#include "forms/Numbers.h"

#include "forms/RunTimeError.h"

#include <cmath>
#include <limits>

namespace mirelle {
namespace {

template <class Rep>
Rep Nearest(double value) {
    const double rounded = RoundHalfEven(value);
    // Written so that a value that is no number fails as well.
    const bool fits =
        rounded >= std::numeric_limits<Rep>::min() && rounded <= std::numeric_limits<Rep>::max();
    if (!fits) throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<Rep>(rounded);
}

} // namespace

double RoundHalfEven(double value) {
    // On the magnitude the part behind the point is exact; on a small negative value it would not be.
    const double magnitude = std::fabs(value);
    double whole = std::floor(magnitude);
    const double fraction = magnitude - whole;
    const bool up = fraction > 0.5 || (fraction == 0.5 && std::fmod(whole, 2.0) != 0.0);
    if (up) whole += 1.0;
    return std::copysign(whole, value);
}

std::int16_t ToInteger(double value) {
    return Nearest<std::int16_t>(value);
}

std::int32_t ToLong(double value) {
    return Nearest<std::int32_t>(value);
}

float ToSingle(double value) {
    if (std::fabs(value) > double{std::numeric_limits<float>::max()})
        throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<float>(value);
}

template <class Rep>
CheckedInteger<Rep> CheckedInteger<Rep>::From(std::int64_t wide) {
    if (wide < std::numeric_limits<Rep>::min() || wide > std::numeric_limits<Rep>::max()) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return static_cast<Rep>(wide);
}

template <class Rep>
CheckedInteger<Rep> CheckedInteger<Rep>::Divide(CheckedInteger a, CheckedInteger b) {
    if (b.value_ == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
    return From(std::int64_t{a.value_} / b.value_);
}

template class CheckedInteger<std::int16_t>;
template class CheckedInteger<std::int32_t>;

} // namespace mirelle
