#include "desktop/windows/Wide.h"

#include "desktop/windows/System.h"

namespace mirelle::windows {
namespace {

std::optional<std::wstring> WideBy(DWORD flags, std::string_view text) {
    if (text.empty()) return std::wstring();
    const int length = static_cast<int>(text.size());
    const int count = MultiByteToWideChar(CP_UTF8, flags, text.data(), length, nullptr, 0);
    if (count <= 0) return std::nullopt;
    std::wstring wide(static_cast<std::size_t>(count), L'\0');
    MultiByteToWideChar(CP_UTF8, flags, text.data(), length, wide.data(), count);
    return wide;
}

std::optional<std::string> Utf8By(DWORD flags, std::wstring_view text) {
    if (text.empty()) return std::string();
    const int length = static_cast<int>(text.size());
    const int count = WideCharToMultiByte(CP_UTF8, flags, text.data(), length, nullptr, 0, nullptr, nullptr);
    if (count <= 0) return std::nullopt;
    std::string narrow(static_cast<std::size_t>(count), '\0');
    WideCharToMultiByte(CP_UTF8, flags, text.data(), length, narrow.data(), count, nullptr, nullptr);
    return narrow;
}

} // namespace

std::wstring Wide(std::string_view text) {
    return WideBy(0, text).value_or(std::wstring());
}

std::string Utf8(std::wstring_view text) {
    return Utf8By(0, text).value_or(std::string());
}

std::optional<std::wstring> ExactlyWide(std::string_view text) {
    return WideBy(MB_ERR_INVALID_CHARS, text);
}

std::optional<std::string> ExactlyUtf8(std::wstring_view text) {
    return Utf8By(WC_ERR_INVALID_CHARS, text);
}

} // namespace mirelle::windows
