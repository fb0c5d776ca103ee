#include "desktop/files/LastFolder.h"

#include <utility>

#include <sys/stat.h>

namespace mirelle::host {
namespace {

// The coarsest step in which a file system tells times: two changes within one look like one.
constexpr std::time_t kCoarsestStep = 2; // seconds

} // namespace

std::vector<std::string> LastFolder::Names(const std::string& folder, EntryKind kind,
                                           const FollowsLink& followsLink) {
    const std::optional<State> state = SettledState(folder);
    const bool isKept = state && state == std::exchange(state_, std::nullopt) && kind == kind_;
    if (isKept) return std::exchange(kept_, {});

    Entries entries = ReadEntries(folder, followsLink);
    // What a link leads to changes without the folder.
    if (!entries.hasLinks) state_ = state;
    kind_ = kind == EntryKind::File ? EntryKind::Folder : EntryKind::File;
    kept_ = std::move(kind == EntryKind::File ? entries.folders : entries.files);
    return std::move(kind == EntryKind::File ? entries.files : entries.folders);
}

// Nothing for a folder that changed just now: the next change may leave the same time behind.
std::optional<LastFolder::State> LastFolder::SettledState(const std::string& folder) {
    struct stat found {};
    if (::stat(folder.c_str(), &found) != 0) return std::nullopt;
    const timespec& changed = found.st_mtim;
    if (changed.tv_sec + kCoarsestStep >= std::time(nullptr)) return std::nullopt;
    return State{found.st_dev, found.st_ino, changed.tv_sec, changed.tv_nsec};
}

} // namespace mirelle::host
