// Which run-time error a failed call of Windows is.
#include "desktop/files/HostErrors.h"

#include "desktop/files/ErrorTable.h"
#include "desktop/windows/System.h"

#include <array>

namespace mirelle::host {
namespace {

using enum ErrorNumber;

constexpr int kDiskQuotaExceeded = 1295; // some headers lack its name

constexpr std::array kRows = {
    ErrorRow{ERROR_FILE_NOT_FOUND, FileNotFound, PathNotFound, FileNotFound},
    ErrorRow{ERROR_PATH_NOT_FOUND, PathNotFound, PathNotFound, FileNotFound},
    ErrorRow{ERROR_INVALID_DRIVE, PathNotFound, PathNotFound, FileNotFound},
    ErrorRow{ERROR_NOT_READY, PathNotFound, PathNotFound, FileNotFound},
    ErrorRow{ERROR_BAD_NETPATH, PathNotFound, PathNotFound, FileNotFound},
    ErrorRow{ERROR_BAD_NET_NAME, PathNotFound, PathNotFound, FileNotFound},
    ErrorRow{ERROR_FILENAME_EXCED_RANGE, FileNotFound, PathFileAccess, FileNotFound},
    ErrorRow{ERROR_CANT_RESOLVE_FILENAME, FileNotFound, PathNotFound, FileNotFound},
    ErrorRow{ERROR_INVALID_NAME, BadFileName, BadFileName, BadFileName},
    ErrorRow{ERROR_BAD_PATHNAME, BadFileName, BadFileName, BadFileName},
    ErrorRow{ERROR_DIRECTORY, PathNotFound, PathNotFound, FileNotFound},
    ErrorRow{ERROR_ACCESS_DENIED, PathFileAccess, PathFileAccess, PathFileAccess},
    ErrorRow{ERROR_ALREADY_EXISTS, PathFileAccess, PathFileAccess, PathFileAccess},
    ErrorRow{ERROR_SHARING_VIOLATION, PermissionDenied, PermissionDenied, PermissionDenied},
    ErrorRow{ERROR_LOCK_VIOLATION, PermissionDenied, PermissionDenied, PermissionDenied},
    ErrorRow{ERROR_USER_MAPPED_FILE, PermissionDenied, PermissionDenied, PermissionDenied},
    ErrorRow{ERROR_WRITE_PROTECT, PermissionDenied, PermissionDenied, PermissionDenied},
    ErrorRow{ERROR_DISK_FULL, DiskFull, DiskFull, DiskFull},
    ErrorRow{ERROR_HANDLE_DISK_FULL, DiskFull, DiskFull, DiskFull},
    ErrorRow{kDiskQuotaExceeded, DiskFull, DiskFull, DiskFull},
    ErrorRow{ERROR_FILE_TOO_LARGE, DiskFull, DiskFull, DiskFull},
    ErrorRow{ERROR_NOT_ENOUGH_MEMORY, OutOfMemory, OutOfMemory, OutOfMemory},
    ErrorRow{ERROR_OUTOFMEMORY, OutOfMemory, OutOfMemory, OutOfMemory},
};

std::string FolderOf(const std::string& path) {
    const std::size_t separator = path.find_last_of("\\/");
    return separator == std::string::npos ? "." : path.substr(0, separator + 1);
}

} // namespace

void RaiseSystemError(int systemError, Action action, const std::string& path) {
    RaiseByTable(kRows, systemError, action, FolderOf(path));
}

} // namespace mirelle::host
