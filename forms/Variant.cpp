#include "forms/Variant.h"

#include "forms/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace mirelle {
namespace {

// The kinds in the order in which a sum widens. A Boolean adds as an Integer, a text as a Double.
enum class Rank { Integer, Long, Single, Double };

struct RankOf {
    Rank operator()(Variant::Empty) const { return Rank::Integer; }
    Rank operator()(bool) const { return Rank::Integer; }
    Rank operator()(Integer) const { return Rank::Integer; }
    Rank operator()(Long) const { return Rank::Long; }
    Rank operator()(float) const { return Rank::Single; }
    Rank operator()(double) const { return Rank::Double; }
    Rank operator()(const std::string&) const { return Rank::Double; }
};

struct NumberOf {
    double operator()(Variant::Empty) const { return 0; }
    double operator()(bool value) const { return value ? -1 : 0; }
    double operator()(Integer value) const { return value.Value(); }
    double operator()(Long value) const { return value.Value(); }
    double operator()(float value) const { return value; }
    double operator()(double value) const { return value; }
    double operator()(const std::string& value) const { return TextToNumber(value); }
};

struct TextOf {
    std::string operator()(Variant::Empty) const { return ""; }
    std::string operator()(bool value) const { return value ? "True" : "False"; }
    std::string operator()(const std::string& value) const { return value; }
    template <class Number>
    std::string operator()(Number value) const {
        return CStr(value);
    }
};

bool IsText(const Variant& value) {
    return std::holds_alternative<std::string>(value.Get());
}

// The kind of a sum's result before its size is known. A Single can't hold every Long, so the two meet in a
// Double.
Rank SumRank(Rank a, Rank b) {
    const bool longWithSingle =
        (a == Rank::Long && b == Rank::Single) || (a == Rank::Single && b == Rank::Long);
    return longWithSingle ? Rank::Double : std::max(a, b);
}

template <class Rep>
bool Fits(double sum) {
    return sum >= std::numeric_limits<Rep>::min() && sum <= std::numeric_limits<Rep>::max();
}

Variant SumOf(double sum, Rank rank) {
    if (!std::isfinite(sum)) throw RunTimeError(ErrorNumber::Overflow);
    if (rank == Rank::Integer && Fits<std::int16_t>(sum)) return Integer(static_cast<std::int16_t>(sum));
    if (rank <= Rank::Long && Fits<std::int32_t>(sum)) return Long(static_cast<std::int32_t>(sum));
    const bool inSingle = std::fabs(sum) <= std::numeric_limits<float>::max();
    if (rank == Rank::Single && inSingle) return static_cast<float>(sum);
    return sum;
}

} // namespace

double Variant::Number() const {
    return std::visit(NumberOf{}, value_);
}

std::string Variant::Text() const {
    return std::visit(TextOf{}, value_);
}

Variant operator+(const Variant& a, const Variant& b) {
    if ((IsText(a) || a.IsEmpty()) && (IsText(b) || b.IsEmpty()) && (IsText(a) || IsText(b))) {
        return a.Text() + b.Text();
    }
    const Rank rank = SumRank(std::visit(RankOf{}, a.Get()), std::visit(RankOf{}, b.Get()));
    return SumOf(a.Number() + b.Number(), rank);
}

} // namespace mirelle
