// The two ways in which files are written on Windows: in the place of another, and over another's start.
#include "desktop/files/HostFiles.h"
#include "desktop/windows/FileHandle.h"
#include "desktop/windows/NewFile.h"
#include "forms/RunTimeError.h"

namespace mirelle::host {

void ReplaceFile(const std::string& path, std::span<const std::uint8_t> bytes) {
    windows::NewFile written(path);
    written.Write(bytes);
    written.TakePlace();
}

void OverwriteFileStart(const std::string& path, std::span<const std::uint8_t> bytes) {
    const bool wasThere = Exists(path);
    try {
        const windows::FileHandle file =
            windows::OpenRegularFile(path, GENERIC_WRITE, OPEN_ALWAYS, Action::Write);
        windows::WriteAll(file, bytes, path);
    } catch (const RunTimeError&) {
        if (!wasThere) ResumeNext([&] { DeleteRegularFile(path); });
        throw;
    }
}

} // namespace mirelle::host
