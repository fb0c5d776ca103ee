#include "desktop/files/HostErrors.h"

#include "desktop/files/HostFiles.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace mirelle::host {
namespace {

struct Row {
    int systemError;
    ErrorNumber reading;
    ErrorNumber writing;
    ErrorNumber deleting;
};

using enum ErrorNumber;

// ENOENT, ELOOP and ENAMETOOLONG while reading are 53 only where the folder is there; see below.
constexpr std::array kRows = {
    Row{ENOENT, FileNotFound, PathNotFound, FileNotFound},
    Row{ELOOP, FileNotFound, PathNotFound, FileNotFound},
    Row{ENAMETOOLONG, FileNotFound, PathFileAccess, FileNotFound},
    Row{ENOTDIR, PathNotFound, PathNotFound, FileNotFound},
    Row{EACCES, PathFileAccess, PathFileAccess, PathFileAccess},
    Row{EPERM, PathFileAccess, PathFileAccess, PathFileAccess},
    Row{EISDIR, PathFileAccess, PathFileAccess, FileNotFound},
    Row{ENXIO, PathFileAccess, PathFileAccess, PathFileAccess},
    Row{EROFS, PermissionDenied, PermissionDenied, PermissionDenied},
    Row{EBUSY, PermissionDenied, PermissionDenied, PermissionDenied},
    Row{ETXTBSY, PermissionDenied, PermissionDenied, PermissionDenied},
    Row{ENOSPC, DiskFull, DiskFull, DiskFull},
    Row{EDQUOT, DiskFull, DiskFull, DiskFull},
    Row{EFBIG, DiskFull, DiskFull, DiskFull},
    Row{ENOMEM, OutOfMemory, OutOfMemory, OutOfMemory},
};

ErrorNumber NumberOf(const Row& row, Action action) {
    switch (action) {
    case Action::Read:
        return row.reading;
    case Action::Write:
        return row.writing;
    case Action::Delete:
        return row.deleting;
    }
    return DeviceIOError;
}

std::string FolderOf(const std::string& path) {
    const std::size_t separator = path.rfind('/');
    if (separator == std::string::npos) return ".";
    return separator == 0 ? "/" : path.substr(0, separator);
}

} // namespace

void RaiseSystemError(int systemError, Action action, const std::string& path) {
    const auto* row = std::find_if(kRows.begin(), kRows.end(), [systemError](const Row& each) {
        return each.systemError == systemError;
    });
    ErrorNumber number = row != kRows.end() ? NumberOf(*row, action) : DeviceIOError;
    if (action == Action::Read && number == FileNotFound && !IsFolder(FolderOf(path))) number = PathNotFound;
    throw RunTimeError(number);
}

} // namespace mirelle::host
