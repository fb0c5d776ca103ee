// What a folder of this machine holds, to be looked at again later.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace mirelle::driver {

class FolderSnapshot {
public:
    explicit FolderSnapshot(std::string folder) : folder_(std::move(folder)), files_(Files()) {}

    // The files below that were made, changed or taken away since: their paths from the folder on.
    std::vector<std::string> ChangedSince() const;

private:
    using Contents = std::map<std::string, std::string>; // by the path from the folder on
    Contents Files() const;

    std::string folder_;
    Contents files_;
};

} // namespace mirelle::driver
