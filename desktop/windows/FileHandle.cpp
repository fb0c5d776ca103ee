#include "desktop/windows/FileHandle.h"

#include "desktop/windows/Wide.h"
#include "forms/RunTimeError.h"

#include <algorithm>

namespace mirelle::windows {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kGreatestWrite = 1U << 24; // one call's

constexpr std::wstring_view kLongLocal = LR"(\\?\)";
constexpr std::wstring_view kLongNetwork = LR"(\\?\UNC\)";
constexpr std::wstring_view kNetwork = LR"(\\)";
constexpr std::wstring_view kDevice = LR"(\\.\)";
// From here on a folder's path is too long, which has to leave room for a name of 8 + 1 + 3 characters.
constexpr std::size_t kTooLong = MAX_PATH - 12;

// Empty where Windows makes none.
std::wstring FullPathOf(const std::wstring& path) {
    std::wstring full(MAX_PATH, L'\0');
    DWORD length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (length >= full.size()) {
        full.resize(length);
        length = GetFullPathNameW(path.c_str(), length, full.data(), nullptr);
    }
    full.resize(length);
    return full;
}

} // namespace

std::optional<std::wstring> FullPath(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) return std::nullopt;
    const std::optional<std::wstring> wide = ExactlyWide(path);
    if (!wide) return std::nullopt;
    std::wstring full = FullPathOf(*wide);
    // Windows turns the name of a device, in whatever folder it seems to stand, into a path of this
    // beginning.
    if (full.empty() || full.starts_with(kDevice)) return std::nullopt;
    return full;
}

std::optional<std::wstring> SystemPath(const std::string& path) {
    const std::optional<std::wstring> full = FullPath(path);
    if (!full) return std::nullopt;
    return full->size() < kTooLong ? ExactlyWide(path) : InSystemForm(*full);
}

std::wstring InSystemForm(const std::wstring& path) {
    if (IsLongForm(path)) return path;
    const std::wstring full = FullPathOf(path);
    if (full.size() < kTooLong) return path;
    if (full.starts_with(kNetwork)) return std::wstring(kLongNetwork) + full.substr(kNetwork.size());
    return std::wstring(kLongLocal) + full;
}

bool IsLongForm(const std::wstring& path) {
    return path.starts_with(kLongLocal);
}

std::wstring WithoutLongBeginning(const std::wstring& path) {
    if (path.starts_with(kLongNetwork)) return std::wstring(kNetwork) + path.substr(kLongNetwork.size());
    if (path.starts_with(kLongLocal)) return path.substr(kLongLocal.size());
    return path;
}

DWORD AttributesOf(const std::string& path) {
    const std::optional<std::wstring> wide = SystemPath(path);
    return wide ? GetFileAttributesW(wide->c_str()) : INVALID_FILE_ATTRIBUTES;
}

FileHandle OpenRegularFile(const std::string& path, DWORD access, DWORD disposition, host::Action action) {
    const std::optional<std::wstring> wide = SystemPath(path);
    if (!wide) throw RunTimeError(ErrorNumber::PathFileAccess);
    const DWORD attributes = GetFileAttributesW(wide->c_str());
    const DWORD forbidden =
        FILE_ATTRIBUTE_DIRECTORY | (action == host::Action::Write ? DWORD(FILE_ATTRIBUTE_READONLY) : 0);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & forbidden) != 0)
        throw RunTimeError(ErrorNumber::PathFileAccess);
    const HANDLE handle =
        CreateFileW(wide->c_str(), access, kShareAll, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) RaiseLastError(action, path);
    FileHandle file(handle);
    if (GetFileType(handle) != FILE_TYPE_DISK) throw RunTimeError(ErrorNumber::PathFileAccess);
    return file;
}

void WriteAll(const FileHandle& file, std::span<const std::uint8_t> bytes, const std::string& path) {
    while (!bytes.empty()) {
        const DWORD wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kGreatestWrite));
        DWORD put = 0;
        if (WriteFile(file.Get(), bytes.data(), wanted, &put, nullptr) == 0)
            RaiseLastError(host::Action::Write, path);
        bytes = bytes.subspan(put);
    }
}

std::optional<std::wstring> FinalPath(const std::wstring& path) {
    const FileHandle file(
        CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!file.IsOpen()) return std::nullopt;
    const DWORD count = GetFinalPathNameByHandleW(file.Get(), nullptr, 0, FILE_NAME_NORMALIZED);
    if (count == 0) return std::nullopt;
    std::wstring final(count, L'\0');
    final.resize(GetFinalPathNameByHandleW(file.Get(), final.data(), count, FILE_NAME_NORMALIZED));
    return final;
}

void RaiseLastError(host::Action action, const std::string& path) {
    host::RaiseSystemError(static_cast<int>(GetLastError()), action, path);
}

} // namespace mirelle::windows
