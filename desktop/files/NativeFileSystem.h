// Files and folders of this machine under its own paths.
#pragma once

#include "desktop/files/HostFiles.h"
#include "forms/ports/FileSystem.h"
#include "forms/RunTimeError.h"

#include <memory>
#include <string>

namespace mirelle {

namespace host {
class LastFolder;
}

class NativeFileSystem : public FileSystem {
public:
    // `appFolder` is where the program finds its Support folder, `dumpFile` where the TIFF reader's debug
    // dump goes. Where a `fence` is given, nothing outside that folder exists or can come to exist, links
    // that lead out of it included, and it is the only drive.
    NativeFileSystem(const std::string& appFolder, std::string dumpFile, const std::string& fence = {});

    char Separator() const override;
    std::string AppPath() const override { return appFolder_; }
    std::string DumpFile() const override { return dumpFile_; }
    std::vector<std::string> Drives() const override;

    std::string ResolveFolder(const std::string& path) const override;
    bool FolderExists(const std::string& path) const override;
    bool FileExists(const std::string& path) const override;
    bool IsHidden(const std::string& path) const override;
    std::vector<std::string> FileNames(const std::string& folder) const override;
    std::vector<std::string> FolderNames(const std::string& folder) const override;

    std::vector<std::uint8_t> ReadFile(const std::string& path) const override;
    void WriteFile(const std::string& path, std::span<const std::uint8_t> bytes) override;
    void OverwriteStart(const std::string& path, std::span<const std::uint8_t> bytes) override;
    void DeleteFile(const std::string& path) override;
    void MakeWritable(const std::string& path) override;

private:
    bool IsInReach(const std::string& path) const;
    std::vector<std::string> NamesIn(const std::string& folder, host::EntryKind kind) const;
    // The path as the machine takes it. Raises 75 where it is no path at all, `outOfReach` where it leads
    // outside.
    std::string Checked(const std::string& path, ErrorNumber outOfReach) const;

    std::string appFolder_;
    std::string dumpFile_;
    std::string fence_; // a real path, or empty
    // Where folders are read in one go for both kinds of entries.
    std::shared_ptr<host::LastFolder> lastFolder_;
};

} // namespace mirelle
