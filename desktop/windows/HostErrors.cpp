// Which run-time error a failed call of Windows is.
#include "desktop/files/HostErrors.h"

#include "desktop/files/HostFiles.h"
#include "desktop/windows/System.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>

namespace mirelle::host {
namespace {

struct Row {
    DWORD systemError;
    ErrorNumber reading;
    ErrorNumber writing;
    ErrorNumber deleting;
};

using enum ErrorNumber;

constexpr DWORD kDiskQuotaExceeded = 1295; // some headers lack its name

constexpr std::array kRows = {
    Row{ERROR_FILE_NOT_FOUND, FileNotFound, PathNotFound, FileNotFound},
    Row{ERROR_PATH_NOT_FOUND, PathNotFound, PathNotFound, FileNotFound},
    Row{ERROR_INVALID_DRIVE, PathNotFound, PathNotFound, FileNotFound},
    Row{ERROR_NOT_READY, PathNotFound, PathNotFound, FileNotFound},
    Row{ERROR_BAD_NETPATH, PathNotFound, PathNotFound, FileNotFound},
    Row{ERROR_BAD_NET_NAME, PathNotFound, PathNotFound, FileNotFound},
    Row{ERROR_FILENAME_EXCED_RANGE, FileNotFound, PathFileAccess, FileNotFound},
    Row{ERROR_CANT_RESOLVE_FILENAME, FileNotFound, PathNotFound, FileNotFound},
    Row{ERROR_INVALID_NAME, BadFileName, BadFileName, BadFileName},
    Row{ERROR_BAD_PATHNAME, BadFileName, BadFileName, BadFileName},
    Row{ERROR_DIRECTORY, PathNotFound, PathNotFound, FileNotFound},
    Row{ERROR_ACCESS_DENIED, PathFileAccess, PathFileAccess, PathFileAccess},
    Row{ERROR_ALREADY_EXISTS, PathFileAccess, PathFileAccess, PathFileAccess},
    Row{ERROR_SHARING_VIOLATION, PermissionDenied, PermissionDenied, PermissionDenied},
    Row{ERROR_LOCK_VIOLATION, PermissionDenied, PermissionDenied, PermissionDenied},
    Row{ERROR_USER_MAPPED_FILE, PermissionDenied, PermissionDenied, PermissionDenied},
    Row{ERROR_WRITE_PROTECT, PermissionDenied, PermissionDenied, PermissionDenied},
    Row{ERROR_DISK_FULL, DiskFull, DiskFull, DiskFull},
    Row{ERROR_HANDLE_DISK_FULL, DiskFull, DiskFull, DiskFull},
    Row{kDiskQuotaExceeded, DiskFull, DiskFull, DiskFull},
    Row{ERROR_FILE_TOO_LARGE, DiskFull, DiskFull, DiskFull},
    Row{ERROR_NOT_ENOUGH_MEMORY, OutOfMemory, OutOfMemory, OutOfMemory},
    Row{ERROR_OUTOFMEMORY, OutOfMemory, OutOfMemory, OutOfMemory},
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
    const std::size_t separator = path.find_last_of("\\/");
    return separator == std::string::npos ? "." : path.substr(0, separator + 1);
}

} // namespace

void RaiseSystemError(int systemError, Action action, const std::string& path) {
    const auto* row = std::find_if(kRows.begin(), kRows.end(), [systemError](const Row& each) {
        return each.systemError == static_cast<DWORD>(systemError);
    });
    const ErrorNumber number = row == kRows.end() ? DeviceIOError : NumberOf(*row, action);
    const bool lacksFolder = action == Action::Read && number == FileNotFound && !IsFolder(FolderOf(path));
    throw RunTimeError(lacksFolder ? PathNotFound : number);
}

} // namespace mirelle::host
