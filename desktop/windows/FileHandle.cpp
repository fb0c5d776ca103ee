#include "desktop/windows/FileHandle.h"

#include "desktop/windows/Wide.h"
#include "forms/RunTimeError.h"

namespace mirelle::windows {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Windows turns the name of a device, in whatever folder it seems to stand, into a path of this beginning.
bool IsDevice(const std::wstring& path) {
    wchar_t full[32];
    const DWORD length = GetFullPathNameW(path.c_str(), DWORD(std::size(full)), full, nullptr);
    return length > 0 && length < std::size(full) && std::wstring_view(full, length).starts_with(LR"(\\.\)");
}

} // namespace

std::optional<std::wstring> SystemPath(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) return std::nullopt;
    std::optional<std::wstring> wide = ExactlyWide(path);
    if (!wide || IsDevice(*wide)) return std::nullopt;
    return wide;
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
