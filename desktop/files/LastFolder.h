// The folder that was read last.
//
// The list of folders and that of files are filled from the same folder one after the other, and reading a
// large one takes longer than anything else about it. So what the first question did not ask for is kept for
// the second one, as long as nothing can have changed between them.
#pragma once

#include "desktop/files/HostFiles.h"

#include <ctime>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace mirelle::host {

class LastFolder {
public:
    // As EntryNames.
    std::vector<std::string> Names(const std::string& folder, EntryKind kind, const FollowsLink& followsLink);

private:
    // A folder at one state of its entries.
    struct State {
        dev_t device;
        ino_t number;
        std::time_t seconds; // of its last change
        long nanoseconds;

        friend bool operator==(const State&, const State&) = default;
    };
    static std::optional<State> SettledState(const std::string& folder);

    std::optional<State> state_; // of the folder whose names are kept; nothing where none are
    EntryKind kind_ = EntryKind::File;
    std::vector<std::string> kept_;
};

} // namespace mirelle::host
