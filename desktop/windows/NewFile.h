// A file that is written beside another and then takes its place, whole or not at all.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace mirelle::windows {

class NewFile {
public:
    // Makes an empty file in the target's folder. Raises 76 (the folder is missing), 75 (the target is
    // a folder or read-only, or may not be written), 52 (no name of a file), 61, 57.
    explicit NewFile(const std::string& target);
    // The file goes again unless it has taken the target's place.
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // Where to write, in the form that Windows takes.
    const std::wstring& Path() const { return path_; }
    // Writes it here and now. Raises 75, 70, 61, 57.
    void Write(std::span<const std::uint8_t> bytes);
    // Raises 70 where another program holds the target.
    void TakePlace();

private:
    std::string targetText_;
    std::wstring target_;
    std::wstring path_; // empty when it is gone
};

} // namespace mirelle::windows
