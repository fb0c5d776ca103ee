#include "tests/driver/random/FolderSnapshot.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace mirelle::driver {

namespace fs = std::filesystem;

FolderSnapshot::Contents FolderSnapshot::Files() const {
    Contents files;
    for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
        if (entry.is_directory()) continue;
        std::ifstream file(entry.path(), std::ios::binary);
        files[entry.path().lexically_relative(folder_).string()] =
            std::string(std::istreambuf_iterator<char>(file), {});
    }
    return files;
}

std::vector<std::string> FolderSnapshot::ChangedSince() const {
    const Contents now = Files();
    Contents changed;
    std::ranges::set_symmetric_difference(files_, now, std::inserter(changed, changed.end()));
    std::vector<std::string> paths;
    for (const auto& [path, content] : changed)
        paths.push_back(path);
    return paths;
}

} // namespace mirelle::driver
