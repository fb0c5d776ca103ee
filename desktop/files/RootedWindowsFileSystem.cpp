#include "desktop/files/RootedWindowsFileSystem.h"

#include "forms/Text.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace mirelle {
namespace {

constexpr const char* kAppPath = "C:\\Mirelle";
constexpr const char* kDumpFile = "c:\\komp.txt";

WindowsPath Parse(const std::string& path) {
    static const WindowsPath kAppFolder = ParseWindowsPath(kAppPath, {});
    return ParseWindowsPath(path, kAppFolder);
}

// The entry of the folder that the name stands for: the one of just that name, else the first one that
// differs in case alone. Nothing where there is none.
std::optional<std::string> FindEntry(const std::string& folder, const std::string& name) {
    if (host::Exists(folder + '/' + name)) return name;
    std::optional<std::string> found;
    for (std::string& candidate : host::AllNames(folder)) {
        if (CompareNoCase(candidate, name) == 0 && (!found || candidate < *found))
            found = std::move(candidate);
    }
    return found;
}

std::string RealFolder(const std::string& folder) {
    std::error_code failure;
    const std::filesystem::path real = std::filesystem::canonical(folder, failure);
    if (failure || !host::IsFolder(real.string())) throw RunTimeError(ErrorNumber::PathNotFound);
    return real.string();
}

} // namespace

RootedWindowsFileSystem::RootedWindowsFileSystem(const std::string& rootFolder)
    : root_(RealFolder(rootFolder)) {}

std::string RootedWindowsFileSystem::AppPath() const {
    return kAppPath;
}

std::string RootedWindowsFileSystem::DumpFile() const {
    return kDumpFile;
}

std::vector<std::string> RootedWindowsFileSystem::Drives() const {
    std::vector<std::string> drives;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const std::string drive = {letter, ':'};
        if (FolderExists(drive)) drives.push_back(drive);
    }
    return drives;
}

std::string RootedWindowsFileSystem::ResolveFolder(const std::string& path) const {
    const std::optional<std::string> place = FolderPlace(path);
    if (!place || !host::CanEnterFolder(*place)) throw RunTimeError(ErrorNumber::PathNotFound);
    WindowsPath resolved = Parse(path);
    // A drive list spells letters small; paths show them capital however they were given.
    resolved.drive = UpperCase({&resolved.drive, 1}).front();
    return TextOf(resolved);
}

bool RootedWindowsFileSystem::FolderExists(const std::string& path) const {
    return FolderPlace(path).has_value();
}

bool RootedWindowsFileSystem::FileExists(const std::string& path) const {
    const WindowsPath parsed = Parse(path);
    const std::optional<std::string> place = PlaceOf(parsed);
    return place && !parsed.endsInSeparator && host::IsRegularFile(*place);
}

bool RootedWindowsFileSystem::IsHidden(const std::string& path) const {
    return FileExists(path) && host::IsHiddenFile(*PlaceOf(Parse(path)));
}

std::vector<std::string> RootedWindowsFileSystem::FileNames(const std::string& folder) const {
    return NamesIn(folder, host::EntryKind::File);
}

std::vector<std::string> RootedWindowsFileSystem::FolderNames(const std::string& folder) const {
    return NamesIn(folder, host::EntryKind::Folder);
}

std::vector<std::string> RootedWindowsFileSystem::NamesIn(const std::string& folder,
                                                          host::EntryKind kind) const {
    const std::optional<std::string> place = FolderPlace(folder);
    if (!place) throw RunTimeError(ErrorNumber::PathNotFound);
    const auto staysInside = [&](const std::string& name) {
        return !host::RealPathBelow(root_, *place + '/' + name).empty();
    };
    std::vector<std::string> names = host::EntryNames(*place, kind, staysInside);
    std::erase_if(names, [](const std::string& name) { return name.front() == '.' || !IsWindowsName(name); });
    return names;
}

std::vector<std::uint8_t> RootedWindowsFileSystem::ReadFile(const std::string& path) const {
    return host::ReadWholeFile(FilePlace(path, ErrorNumber::PathNotFound));
}

void RootedWindowsFileSystem::WriteFile(const std::string& path, std::span<const std::uint8_t> bytes) {
    host::ReplaceFile(PlaceToWrite(path), bytes);
}

void RootedWindowsFileSystem::OverwriteStart(const std::string& path, std::span<const std::uint8_t> bytes) {
    host::OverwriteFileStart(PlaceToWrite(path), bytes);
}

void RootedWindowsFileSystem::DeleteFile(const std::string& path) {
    const std::string place = FilePlace(path, ErrorNumber::FileNotFound);
    if (host::IsMarkedReadOnly(place)) throw RunTimeError(ErrorNumber::PathFileAccess);
    host::DeleteRegularFile(place);
}

void RootedWindowsFileSystem::MakeWritable(const std::string& path) {
    host::GiveWritePermission(FilePlace(path, ErrorNumber::FileNotFound));
}

// The real place on this machine that the path stands for, links followed, whether or not its last name
// exists; nothing where a folder on the way is missing or a link leads outside.
std::optional<std::string> RootedWindowsFileSystem::PlaceOf(const WindowsPath& path) const {
    if (path.kind != WindowsPathKind::Local) return std::nullopt;
    std::string place = root_;
    const auto enter = [&](const std::string& name, bool mustExist) {
        const std::optional<std::string> entry = FindEntry(place, name);
        if (!entry && mustExist) return false;
        place = host::RealPathBelow(root_, place + '/' + entry.value_or(name));
        return !place.empty();
    };

    if (!enter({path.drive}, true)) return std::nullopt;
    for (std::size_t i = 0; i < path.names.size(); ++i) {
        if (!host::IsFolder(place)) return std::nullopt;
        const bool isLast = i + 1 == path.names.size();
        if (!enter(path.names[i], !isLast)) return std::nullopt;
    }
    return place;
}

std::optional<std::string> RootedWindowsFileSystem::FolderPlace(const std::string& path) const {
    std::optional<std::string> place = PlaceOf(Parse(path));
    return place && host::IsFolder(*place) ? place : std::nullopt;
}

// The place that a path to a file stands for. Raises 75 for the empty path, 52 for forbidden characters and
// `whereMissing` where there can be no file of that path: its folder is missing, or it ends in a separator.
std::string RootedWindowsFileSystem::FilePlace(const std::string& path, ErrorNumber whereMissing) const {
    if (path.empty()) throw RunTimeError(ErrorNumber::PathFileAccess);
    const WindowsPath parsed = Parse(path);
    if (parsed.kind == WindowsPathKind::NotAName) throw RunTimeError(ErrorNumber::BadFileName);
    std::optional<std::string> place = PlaceOf(parsed);
    if (!place || (parsed.endsInSeparator && !host::IsFolder(*place))) throw RunTimeError(whereMissing);
    return std::move(*place);
}

std::string RootedWindowsFileSystem::PlaceToWrite(const std::string& path) const {
    std::string place = FilePlace(path, ErrorNumber::PathNotFound);
    if (host::IsMarkedReadOnly(place)) throw RunTimeError(ErrorNumber::PathFileAccess);
    return place;
}

} // namespace mirelle
