#include "desktop/files/MountedVolumes.h"

#include <algorithm>
#include <array>

namespace mirelle {
namespace {

constexpr std::array<std::string_view, 3> kFoldersForVolumes = {"/media", "/run/media", "/mnt"};
constexpr std::array<std::string_view, 11> kFoldersOfTheSystem = {
    "/boot", "/dev", "/efi", "/etc", "/nix", "/proc", "/run", "/snap", "/sys", "/usr", "/var"};
constexpr std::string_view kBlockDevices = "/dev/";
// Packages that are mounted as if they were disks.
constexpr std::string_view kLoopDevices = "/dev/loop";

bool LiesIn(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

template <class Folders>
bool LiesInOneOf(std::string_view path, const Folders& folders) {
    return std::any_of(folders.begin(), folders.end(),
                       [path](std::string_view folder) { return LiesIn(path, folder); });
}

std::string_view TakeWord(std::string_view& line) {
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string_view word = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
    return word;
}

bool IsOctal(char character) {
    return character >= '0' && character <= '7';
}

std::string Unescape(std::string_view word) {
    std::string text;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const bool isEscape = word[i] == '\\' && i + 3 < word.size() && IsOctal(word[i + 1]) &&
                              IsOctal(word[i + 2]) && IsOctal(word[i + 3]);
        if (!isEscape) {
            text += word[i];
            continue;
        }
        text +=
            static_cast<char>(((word[i + 1] - '0') << 6) | ((word[i + 2] - '0') << 3) | (word[i + 3] - '0'));
        i += 3;
    }
    return text;
}

bool IsVolume(std::string_view source, std::string_view folder) {
    if (folder == "/") return false;
    if (LiesInOneOf(folder, kFoldersForVolumes)) return true;
    return source.starts_with(kBlockDevices) && !source.starts_with(kLoopDevices) &&
           !LiesInOneOf(folder, kFoldersOfTheSystem);
}

} // namespace

std::vector<std::string> MountedVolumes(std::string_view mounts) {
    std::vector<std::string> volumes;
    while (!mounts.empty()) {
        const std::size_t end = std::min(mounts.find('\n'), mounts.size());
        std::string_view line = mounts.substr(0, end);
        mounts.remove_prefix(std::min(end + 1, mounts.size()));
        const std::string_view source = TakeWord(line);
        const std::string folder = Unescape(TakeWord(line));
        if (folder.starts_with('/') && IsVolume(source, folder)) volumes.push_back(folder);
    }
    std::sort(volumes.begin(), volumes.end());
    volumes.erase(std::unique(volumes.begin(), volumes.end()), volumes.end());
    return volumes;
}

} // namespace mirelle
