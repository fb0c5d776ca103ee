// Where the makers of seeds put them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <stdexcept>
#include <string>

namespace mirelle::test {

// The seeds of one target: a folder below the one that the maker was given, emptied first.
class Seeds {
public:
    Seeds(const std::filesystem::path& folder, const std::string& target) : folder_(folder / target) {
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
    }

    void Add(const std::string& name, std::span<const std::uint8_t> bytes) const {
        std::ofstream file(folder_ / name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        if (!file.flush()) throw std::runtime_error("can't write " + (folder_ / name).string());
    }
    void AddText(const std::string& name, const std::string& text) const {
        Add(name, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    }

private:
    std::filesystem::path folder_;
};

} // namespace mirelle::test
