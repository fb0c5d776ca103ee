// A folder whose path is longer than Windows takes by itself.
#pragma once

#include "tests/support/TemporaryFolder.h"

#include <string>
#include <vector>

namespace mirelle::test {

class DeepFolder {
public:
    DeepFolder();
    // What is in it must be gone by then, or else stays.
    ~DeepFolder();
    DeepFolder(const DeepFolder&) = delete;
    DeepFolder& operator=(const DeepFolder&) = delete;

    // With backslashes; of more than 300 characters.
    const std::string& Path() const { return folders_.back(); }
    std::string In(const std::string& name) const { return Path() + '\\' + name; }

private:
    TemporaryFolder folder_;
    std::vector<std::string> folders_; // each in the one before it
};

} // namespace mirelle::test
