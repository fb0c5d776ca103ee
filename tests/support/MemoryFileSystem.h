// A file system in memory for tests: drives, backslashes, and names that are matched without regard to the
// case of ASCII letters, as on Windows. Folders have to exist before files can be put in them; AddFile and
// AddFolder make whatever is missing on the way.
#pragma once

#include "forms/ports/FileSystem.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mirelle::test {

class MemoryFileSystem : public FileSystem {
public:
    using Bytes = std::vector<std::uint8_t>;

    enum class Attribute { Normal, ReadOnly, Hidden };

    explicit MemoryFileSystem(std::string appPath = "C:\\Mirelle") : appPath_(std::move(appPath)) {
        AddFolder(appPath_);
    }

    // For the tests: setting up, looking at what happened, and letting things fail.

    void AddFolder(const std::string& path) {
        const std::string whole = Absolute(path);
        for (std::size_t end = whole.find('\\'); end != std::string::npos; end = whole.find('\\', end + 1)) {
            AddOneFolder(end == 2 ? whole.substr(0, 3) : whole.substr(0, end));
        }
        AddOneFolder(whole);
    }
    void AddFile(const std::string& path, Bytes bytes = {}, Attribute attribute = Attribute::Normal) {
        const std::string whole = Absolute(path);
        AddFolder(FolderOf(whole));
        files_[Key(whole)] = {NameOf(whole), std::move(bytes), attribute};
    }
    void AddFile(const std::string& path, std::string_view text) {
        AddFile(path, Bytes(text.begin(), text.end()));
    }
    // With everything in it, as another program would.
    void RemoveFolder(const std::string& path) {
        const std::string key = Key(Absolute(path));
        const auto inside = [&key](const auto& entry) { return entry.first.starts_with(key + '\\'); };
        std::erase_if(files_, inside);
        std::erase_if(folders_, inside);
        folders_.erase(key);
    }
    std::string Text(const std::string& path) const {
        const Bytes bytes = ReadFile(path);
        return {bytes.begin(), bytes.end()};
    }
    std::size_t FileCount() const { return files_.size(); }
    // How often something was written, by WriteFile or OverwriteStart.
    int WriteCount() const { return writeCount_; }
    // Every write raises this number from here on; nullopt ends it.
    void FailWritesWith(std::optional<ErrorNumber> number) { writeFailure_ = number; }

    // FileSystem.

    char Separator() const override { return '\\'; }
    std::string AppPath() const override { return appPath_; }
    std::string DumpFile() const override { return "c:\\komp.txt"; }
    std::vector<std::string> Drives() const override {
        std::vector<std::string> drives;
        for (const auto& [key, path] : folders_) {
            if (path.size() == 3) drives.push_back(key.substr(0, 2));
        }
        return drives;
    }

    std::string ResolveFolder(const std::string& path) const override {
        const auto found = folders_.find(Key(Absolute(path)));
        if (found == folders_.end()) throw RunTimeError(ErrorNumber::PathNotFound);
        return found->second;
    }
    bool FolderExists(const std::string& path) const override {
        return folders_.contains(Key(Absolute(path)));
    }
    bool FileExists(const std::string& path) const override { return files_.contains(Key(Absolute(path))); }
    bool IsHidden(const std::string& path) const override {
        return FileExists(path) && Existing(path).attribute == Attribute::Hidden;
    }
    std::vector<std::string> FileNames(const std::string& folder) const override {
        const std::string key = Key(ResolveFolder(folder));
        std::vector<std::string> names;
        for (const auto& [path, file] : files_) {
            if (FolderOf(path) == key && file.attribute != Attribute::Hidden) names.push_back(file.name);
        }
        return names;
    }
    std::vector<std::string> FolderNames(const std::string& folder) const override {
        const std::string key = Key(ResolveFolder(folder));
        std::vector<std::string> names;
        for (const auto& [path, name] : folders_) {
            if (path != key && FolderOf(path) == key) names.push_back(NameOf(name));
        }
        return names;
    }

    Bytes ReadFile(const std::string& path) const override { return Existing(path).bytes; }
    void WriteFile(const std::string& path, std::span<const std::uint8_t> bytes) override {
        Writable(path).bytes.assign(bytes.begin(), bytes.end());
    }
    void OverwriteStart(const std::string& path, std::span<const std::uint8_t> bytes) override {
        Bytes& present = Writable(path).bytes;
        present.resize(std::max(present.size(), bytes.size()));
        std::copy(bytes.begin(), bytes.end(), present.begin());
    }
    void DeleteFile(const std::string& path) override {
        if (Existing(path).attribute == Attribute::ReadOnly) throw RunTimeError(ErrorNumber::PathFileAccess);
        files_.erase(Key(Absolute(path)));
    }
    void MakeWritable(const std::string& path) override {
        Existing(path);
        File& file = files_[Key(Absolute(path))];
        if (file.attribute == Attribute::ReadOnly) file.attribute = Attribute::Normal;
    }

private:
    struct File {
        std::string name;
        Bytes bytes;
        Attribute attribute = Attribute::Normal;
    };

    static std::string Key(std::string path) {
        for (char& c : path) {
            if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
        }
        return path;
    }
    // What stands ahead of the last separator: the root with its separator, other folders without one.
    static std::string FolderOf(const std::string& path) {
        const std::size_t end = path.rfind('\\');
        return path.substr(0, end == 2 ? 3 : end);
    }
    static std::string NameOf(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

    // The path from its drive on, "." and ".." taken out; a path without a drive starts at the program's
    // folder, or at its drive's root where it begins with a separator.
    std::string Absolute(const std::string& path) const {
        const bool hasDrive = path.size() >= 2 && path[1] == ':';
        const bool fromRoot = !path.empty() && path.front() == '\\';
        const std::string whole =
            hasDrive ? path : (fromRoot ? appPath_.substr(0, 2) : appPath_ + '\\') + path;
        std::vector<std::string> pieces;
        for (std::size_t at = 2; at < whole.size();) {
            const std::size_t end = std::min(whole.find('\\', at), whole.size());
            const std::string piece = whole.substr(at, end - at);
            if (piece == ".." && !pieces.empty()) pieces.pop_back();
            if (!piece.empty() && piece != "." && piece != "..") pieces.push_back(piece);
            at = end + 1;
        }
        std::string result = whole.substr(0, 2);
        for (const std::string& piece : pieces)
            result += '\\' + piece;
        return pieces.empty() ? result + '\\' : result;
    }

    void AddOneFolder(const std::string& path) { folders_.emplace(Key(path), path); }

    const File& Existing(const std::string& path) const {
        const std::string whole = Absolute(path);
        const auto found = files_.find(Key(whole));
        if (found != files_.end()) return found->second;
        if (folders_.contains(Key(whole))) throw RunTimeError(ErrorNumber::PathFileAccess);
        const bool inFolder = folders_.contains(Key(FolderOf(whole)));
        throw RunTimeError(inFolder ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound);
    }
    // The file to write in, made anew where it is missing.
    File& Writable(const std::string& path) {
        if (writeFailure_) throw RunTimeError(*writeFailure_);
        const std::string whole = Absolute(path);
        if (folders_.contains(Key(whole))) throw RunTimeError(ErrorNumber::PathFileAccess);
        if (!folders_.contains(Key(FolderOf(whole)))) throw RunTimeError(ErrorNumber::PathNotFound);
        File& file = files_[Key(whole)];
        if (file.attribute == Attribute::ReadOnly) throw RunTimeError(ErrorNumber::PathFileAccess);
        if (file.name.empty()) file.name = NameOf(whole);
        ++writeCount_;
        return file;
    }

    std::string appPath_;
    std::map<std::string, std::string> folders_; // key to path as it was made
    std::map<std::string, File> files_;
    int writeCount_ = 0;
    std::optional<ErrorNumber> writeFailure_;
};

} // namespace mirelle::test
