// A variant: nothing, a whole number, a float, a Boolean or a text. Nothing reads as 0 and as the empty text.
#pragma once

#include "forms/Numbers.h"

#include <string>
#include <variant>

namespace mirelle {

class Variant {
public:
    struct Empty {
        friend bool operator==(Empty, Empty) = default;
    };
    using Value = std::variant<Empty, bool, Integer, Long, float, double, std::string>;

    Variant() = default;
    Variant(bool value) : value_(value) {}                     // NOLINT(google-explicit-constructor)
    Variant(Integer value) : value_(value) {}                  // NOLINT(google-explicit-constructor)
    Variant(Long value) : value_(value) {}                     // NOLINT(google-explicit-constructor)
    Variant(float value) : value_(value) {}                    // NOLINT(google-explicit-constructor)
    Variant(double value) : value_(value) {}                   // NOLINT(google-explicit-constructor)
    Variant(std::string value) : value_(std::move(value)) {}   // NOLINT(google-explicit-constructor)
    Variant(const char* value) : value_(std::string(value)) {} // NOLINT(google-explicit-constructor)

    bool IsEmpty() const { return std::holds_alternative<Empty>(value_); }
    const Value& Get() const { return value_; }

    // The value as a number: nothing is 0, True is -1, a text is converted (error 13 where it can't be).
    double Number() const;
    // The value as text: nothing is "", a Boolean "True" or "False", a number its default short form.
    std::string Text() const;
    bool IsTrue() const { return Number() != 0; }

    // The sum of two values. Integers (and Booleans, which add as Integers) widen to Long and on to Double
    // where the sum needs it; Single with Single or Integer stays Single while it fits, every other mix with
    // a float or with a text is Double. Nothing adds as nothing: it leaves the other's kind. Two texts are
    // joined. Raises error 13 for a text that is no number beside a number, 6 beyond a double's range.
    friend Variant operator+(const Variant& a, const Variant& b);
    friend bool operator==(const Variant&, const Variant&) = default;

private:
    Value value_;
};

} // namespace mirelle
