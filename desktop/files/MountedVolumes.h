// The mounted volumes that a user would call drives.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mirelle {

// `mounts` is the system's table of mounts: a line each, the source and the folder it is mounted on first,
// parted by blanks, with blanks and the like inside them as three octal digits behind a backslash. Returns
// the folders, sorted, each once: whatever is mounted below /media, /run/media or /mnt, and block devices
// elsewhere but for those that hold parts of the system itself (its root among them).
std::vector<std::string> MountedVolumes(std::string_view mounts);

} // namespace mirelle
