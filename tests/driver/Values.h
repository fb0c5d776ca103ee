// Between the values of properties and the words that stand for them: Json writes a value, Read makes one
// from a word. Read throws UsageError for a word that stands for no such value, and raises run-time error 6
// for a number beyond the value's range, as an assignment in the program does.
#pragma once

#include "forms/Variant.h"
#include "tests/driver/Json.h"

#include <cstdint>
#include <string>
#include <vector>

namespace mirelle::driver {

inline std::string Json(const std::string& value) {
    return JsonString(value);
}
inline std::string Json(bool value) {
    return JsonBool(value);
}
inline std::string Json(std::int16_t value) {
    return JsonNumber(int{value});
}
inline std::string Json(int value) {
    return JsonNumber(value);
}
inline std::string Json(float value) {
    return JsonNumber(value);
}
inline std::string Json(const std::vector<std::string>& values) {
    return JsonStrings(values);
}
// An empty variant is null, any other as the value that it holds.
std::string Json(const Variant& value);

template <class Value>
Value Read(const std::string& word);
template <>
std::string Read<std::string>(const std::string& word);
template <>
bool Read<bool>(const std::string& word); // true or false
template <>
std::int16_t Read<std::int16_t>(const std::string& word);
template <>
int Read<int>(const std::string& word);
template <>
float Read<float>(const std::string& word);
// null, true, false, a number (a whole one as an Integer or a Long, any other as a Double) or else a text.
template <>
Variant Read<Variant>(const std::string& word);

} // namespace mirelle::driver
