#include "desktop/files/HostErrors.h"

#include "desktop/files/ErrorTable.h"

#include <array>
#include <cerrno>

namespace mirelle::host {
namespace {

using enum ErrorNumber;

// ENOENT, ELOOP and ENAMETOOLONG while reading are 53 only where the folder is there; RaiseByTable sees to
// it.
constexpr std::array kRows = {
    ErrorRow{ENOENT, FileNotFound, PathNotFound, FileNotFound},
    ErrorRow{ELOOP, FileNotFound, PathNotFound, FileNotFound},
    ErrorRow{ENAMETOOLONG, FileNotFound, PathFileAccess, FileNotFound},
    ErrorRow{ENOTDIR, PathNotFound, PathNotFound, FileNotFound},
    ErrorRow{EACCES, PathFileAccess, PathFileAccess, PathFileAccess},
    ErrorRow{EPERM, PathFileAccess, PathFileAccess, PathFileAccess},
    ErrorRow{EISDIR, PathFileAccess, PathFileAccess, FileNotFound},
    ErrorRow{ENXIO, PathFileAccess, PathFileAccess, PathFileAccess},
    ErrorRow{EROFS, PermissionDenied, PermissionDenied, PermissionDenied},
    ErrorRow{EBUSY, PermissionDenied, PermissionDenied, PermissionDenied},
    ErrorRow{ETXTBSY, PermissionDenied, PermissionDenied, PermissionDenied},
    ErrorRow{ENOSPC, DiskFull, DiskFull, DiskFull},
    ErrorRow{EDQUOT, DiskFull, DiskFull, DiskFull},
    ErrorRow{EFBIG, DiskFull, DiskFull, DiskFull},
    ErrorRow{ENOMEM, OutOfMemory, OutOfMemory, OutOfMemory},
};

std::string FolderOf(const std::string& path) {
    const std::size_t separator = path.rfind('/');
    if (separator == std::string::npos) return ".";
    return separator == 0 ? "/" : path.substr(0, separator);
}

} // namespace

void RaiseSystemError(int systemError, Action action, const std::string& path) {
    RaiseByTable(kRows, systemError, action, FolderOf(path));
}

} // namespace mirelle::host
