// From text to numbers.
#include "forms/Numbers.h"

#include "forms/RunTimeError.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <optional>

namespace mirelle {
namespace {

struct Reading {
    enum class Kind { NotANumber, TooLarge, Number };
    Kind kind = Kind::NotANumber;
    double value = 0;
};

constexpr Reading kNotANumber{};
constexpr Reading kTooLarge{Reading::Kind::TooLarge, 0};

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsSign(char c) {
    return c == '+' || c == '-';
}

bool IsExponentMark(char c) {
    return c == 'e' || c == 'E' || c == 'd' || c == 'D';
}

// The digit's value in bases up to 16, or 16 for a character that is none.
unsigned DigitValue(char c) {
    if (IsDigit(c)) return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a') + 10;
    if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A') + 10;
    return 16;
}

class Cursor {
public:
    explicit Cursor(std::string_view text) : text_(text) {}

    bool AtEnd() const { return at_ == text_.size(); }
    // The character `ahead` places on, 0 behind the end.
    char Peek(std::size_t ahead = 0) const { return ahead < text_.size() - at_ ? text_[at_ + ahead] : '\0'; }
    void Skip(std::size_t count = 1) { at_ += std::min(count, text_.size() - at_); }
    bool Take(char c) {
        if (AtEnd() || Peek() != c) return false;
        ++at_;
        return true;
    }

private:
    std::string_view text_;
    std::size_t at_ = 0;
};

// A decimal number in the spelling that from_chars takes.
struct Decimal {
    std::string mantissa; // digits, at most one point
    std::string exponent; // sign and digits, empty where there is none
    bool negative = false;

    bool HasDigits() const { return std::any_of(mantissa.begin(), mantissa.end(), IsDigit); }
};

// Whether a number that is out of a double's range lies above it rather than next to 0: its first digit that
// counts stands, by the exponent, ahead of the point.
bool IsAboveRange(const Decimal& decimal) {
    const std::size_t point = std::min(decimal.mantissa.find('.'), decimal.mantissa.size());
    const std::size_t first = decimal.mantissa.find_first_not_of("0.");
    if (first == std::string::npos) return false;
    const std::string_view power = decimal.exponent;
    const bool down = power.starts_with('-');
    std::int64_t exponent = 0;
    for (const char c : power) {
        constexpr std::int64_t kEnough = std::int64_t{1} << 48; // beyond the length of any text
        if (IsDigit(c)) exponent = std::min(exponent * 10 + (c - '0'), kEnough);
    }
    const auto place = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    return place + (down ? -exponent : exponent) > 0;
}

Reading Evaluate(const Decimal& decimal) {
    const std::string spelled =
        decimal.exponent.empty() ? decimal.mantissa : decimal.mantissa + "e" + decimal.exponent;
    double value = 0;
    const auto read = std::from_chars(spelled.data(), spelled.data() + spelled.size(), value);
    if (read.ec == std::errc::result_out_of_range) {
        if (IsAboveRange(decimal)) return kTooLarge;
        value = 0;
    }
    return {Reading::Kind::Number, decimal.negative ? -value : value};
}

// The exponent at the cursor, if it is a whole one: mark, perhaps a sign, at least one digit. A mark with
// nothing behind it is left where it is.
std::string TakeExponent(Cursor& cursor) {
    if (!IsExponentMark(cursor.Peek())) return "";
    const std::size_t signs = IsSign(cursor.Peek(1)) ? 1 : 0;
    if (!IsDigit(cursor.Peek(1 + signs))) return "";
    std::string exponent;
    if (cursor.Peek(1) == '-') exponent = "-";
    cursor.Skip(1 + signs);
    for (; IsDigit(cursor.Peek()); cursor.Skip())
        exponent += cursor.Peek();
    return exponent;
}

// The base that "&H" or "&O" at the cursor asks for.
std::optional<unsigned> BaseAt(const Cursor& cursor) {
    if (cursor.Peek() != '&') return std::nullopt;
    switch (cursor.Peek(1)) {
    case 'h':
    case 'H':
        return 16;
    case 'o':
    case 'O':
        return 8;
    default:
        return std::nullopt;
    }
}

// The number behind "&H" or "&O". As in a source text it is a 16-bit value where it fits in 16 bits, a
// 32-bit value otherwise or where "&" ends it, and its highest bit is the sign.
Reading TakeBased(Cursor& cursor, unsigned base) {
    cursor.Skip(2);
    std::uint64_t bits = 0;
    bool any = false;
    bool tooLarge = false;
    for (; DigitValue(cursor.Peek()) < base; cursor.Skip()) {
        any = true;
        if (!tooLarge) bits = bits * base + DigitValue(cursor.Peek());
        if (bits > 0xFFFFFFFFU) tooLarge = true;
    }
    if (!any) return kNotANumber;
    const bool wide = cursor.Take('&') || bits > 0xFFFFU;
    if (tooLarge) return kTooLarge;
    if (wide) return {Reading::Kind::Number, static_cast<double>(static_cast<std::int32_t>(bits))};
    return {Reading::Kind::Number, static_cast<double>(static_cast<std::int16_t>(bits))};
}

std::string WithoutBlanks(std::string_view text) {
    std::string kept;
    kept.reserve(text.size());
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\n') kept += c;
    }
    return kept;
}

Reading ReadLeading(std::string_view text) {
    Cursor cursor(text);
    if (const auto base = BaseAt(cursor)) return TakeBased(cursor, *base);

    Decimal decimal;
    if (IsSign(cursor.Peek())) {
        decimal.negative = cursor.Peek() == '-';
        cursor.Skip();
    }
    bool point = false;
    for (; IsDigit(cursor.Peek()) || (cursor.Peek() == '.' && !point); cursor.Skip()) {
        point = point || cursor.Peek() == '.';
        decimal.mantissa += cursor.Peek();
    }
    if (!decimal.HasDigits()) return kNotANumber;
    decimal.exponent = TakeExponent(cursor);
    return Evaluate(decimal);
}

bool IsSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// Reads a text that has to be a number from end to end.
class WholeReader {
public:
    explicit WholeReader(std::string_view text) : cursor_(text) {}

    Reading Read() {
        while (TakeBlank()) {
        }
        if (const auto base = BaseAt(cursor_)) {
            const Reading reading = TakeBased(cursor_, *base);
            while (TakeBlank()) {
            }
            return cursor_.AtEnd() ? reading : kNotANumber;
        }
        while (TakeBlank() || TakeSign() || TakeCurrency() || TakeOpening()) {
        }
        TakeMantissa();
        if (!decimal_.HasDigits()) return kNotANumber;
        decimal_.exponent = TakeExponent(cursor_);
        while (TakeBlank() || TakeSign() || TakeCurrency() || TakeClosing()) {
        }
        return cursor_.AtEnd() && !open_ ? Evaluate(decimal_) : kNotANumber;
    }

private:
    bool TakeBlank() {
        if (!IsSpace(cursor_.Peek())) return false;
        cursor_.Skip();
        return true;
    }
    // A number has one sign: before it, behind it or a pair of parentheses around it.
    bool TakeSign() {
        if (signed_ || !IsSign(cursor_.Peek())) return false;
        decimal_.negative = cursor_.Peek() == '-';
        signed_ = true;
        cursor_.Skip();
        return true;
    }
    bool TakeOpening() {
        if (signed_ || !cursor_.Take('(')) return false;
        open_ = signed_ = decimal_.negative = true;
        return true;
    }
    bool TakeClosing() {
        if (!open_ || !cursor_.Take(')')) return false;
        open_ = false;
        return true;
    }
    bool TakeCurrency() {
        if (currency_ || !cursor_.Take('$')) return false;
        currency_ = true;
        return true;
    }
    // Commas group nothing: they are passed over anywhere behind the first digit and ahead of the point.
    void TakeMantissa() {
        bool point = false;
        for (;; cursor_.Skip()) {
            const char c = cursor_.Peek();
            if (c == ',' && !point && !decimal_.mantissa.empty()) continue;
            if (!IsDigit(c) && (c != '.' || point)) return;
            point = point || c == '.';
            decimal_.mantissa += c;
        }
    }

    Cursor cursor_;
    Decimal decimal_;
    bool signed_ = false;
    bool open_ = false;
    bool currency_ = false;
};

} // namespace

double Val(std::string_view text) {
    const Reading reading = ReadLeading(WithoutBlanks(text));
    if (reading.kind == Reading::Kind::TooLarge) throw RunTimeError(ErrorNumber::Overflow);
    return reading.value;
}

bool IsNumeric(std::string_view text) {
    return WholeReader(text).Read().kind == Reading::Kind::Number;
}

double TextToNumber(std::string_view text) {
    const Reading reading = WholeReader(text).Read();
    if (reading.kind == Reading::Kind::TooLarge) throw RunTimeError(ErrorNumber::Overflow);
    if (reading.kind == Reading::Kind::NotANumber) throw RunTimeError(ErrorNumber::TypeMismatch);
    return reading.value;
}

} // namespace mirelle
