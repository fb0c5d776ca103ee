#include "tests/desktop/windows/DeepFolder.h"

#include "desktop/windows/FileHandle.h"
#include "desktop/windows/Wide.h"

#include <algorithm>
#include <stdexcept>

namespace mirelle::test {
namespace {

constexpr std::size_t kLength = 300;

// Not by what is tested.
std::wstring LongForm(const std::string& path) {
    return LR"(\\?\)" + windows::Wide(path);
}

} // namespace

DeepFolder::DeepFolder() {
    std::string path = folder_.Path();
    std::ranges::replace(path, '/', '\\');
    while (path.size() <= kLength) {
        path += "\\Wände und Böden, Ziegel und Kacheln " + std::to_string(folders_.size());
        if (CreateDirectoryW(LongForm(path).c_str(), nullptr) == 0)
            throw std::runtime_error("the folder can't be made");
        folders_.push_back(path);
    }
}

DeepFolder::~DeepFolder() {
    for (auto each = folders_.rbegin(); each != folders_.rend(); ++each)
        RemoveDirectoryW(LongForm(*each).c_str());
}

} // namespace mirelle::test
