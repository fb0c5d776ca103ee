#include "desktop/files/NativeFileSystem.h"

#include "desktop/files/LastFolder.h"
#include "desktop/files/MountedVolumes.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include <pwd.h>
#include <unistd.h>

namespace mirelle {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMounts = "/proc/self/mounts";

bool IsPath(const std::string& path) {
    return !path.empty() && path.find('\0') == std::string::npos;
}

std::string WithoutEndingSeparator(std::string path) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

// One absolute text for a folder. Points are resolved by the text alone, but where ".." follows something
// that may be a link only the system knows what it means.
std::string AbsoluteFolder(const std::string& path) {
    std::error_code failure;
    const fs::path absolute = fs::absolute(path, failure);
    if (failure) throw RunTimeError(ErrorNumber::PathNotFound);
    const bool goesUp = std::find(absolute.begin(), absolute.end(), "..") != absolute.end();
    if (!goesUp) return WithoutEndingSeparator(absolute.lexically_normal().string());
    const fs::path real = fs::canonical(absolute, failure);
    if (failure) throw RunTimeError(ErrorNumber::PathNotFound);
    return real.string();
}

std::string HomeFolder() {
    if (const char* home = std::getenv("HOME"); home != nullptr && home[0] == '/')
        return WithoutEndingSeparator(home);
    const passwd* user = ::getpwuid(::getuid());
    return user != nullptr && user->pw_dir != nullptr ? WithoutEndingSeparator(user->pw_dir) : std::string();
}

std::string TableOfMounts() {
    try {
        const std::vector<std::uint8_t> bytes = host::ReadWholeFile(kMounts);
        return {bytes.begin(), bytes.end()};
    } catch (const RunTimeError&) {
        return {}; // a system without that table has no drives to tell of
    }
}

std::string RealFolder(const std::string& path) {
    std::error_code failure;
    const fs::path real = fs::canonical(path, failure);
    if (failure) throw RunTimeError(ErrorNumber::PathNotFound);
    return real.string();
}

} // namespace

NativeFileSystem::NativeFileSystem(const std::string& appFolder, std::string dumpFile,
                                   const std::string& fence)
    : appFolder_(WithoutEndingSeparator(appFolder)), dumpFile_(std::move(dumpFile)),
      fence_(fence.empty() ? std::string() : RealFolder(fence)),
      lastFolder_(std::make_shared<host::LastFolder>()) {}

char NativeFileSystem::Separator() const {
    return '/';
}

std::vector<std::string> NativeFileSystem::Drives() const {
    if (!fence_.empty()) return {fence_};
    std::vector<std::string> drives = {"/"};
    const auto add = [&drives](const std::string& folder) {
        if (std::find(drives.begin(), drives.end(), folder) == drives.end()) drives.push_back(folder);
    };
    if (const std::string home = HomeFolder(); !home.empty()) add(home);
    for (const std::string& volume : MountedVolumes(TableOfMounts()))
        add(volume);
    return drives;
}

std::string NativeFileSystem::ResolveFolder(const std::string& path) const {
    if (!IsPath(path)) throw RunTimeError(ErrorNumber::PathNotFound);
    std::string folder = AbsoluteFolder(path);
    if (!IsInReach(folder) || !host::CanEnterFolder(folder)) throw RunTimeError(ErrorNumber::PathNotFound);
    return folder;
}

bool NativeFileSystem::FolderExists(const std::string& path) const {
    return IsPath(path) && IsInReach(path) && host::IsFolder(path);
}

bool NativeFileSystem::FileExists(const std::string& path) const {
    return IsPath(path) && IsInReach(path) && host::IsRegularFile(path);
}

bool NativeFileSystem::IsHidden(const std::string& path) const {
    return FileExists(path) && host::IsHiddenFile(path);
}

std::vector<std::string> NativeFileSystem::NamesIn(const std::string& folder, host::EntryKind kind) const {
    if (!IsPath(folder) || !IsInReach(folder)) throw RunTimeError(ErrorNumber::PathNotFound);
    const auto follows = [&](const std::string& name) { return IsInReach(folder + '/' + name); };
    return lastFolder_->Names(folder, kind, follows);
}

std::string NativeFileSystem::Checked(const std::string& path, ErrorNumber outOfReach) const {
    if (!IsPath(path)) throw RunTimeError(ErrorNumber::PathFileAccess);
    if (!IsInReach(path)) throw RunTimeError(outOfReach);
    return path;
}

} // namespace mirelle
