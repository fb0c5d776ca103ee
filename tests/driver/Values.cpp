#include "tests/driver/Values.h"

#include "tests/driver/Errors.h"
#include "tests/driver/LineReader.h"

#include <cmath>
#include <limits>

namespace mirelle::driver {
namespace {

struct VariantJson {
    std::string operator()(Variant::Empty) const { return "null"; }
    std::string operator()(bool value) const { return JsonBool(value); }
    std::string operator()(Integer value) const { return JsonNumber(int{value.Value()}); }
    std::string operator()(Long value) const { return JsonNumber(value.Value()); }
    std::string operator()(float value) const { return JsonNumber(value); }
    std::string operator()(double value) const { return JsonNumber(value); }
    std::string operator()(const std::string& value) const { return JsonString(value); }
};

bool Fits(double number, double least, double greatest) {
    return std::trunc(number) == number && number >= least && number <= greatest;
}

Variant VariantOf(double number) {
    if (Fits(number, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()))
        return Integer(static_cast<std::int16_t>(number));
    if (Fits(number, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()))
        return Long(static_cast<std::int32_t>(number));
    return number;
}

} // namespace

std::string Json(const Variant& value) {
    return std::visit(VariantJson{}, value.Get());
}

template <>
std::string Read(const std::string& word) {
    return word;
}

template <>
bool Read(const std::string& word) {
    if (word == "true") return true;
    if (word == "false") return false;
    throw UsageError(JsonString(word) + " is neither true nor false");
}

template <>
std::int16_t Read(const std::string& word) {
    return ToInteger(NumberIn(word));
}

template <>
int Read(const std::string& word) {
    return ToLong(NumberIn(word));
}

template <>
float Read(const std::string& word) {
    return ToSingle(NumberIn(word));
}

template <>
Variant Read(const std::string& word) {
    if (word == "null") return {};
    if (word == "true") return true;
    if (word == "false") return false;
    try {
        return VariantOf(NumberIn(word));
    } catch (const UsageError&) {
        return word;
    }
}

} // namespace mirelle::driver
