// Files and folders of a Windows machine. Windows itself matches names without regard to case; a path keeps
// the case in which it was given, as it does everywhere on Windows.
#include "desktop/files/NativeFileSystem.h"

#include "desktop/windows/FileHandle.h"
#include "desktop/windows/Wide.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace mirelle {
namespace {

constexpr std::size_t kDriveLength = 2; // "C:"

bool IsLetter(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

bool IsSeparator(char character) {
    return character == '\\' || character == '/';
}

bool HasDrive(const std::string& path) {
    return path.size() >= kDriveLength && IsLetter(path[0]) && path[1] == ':';
}

// The folder in which the program happens to run on a drive is of no meaning to its user.
std::string FromDrivesRoot(std::string path) {
    if (HasDrive(path) && (path.size() == kDriveLength || !IsSeparator(path[kDriveLength])))
        path.insert(kDriveLength, 1, '\\');
    return path;
}

std::string WithoutEndingSeparator(std::string path) {
    const std::size_t root = HasDrive(path) ? kDriveLength + 1 : 1;
    while (path.size() > root && path.back() == '\\')
        path.pop_back();
    return path;
}

// The absolute form of a path, both slashes turned to backslashes, "." and ".." resolved, the drive's letter
// capital. A drive alone, and a path that begins right behind the drive's colon, start at that drive's root.
// No separator at the end but a root's. The empty text for what can be no path.
std::string AbsolutePath(const std::string& path) {
    const std::optional<std::wstring> full = windows::FullPath(FromDrivesRoot(path));
    if (!full) return {};
    std::string text = WithoutEndingSeparator(windows::Utf8(*full));
    if (HasDrive(text) && text[0] >= 'a') text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text;
}

std::string RealFolder(const std::string& path) {
    const std::string real = host::RealPathBelow(path, path);
    if (real.empty()) throw RunTimeError(ErrorNumber::PathNotFound);
    return real;
}

} // namespace

NativeFileSystem::NativeFileSystem(const std::string& appFolder, std::string dumpFile,
                                   const std::string& fence)
    : appFolder_(AbsolutePath(appFolder)), dumpFile_(std::move(dumpFile)),
      fence_(fence.empty() ? std::string() : RealFolder(fence)) {
    // A drive without a disk is an error like any other, and not for Windows to ask the user about.
    SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS);
}

char NativeFileSystem::Separator() const {
    return '\\';
}

// Every drive that has a letter, ready or not.
std::vector<std::string> NativeFileSystem::Drives() const {
    if (!fence_.empty()) return {fence_};
    std::vector<std::string> drives;
    for (DWORD letters = GetLogicalDrives(); letters != 0; letters &= letters - 1)
        drives.push_back({static_cast<char>('a' + std::countr_zero(letters)), ':'});
    return drives;
}

std::string NativeFileSystem::ResolveFolder(const std::string& path) const {
    std::string folder = AbsolutePath(path);
    if (folder.empty() || !IsInReach(folder) || !host::CanEnterFolder(folder))
        throw RunTimeError(ErrorNumber::PathNotFound);
    return folder;
}

bool NativeFileSystem::FolderExists(const std::string& path) const {
    const std::string folder = AbsolutePath(path);
    return !folder.empty() && IsInReach(folder) && host::IsFolder(folder);
}

bool NativeFileSystem::FileExists(const std::string& path) const {
    const std::string file = AbsolutePath(path);
    return !file.empty() && !IsSeparator(path.back()) && IsInReach(file) && host::IsRegularFile(file);
}

bool NativeFileSystem::IsHidden(const std::string& path) const {
    return FileExists(path) && host::IsHiddenFile(AbsolutePath(path));
}

std::vector<std::string> NativeFileSystem::NamesIn(const std::string& folder, host::EntryKind kind) const {
    const std::string place = AbsolutePath(folder);
    if (place.empty() || !IsInReach(place)) throw RunTimeError(ErrorNumber::PathNotFound);
    const auto follows = [&](const std::string& name) { return IsInReach(place + '\\' + name); };
    return host::EntryNames(place, kind, follows);
}

std::string NativeFileSystem::Checked(const std::string& path, ErrorNumber outOfReach) const {
    if (path.empty()) throw RunTimeError(ErrorNumber::PathFileAccess);
    std::string absolute = AbsolutePath(path);
    if (absolute.empty()) throw RunTimeError(ErrorNumber::BadFileName);
    if (!IsInReach(absolute)) throw RunTimeError(outOfReach);
    // A file's name doesn't end in a separator.
    return IsSeparator(path.back()) ? absolute + '\\' : absolute;
}

} // namespace mirelle
