// Between the program's texts, which are UTF-8, and those of Windows, which are UTF-16.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mirelle::windows {

// Bytes that belong to no character become U+FFFD.
std::wstring Wide(std::string_view text);

// Half a pair of surrogates becomes U+FFFD.
std::string Utf8(std::wstring_view text);

// The same for names of files, where nothing may be lost: nothing where the text holds half a pair, or bytes
// that belong to no character.
std::optional<std::wstring> ExactlyWide(std::string_view text);
std::optional<std::string> ExactlyUtf8(std::wstring_view text);

} // namespace mirelle::windows
