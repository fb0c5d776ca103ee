// A Windows disk kept in a folder of this machine: drive C: is ROOT/C, drive D: is ROOT/D where that folder
// exists, and so on. Paths are those of Windows and names are matched without regard to case; where two names
// differ in nothing else, the one that was typed wins. A name that begins with a point counts as hidden, a
// file whose owner may not write it as read-only. The program's own folder is C:\Mirelle.
//
// Nothing outside the folder is ever reached: ".." ends at a drive's root, and a link that leads out of it
// leads nowhere. Errors are those of the port; names with characters that Windows forbids raise 52.
#pragma once

#include "desktop/files/HostFiles.h"
#include "desktop/files/WindowsPath.h"
#include "forms/ports/FileSystem.h"
#include "forms/RunTimeError.h"

#include <optional>
#include <string>

namespace mirelle {

class RootedWindowsFileSystem : public FileSystem {
public:
    // Raises 76 where the folder is not there.
    explicit RootedWindowsFileSystem(const std::string& rootFolder);

    char Separator() const override { return '\\'; }
    std::string AppPath() const override;
    std::string DumpFile() const override;
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
    std::optional<std::string> PlaceOf(const WindowsPath& path) const;
    std::optional<std::string> FolderPlace(const std::string& path) const;
    std::string FilePlace(const std::string& path, ErrorNumber whereMissing) const;
    std::string PlaceToWrite(const std::string& path) const;
    std::vector<std::string> NamesIn(const std::string& folder, host::EntryKind kind) const;

    std::string root_; // a real path of this machine
};

} // namespace mirelle
