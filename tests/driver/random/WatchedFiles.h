// Files that remember what was listed and what was written elsewhere than in the library's folder.
#pragma once

#include "forms/ports/FileSystem.h"

#include <functional>
#include <optional>
#include <set>
#include <string>

namespace mirelle::driver {

// Where the program may write at the moment.
struct SavePlace {
    std::string folder; // of the library's list
    // What the user has typed for a name. With separators in it, it may lead out of the folder.
    std::string typedName;
};

// Whether a file of that path is one that a save may make or take away: it lies in the folder itself, not in
// one below or beside it; or it is what the typed name, with the path's extension behind it, leads to.
bool IsWithin(const SavePlace& place, const std::string& path);

class WatchedFiles : public FileSystem {
public:
    explicit WatchedFiles(FileSystem& files) : files_(files) {}

    // Tells where what is written, deleted or made writable has to lie.
    std::function<SavePlace()> savePlace;
    // The first path that did not.
    std::optional<std::string> strayPath;
    // Whether the files of that folder were asked for, or a typed name led there.
    bool HasBeenIn(const std::string& folder) const;

    char Separator() const override { return files_.Separator(); }
    std::string AppPath() const override { return files_.AppPath(); }
    std::string DumpFile() const override { return files_.DumpFile(); }
    std::vector<std::string> Drives() const override { return files_.Drives(); }
    std::string ResolveFolder(const std::string& path) const override { return files_.ResolveFolder(path); }
    bool FolderExists(const std::string& path) const override { return files_.FolderExists(path); }
    bool FileExists(const std::string& path) const override { return files_.FileExists(path); }
    bool IsHidden(const std::string& path) const override { return files_.IsHidden(path); }
    std::vector<std::string> FileNames(const std::string& folder) const override;
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
    void Watch(const std::string& path);

    FileSystem& files_;
    mutable std::set<std::string> visited_; // in small letters
};

} // namespace mirelle::driver
