#include "desktop/files/HostFiles.h"

#include "desktop/files/Descriptor.h"
#include "desktop/files/HostErrors.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mirelle::host {
namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

bool Look(const std::string& path, struct stat& found) {
    return ::stat(path.c_str(), &found) == 0;
}

bool IsPointOrTwo(const char* name) {
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

// What a folder tells of an entry, links followed where `followsLink` agrees.
bool IsOfKind(const OpenFolder& folder, const dirent& entry, EntryKind kind, const FollowsLink& followsLink) {
    const unsigned char wantedType = kind == EntryKind::File ? DT_REG : DT_DIR;
    if (entry.d_type == wantedType) return true;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return false;

    const int folderNumber = ::dirfd(folder.get());
    struct stat found {};
    if (::fstatat(folderNumber, entry.d_name, &found, AT_SYMLINK_NOFOLLOW) != 0) return false;
    if (S_ISLNK(found.st_mode)) {
        if (followsLink && !followsLink(entry.d_name)) return false;
        if (::fstatat(folderNumber, entry.d_name, &found, 0) != 0) return false;
    }
    return kind == EntryKind::File ? S_ISREG(found.st_mode) : S_ISDIR(found.st_mode);
}

std::vector<std::uint8_t> MakeBuffer(std::size_t size) {
    if (size > kGreatestFileSize) throw RunTimeError(ErrorNumber::OutOfMemory);
    try {
        return std::vector<std::uint8_t>(size);
    } catch (const std::bad_alloc&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    }
}

// Reads until the span is full or the file ends; returns how many bytes came.
std::size_t ReadInto(int descriptor, std::span<std::uint8_t> bytes, const std::string& path) {
    std::size_t count = 0;
    while (count < bytes.size()) {
        const ssize_t got = ::read(descriptor, bytes.data() + count, bytes.size() - count);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) RaiseSystemError(errno, Action::Read, path);
        if (got == 0) break;
        count += static_cast<std::size_t>(got);
    }
    return count;
}

bool IsHiddenName(std::string_view name) {
    return name.starts_with('.');
}

} // namespace

bool IsFolder(const std::string& path) {
    struct stat found {};
    return Look(path, found) && S_ISDIR(found.st_mode);
}

bool IsRegularFile(const std::string& path) {
    struct stat found {};
    return Look(path, found) && S_ISREG(found.st_mode);
}

bool CanEnterFolder(const std::string& path) {
    return IsFolder(path) && ::faccessat(AT_FDCWD, path.c_str(), R_OK | X_OK, AT_EACCESS) == 0;
}

bool IsMarkedReadOnly(const std::string& path) {
    struct stat found {};
    return Look(path, found) && S_ISREG(found.st_mode) && (found.st_mode & S_IWUSR) == 0;
}

std::vector<std::uint8_t> ReadWholeFile(const std::string& path) {
    // A look ahead of opening: opening a device can already do something to it.
    struct stat found {};
    if (!Look(path, found)) RaiseSystemError(errno, Action::Read, path);
    if (!S_ISREG(found.st_mode)) throw RunTimeError(ErrorNumber::PathFileAccess);

    const Descriptor file = OpenRegularFile(path, O_RDONLY, 0, Action::Read);
    if (::fstat(file.Number(), &found) != 0) RaiseSystemError(errno, Action::Read, path);
    std::vector<std::uint8_t> bytes = MakeBuffer(static_cast<std::size_t>(found.st_size));
    bytes.resize(ReadInto(file.Number(), bytes, path));

    // Some files (those of /proc) tell no size, and some grow meanwhile.
    std::array<std::uint8_t, 65536> more{};
    while (const std::size_t count = ReadInto(file.Number(), more, path)) {
        if (bytes.size() + count > kGreatestFileSize) throw RunTimeError(ErrorNumber::OutOfMemory);
        bytes.insert(bytes.end(), more.begin(), more.begin() + static_cast<std::ptrdiff_t>(count));
    }
    return bytes;
}

void DeleteRegularFile(const std::string& path) {
    struct stat found {};
    if (::lstat(path.c_str(), &found) != 0) RaiseSystemError(errno, Action::Delete, path);
    if (S_ISDIR(found.st_mode)) throw RunTimeError(ErrorNumber::FileNotFound);
    if (!S_ISREG(found.st_mode) && !S_ISLNK(found.st_mode)) throw RunTimeError(ErrorNumber::PathFileAccess);
    if (::unlink(path.c_str()) != 0) RaiseSystemError(errno, Action::Delete, path);
}

void GiveWritePermission(const std::string& path) {
    struct stat found {};
    if (!Look(path, found)) RaiseSystemError(errno, Action::Delete, path);
    if (!S_ISREG(found.st_mode)) throw RunTimeError(ErrorNumber::FileNotFound);
    if (::chmod(path.c_str(), (found.st_mode & 07777) | S_IWUSR) != 0)
        RaiseSystemError(errno, Action::Delete, path);
}

bool IsHiddenFile(const std::string& path) {
    return IsRegularFile(path) && IsHiddenName(path.substr(path.rfind('/') + 1));
}

std::vector<std::string> EntryNames(const std::string& folder, EntryKind kind,
                                    const FollowsLink& followsLink) {
    Entries entries = ReadEntries(folder, followsLink);
    return std::move(kind == EntryKind::File ? entries.files : entries.folders);
}

Entries ReadEntries(const std::string& folder, const FollowsLink& followsLink) {
    const OpenFolder open{::opendir(folder.c_str())};
    if (!open) throw RunTimeError(ErrorNumber::PathNotFound);
    Entries entries;
    while (const dirent* entry = ::readdir(open.get())) {
        if (IsHiddenName(entry->d_name)) continue;
        if (IsOfKind(open, *entry, EntryKind::File, followsLink))
            entries.files.emplace_back(entry->d_name);
        else if (IsOfKind(open, *entry, EntryKind::Folder, followsLink))
            entries.folders.emplace_back(entry->d_name);
        if (entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN) entries.hasLinks = true;
    }
    return entries;
}

std::vector<std::string> AllNames(const std::string& folder) {
    const OpenFolder open{::opendir(folder.c_str())};
    std::vector<std::string> names;
    if (!open) return names;
    while (const dirent* entry = ::readdir(open.get())) {
        if (!IsPointOrTwo(entry->d_name)) names.emplace_back(entry->d_name);
    }
    return names;
}

bool Exists(const std::string& path) {
    struct stat found {};
    return ::lstat(path.c_str(), &found) == 0;
}

std::string RealPathBelow(const std::string& root, const std::string& path) {
    const auto real = [](const std::string& given) {
        const std::unique_ptr<char, decltype(&std::free)> text{::realpath(given.c_str(), nullptr),
                                                               &std::free};
        return text ? std::string(text.get()) : std::string();
    };

    std::string place = real(path);
    if (place.empty()) {
        const std::size_t separator = path.rfind('/');
        // A link without a target would let a new file appear wherever it points.
        if (separator == std::string::npos || Exists(path)) return {};
        const std::string name = path.substr(separator + 1);
        if (name.empty() || IsPointOrTwo(name.c_str())) return {};
        const std::string folder = real(path.substr(0, std::max<std::size_t>(separator, 1)));
        if (folder.empty()) return {};
        place = folder == "/" ? folder + name : folder + '/' + name;
    }

    const bool isBelow = root == "/" || place == root || place.starts_with(root + '/');
    return isBelow ? place : std::string();
}

} // namespace mirelle::host
