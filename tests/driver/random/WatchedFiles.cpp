#include "tests/driver/random/WatchedFiles.h"

#include "desktop/files/WindowsPath.h"
#include "forms/Text.h"

#include <algorithm>

namespace mirelle::driver {
namespace {

// The one text of a path, whatever its points, separators and letters' cases.
std::string Settled(const WindowsPath& path) {
    return LowerCase(TextOf(path));
}

std::string Settled(const std::string& path) {
    return Settled(ParseWindowsPath(path, {}));
}

std::string FolderOf(const std::string& path) {
    WindowsPath folder = ParseWindowsPath(path, {});
    if (!folder.names.empty()) folder.names.pop_back();
    return Settled(folder);
}

} // namespace

bool IsWithin(const SavePlace& place, const std::string& path) {
    if (FolderOf(path) == Settled(place.folder)) return true;
    if (place.typedName.find_first_of("\\/") == std::string::npos) return false;
    const std::string extension = path.substr(std::min(path.rfind('.'), path.size()));
    return Settled(path) == Settled(place.folder + '\\' + Trim(place.typedName) + extension);
}

std::vector<std::string> WatchedFiles::FileNames(const std::string& folder) const {
    visited_.insert(Settled(folder));
    return files_.FileNames(folder);
}

bool WatchedFiles::HasBeenIn(const std::string& folder) const {
    return visited_.contains(Settled(folder));
}

void WatchedFiles::Watch(const std::string& path) {
    if (!savePlace || strayPath) return;
    if (IsWithin(savePlace(), path)) {
        visited_.insert(FolderOf(path));
    } else {
        strayPath = path;
    }
}

} // namespace mirelle::driver
