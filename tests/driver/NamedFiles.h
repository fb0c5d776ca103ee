// The program's files, and the one file of this machine that a command has named: while a routine runs that
// was called for that file, the name that was typed leads to it, and every other path into the program's own
// world.
#pragma once

#include "forms/ports/FileSystem.h"

#include <string>

namespace mirelle::driver {

class NamedFiles : public FileSystem {
public:
    NamedFiles(FileSystem& program, FileSystem& machine) : program_(program), machine_(machine) {}

    FileSystem& Machine() { return machine_; }

    // Leads a name to the machine for as long as it lives.
    class Naming {
    public:
        Naming(NamedFiles& files, std::string name) : files_(files) { files_.named_ = std::move(name); }
        ~Naming() { files_.named_.clear(); }
        Naming(const Naming&) = delete;
        Naming& operator=(const Naming&) = delete;

    private:
        NamedFiles& files_;
    };

    char Separator() const override { return program_.Separator(); }
    std::string AppPath() const override { return program_.AppPath(); }
    std::string DumpFile() const override { return program_.DumpFile(); }
    std::vector<std::string> Drives() const override { return program_.Drives(); }
    std::string ResolveFolder(const std::string& path) const override { return program_.ResolveFolder(path); }
    bool FolderExists(const std::string& path) const override { return program_.FolderExists(path); }
    std::vector<std::string> FileNames(const std::string& folder) const override {
        return program_.FileNames(folder);
    }
    std::vector<std::string> FolderNames(const std::string& folder) const override {
        return program_.FolderNames(folder);
    }

    bool FileExists(const std::string& path) const override { return At(path).FileExists(path); }
    bool IsHidden(const std::string& path) const override { return At(path).IsHidden(path); }
    std::vector<std::uint8_t> ReadFile(const std::string& path) const override {
        return At(path).ReadFile(path);
    }
    void WriteFile(const std::string& path, std::span<const std::uint8_t> bytes) override {
        At(path).WriteFile(path, bytes);
    }
    void OverwriteStart(const std::string& path, std::span<const std::uint8_t> bytes) override {
        At(path).OverwriteStart(path, bytes);
    }
    void DeleteFile(const std::string& path) override { At(path).DeleteFile(path); }
    void MakeWritable(const std::string& path) override { At(path).MakeWritable(path); }

private:
    FileSystem& At(const std::string& path) const {
        return !path.empty() && path == named_ ? machine_ : program_;
    }

    FileSystem& program_;
    FileSystem& machine_;
    std::string named_; // empty where no name leads to the machine
};

} // namespace mirelle::driver
