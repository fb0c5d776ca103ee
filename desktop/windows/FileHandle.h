// An open file of Windows, closed when its owner goes; and what is asked of a name ahead of opening it.
#pragma once

#include "desktop/files/HostErrors.h"
#include "desktop/windows/System.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>

namespace mirelle::windows {

class FileHandle {
public:
    explicit FileHandle(HANDLE handle) : handle_(handle) {}
    ~FileHandle() {
        if (IsOpen()) CloseHandle(handle_);
    }
    FileHandle(FileHandle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    FileHandle& operator=(FileHandle&&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }

private:
    HANDLE handle_;
};

// The absolute form of a path as Windows makes it: both slashes turned to backslashes, "." and ".." resolved.
// Nothing for a text that can be no path: the empty one, one with a NUL or with bytes that belong to no
// character, and the name of a device such as NUL or COM1.
std::optional<std::wstring> FullPath(const std::string& path);

// The path as Windows takes it, however long it is. Nothing for a text that can be no path.
std::optional<std::wstring> SystemPath(const std::string& path);

// The same for a path that has been made of such a one. Windows takes a path of some 260 characters at most
// unless it is in the long form, which begins with \\?\ and is taken as it stands: absolute, with
// backslashes, nothing left to resolve. Shorter paths stay as they are.
std::wstring InSystemForm(const std::wstring& path);

bool IsLongForm(const std::wstring& path);

// A path in the long form as the rest of the program writes one.
std::wstring WithoutLongBeginning(const std::wstring& path);

// The attributes of what stands there; INVALID_FILE_ATTRIBUTES where nothing does.
DWORD AttributesOf(const std::string& path);

// Opens a regular file, and nothing else. Raises 75 where something else stands there, and what
// RaiseSystemError makes of a failure.
FileHandle OpenRegularFile(const std::string& path, DWORD access, DWORD disposition, host::Action action);

// Writes the bytes where the file stands. Raises what RaiseSystemError makes of a failure.
void WriteAll(const FileHandle& file, std::span<const std::uint8_t> bytes, const std::string& path);

// The path with all links followed, in the long form that begins with \\?\; nothing where it leads nowhere.
std::optional<std::wstring> FinalPath(const std::wstring& path);

[[noreturn]] void RaiseLastError(host::Action action, const std::string& path);

} // namespace mirelle::windows
