// The text of a Windows path, taken apart as Windows does it, without a look at any disk.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mirelle {

enum class WindowsPathKind {
    Local,
    Network,  // \\server\share and the like
    NotAName, // the empty text, or characters that no name may hold
};

struct WindowsPath {
    WindowsPathKind kind = WindowsPathKind::Local;
    char drive = 'C'; // the letter as it was typed
    // The folders from the drive's root, then the last name, "." and ".." resolved; none is the root itself.
    std::vector<std::string> names;
    // Whether the text ended in a separator, as only a folder's may.
    bool endsInSeparator = false;
};

// Both slashes part names. ".." stops at the root. The blanks and points at the end of the last name are cut,
// and one point at the end of any other. A path without a drive starts at the root of `current`'s drive if it
// begins with a separator, otherwise in the folder `current`; a drive alone, and a path that begins right
// behind the drive's colon, start at that drive's root.
WindowsPath ParseWindowsPath(std::string_view text, const WindowsPath& current);

// The path's one text: "C:\" for a root, else without a separator at the end.
std::string TextOf(const WindowsPath& path);

// Whether a file that this name stands for can be on a Windows disk.
bool IsWindowsName(std::string_view name);

} // namespace mirelle
