// Port: files and folders as the program sees them.
//
// Paths are texts in the system's own form; Separator() parts their pieces. Names are matched as the system
// matches them (without regard to case on Windows). A path may hold any bytes that the system allows in
// names.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace mirelle {

class FileSystem {
public:
    virtual ~FileSystem() = default;

    // '\\' or '/'.
    virtual char Separator() const = 0;
    // The program's own folder, without a separator at its end unless it is a root.
    virtual std::string AppPath() const = 0;
    // Where the debug dump of the TIFF reader goes.
    virtual std::string DumpFile() const = 0;
    // The choices of a drive list: "c:", "d:" on Windows; the root, the home folder and mounted volumes
    // elsewhere.
    virtual std::vector<std::string> Drives() const = 0;

    // The absolute form of a path: a drive alone ("D:") is its root, no separator at the end but a root's.
    // Raises error 76 where the folder does not exist or can't be entered.
    virtual std::string ResolveFolder(const std::string& path) const = 0;
    virtual bool FolderExists(const std::string& path) const = 0;
    // Whether a file, and not a folder, stands there; hidden and read-only ones count.
    virtual bool FileExists(const std::string& path) const = 0;
    // Whether the file that stands there is hidden: lists and plain searches leave it out. False where there
    // is none.
    virtual bool IsHidden(const std::string& path) const = 0;
    // Names of the regular files (through links too) that are not hidden, in no order. Raises error 76.
    virtual std::vector<std::string> FileNames(const std::string& folder) const = 0;
    // Names of the folders in it that are not hidden, in no order. Raises error 76.
    virtual std::vector<std::string> FolderNames(const std::string& folder) const = 0;

    // The whole file. Raises 53 (missing), 76 (its folder is missing), 75 (a folder, or not readable), 57.
    virtual std::vector<std::uint8_t> ReadFile(const std::string& path) const = 0;
    // Writes a file whole, in the place of what stood there. Raises 76, 75, 70, 61 (disk full), 57.
    virtual void WriteFile(const std::string& path, std::span<const std::uint8_t> bytes) = 0;
    // Writes the bytes at the file's start; what it holds beyond them stays. Makes the file where it is
    // missing.
    virtual void OverwriteStart(const std::string& path, std::span<const std::uint8_t> bytes) = 0;
    // Raises 53 where there is no such file, 70 or 75 where it can't be deleted.
    virtual void DeleteFile(const std::string& path) = 0;
    // Clears the read-only attribute (the write permission comes back). Raises 53, 75.
    virtual void MakeWritable(const std::string& path) = 0;
};

} // namespace mirelle
