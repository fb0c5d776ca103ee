// Files that remember what was written, where, and where the program was at that moment.
#pragma once

#include "forms/ports/FileSystem.h"

#include <functional>
#include <optional>
#include <string>

namespace mirelle::driver {

class WatchedFiles : public FileSystem {
public:
    explicit WatchedFiles(FileSystem& files) : files_(files) {}

    // Tells the folder of the library's list; what is written, deleted or made writable has to lie in it.
    std::function<std::string()> currentFolder;
    // The first path that did not.
    std::optional<std::string> strayPath;

    char Separator() const override { return files_.Separator(); }
    std::string AppPath() const override { return files_.AppPath(); }
    std::string DumpFile() const override { return files_.DumpFile(); }
    std::vector<std::string> Drives() const override { return files_.Drives(); }
    std::string ResolveFolder(const std::string& path) const override { return files_.ResolveFolder(path); }
    bool FolderExists(const std::string& path) const override { return files_.FolderExists(path); }
    bool FileExists(const std::string& path) const override { return files_.FileExists(path); }
    bool IsHidden(const std::string& path) const override { return files_.IsHidden(path); }
    std::vector<std::string> FileNames(const std::string& folder) const override {
        return files_.FileNames(folder);
    }
    std::vector<std::string> FolderNames(const std::string& folder) const override {
        return files_.FolderNames(folder);
    }
    std::vector<std::uint8_t> ReadFile(const std::string& path) const override {
        return files_.ReadFile(path);
    }

    void WriteFile(const std::string& path, std::span<const std::uint8_t> bytes) override {
        Watch(path);
        files_.WriteFile(path, bytes);
    }
    void OverwriteStart(const std::string& path, std::span<const std::uint8_t> bytes) override {
        Watch(path);
        files_.OverwriteStart(path, bytes);
    }
    void DeleteFile(const std::string& path) override {
        Watch(path);
        files_.DeleteFile(path);
    }
    void MakeWritable(const std::string& path) override {
        Watch(path);
        files_.MakeWritable(path);
    }

private:
    void Watch(const std::string& path) {
        if (!currentFolder || strayPath) return;
        if (!path.starts_with(currentFolder())) strayPath = path;
    }

    FileSystem& files_;
};

} // namespace mirelle::driver
