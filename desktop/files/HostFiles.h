// Files and folders of this machine, as every file system of the program uses them. Paths are the machine's
// own, bytes without a NUL; whoever calls has already turned what the program named into one.
//
// What goes wrong is raised as the run-time error that the program knows: the numbers stand at each function.
// Nothing here waits for a FIFO, a socket or a device: only regular files are opened.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace mirelle::host {

// No longer file is read: a picture or a list of names is never as long, and a stray file of a terabyte must
// not take the machine's memory.
constexpr std::size_t kGreatestFileSize = std::size_t{1} << 30;

bool IsFolder(const std::string& path);
bool IsRegularFile(const std::string& path);
// Whether the folder is there, may be listed and may be entered.
bool CanEnterFolder(const std::string& path);
// Whether the file's owner lacks the permission to write: the counterpart of a read-only attribute. False
// where there is no file.
bool IsMarkedReadOnly(const std::string& path);

// The whole file. Raises 53 (missing), 76 (its folder is missing), 75 (no regular file, or not readable),
// 7 (longer than kGreatestFileSize or than the memory at hand), 57 (the device failed).
std::vector<std::uint8_t> ReadWholeFile(const std::string& path);

// Puts a file with these bytes in the place of what stood there, whole or not at all: the bytes go to a
// private file beside it first. A link's target is replaced, not the link. Permissions of a replaced file
// stay. Raises 76 (its folder is missing), 75 (no regular file stands there, or it or the folder may not be
// written), 70 (write-protected or in use), 61 (disk full), 57.
void ReplaceFile(const std::string& path, std::span<const std::uint8_t> bytes);

// Writes the bytes at the file's start and leaves what it holds beyond them; makes the file where it is
// missing. Raises what ReplaceFile raises; a file that was made for it is then gone again. Where the system
// tells whose a file is, it is for this user alone then, also where it was there before, and one of another
// user's or of more than one name raises 75.
void OverwriteFileStart(const std::string& path, std::span<const std::uint8_t> bytes);

// Takes the file away; of a link the link. Raises 53 (no such file), 75 (not permitted), 70 (in use).
void DeleteRegularFile(const std::string& path);

// Gives the owner the permission to write. Raises 53 (no such file), 75 (not permitted).
void GiveWritePermission(const std::string& path);

// Whether there is a file and it is hidden: its name begins with a point; on Windows it bears the attribute,
// or that of the system's own files.
bool IsHiddenFile(const std::string& path);

enum class EntryKind { File, Folder };

// Asked for each link in a folder: whether to look at what it leads to.
using FollowsLink = std::function<bool(const std::string& name)>;

// The names of the folder's regular files, or of its folders, that are not hidden, in no order.
// Links count as what they lead to. Entries whose kind the folder itself tells cost no further look, so that
// a folder of 100,000 files is listed in one pass. Raises 76.
std::vector<std::string> EntryNames(const std::string& folder, EntryKind kind,
                                    const FollowsLink& followsLink = {});

// Both at once. Links are told of because they can come to lead elsewhere while the folder stays as it is.
struct Entries {
    std::vector<std::string> files;
    std::vector<std::string> folders;
    bool hasLinks = false; // or entries of which the folder does not tell the kind
};
Entries ReadEntries(const std::string& folder, const FollowsLink& followsLink);

// All names in the folder, hidden ones too, but "." and "..". Nothing where it can't be listed.
std::vector<std::string> AllNames(const std::string& folder);

// Whether anything bears that name, a link without a target too.
bool Exists(const std::string& path);

// The place below `root` (a real path) that `path` leads to when all links are followed; the empty text where
// it leads out of it or nowhere. The last name need not exist, its folder must.
std::string RealPathBelow(const std::string& root, const std::string& path);

} // namespace mirelle::host
