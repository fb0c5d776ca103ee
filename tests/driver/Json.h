// The little JSON that the driver speaks: a writer for its answers, and a reader for strings.
//
// Every function that writes gives the text of one JSON value. Answers are plain ASCII but for well-formed
// UTF-8 in strings: a byte that belongs to no well-formed character is written as U+FFFD, so that an answer
// is valid JSON whatever a name or a text holds.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mirelle::driver {

std::string JsonString(std::string_view text);
// Whole numbers without a point, others in the shortest form that reads back as the same number; what is no
// finite number is null.
std::string JsonNumber(double value);
std::string JsonNumber(float value);
std::string JsonNumber(int value);
std::string JsonBool(bool value);
// Of values that are JSON already.
std::string JsonList(const std::vector<std::string>& values);
std::string JsonObject(std::initializer_list<std::pair<std::string_view, std::string>> members);
// A list of strings.
std::string JsonStrings(const std::vector<std::string>& texts);

// The text of the JSON string that begins at `at` with its quote; `at` is then behind the closing one. Bytes
// that are no UTF-8 come through as they are. Throws UsageError where the string is not well formed: no end,
// a control character, an unknown escape, half of a surrogate pair.
std::string ReadJsonString(std::string_view input, std::size_t& at);

} // namespace mirelle::driver
