// The two ways in which files are written on Windows: in the place of another, and over another's start.
#include "desktop/files/HostFiles.h"
#include "desktop/windows/FileHandle.h"
#include "desktop/windows/NewFile.h"
#include "forms/RunTimeError.h"

#include <algorithm>

namespace mirelle::host {
namespace {

using windows::RaiseLastError;

constexpr DWORD kGreatestWrite = 1U << 24;

void WriteAll(const windows::FileHandle& file, std::span<const std::uint8_t> bytes, const std::string& path) {
    while (!bytes.empty()) {
        const DWORD wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kGreatestWrite));
        DWORD put = 0;
        if (WriteFile(file.Get(), bytes.data(), wanted, &put, nullptr) == 0)
            RaiseLastError(Action::Write, path);
        bytes = bytes.subspan(put);
    }
}

} // namespace

void ReplaceFile(const std::string& path, std::span<const std::uint8_t> bytes) {
    windows::NewFile written(path);
    {
        const windows::FileHandle file(CreateFileW(written.Path().c_str(), GENERIC_WRITE, 0, nullptr,
                                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!file.IsOpen()) RaiseLastError(Action::Write, path);
        WriteAll(file, bytes, path);
    }
    written.TakePlace();
}

void OverwriteFileStart(const std::string& path, std::span<const std::uint8_t> bytes) {
    const bool wasThere = Exists(path);
    try {
        const windows::FileHandle file =
            windows::OpenRegularFile(path, GENERIC_WRITE, OPEN_ALWAYS, Action::Write);
        WriteAll(file, bytes, path);
    } catch (const RunTimeError&) {
        if (!wasThere) ResumeNext([&] { DeleteRegularFile(path); });
        throw;
    }
}

} // namespace mirelle::host
