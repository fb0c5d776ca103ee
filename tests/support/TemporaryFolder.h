// A folder of its own for a test, gone with everything in it when the test ends.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace mirelle::test {

class TemporaryFolder {
public:
    TemporaryFolder() {
        const std::filesystem::path place = std::filesystem::temp_directory_path();
        std::random_device random;
        std::filesystem::path folder;
        do
            folder = place / ("mirelle-test-" + std::to_string(random()));
        while (!std::filesystem::create_directory(folder));
        path_ = std::filesystem::canonical(folder).string();
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& Path() const { return path_; }
    // The machine's path of something in it.
    std::string operator/(std::string_view name) const { return path_ + '/' + std::string(name); }

    std::string MakeFolder(std::string_view name) const {
        std::filesystem::create_directories(*this / name);
        return *this / name;
    }
    std::string MakeFile(std::string_view name, std::string_view content = "x") const {
        std::ofstream(*this / name, std::ios::binary) << content;
        return *this / name;
    }
    std::string MakeFile(std::string_view name, std::span<const std::uint8_t> content) const {
        return MakeFile(name,
                        std::string_view(reinterpret_cast<const char*>(content.data()), content.size()));
    }
    std::string ContentOf(std::string_view name) const {
        const std::ifstream file(*this / name, std::ios::binary);
        std::ostringstream content;
        content << file.rdbuf();
        return content.str();
    }

private:
    std::string path_;
};

} // namespace mirelle::test
