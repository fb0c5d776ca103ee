#include "desktop/windows/NewFile.h"

#include "desktop/windows/FileHandle.h"
#include "forms/RunTimeError.h"

#include <random>

namespace mirelle::windows {
namespace {

using host::Action;

constexpr int kNameTries = 100;

// Where a link leads to, so that it is not the link that is replaced; and of a file that is there its name as
// it was made, so that its letters stay as large or small as they are.
std::wstring TargetOf(const std::wstring& path) {
    const std::optional<std::wstring> final = FinalPath(path);
    return final ? InSystemForm(WithoutLongBeginning(*final)) : path;
}

} // namespace

NewFile::NewFile(const std::string& target) : targetText_(target) {
    const std::optional<std::wstring> wide = SystemPath(target);
    if (!wide) throw RunTimeError(ErrorNumber::PathFileAccess);
    target_ = TargetOf(*wide);
    const DWORD attributes = GetFileAttributesW(target_.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES &&
        (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0)
        throw RunTimeError(ErrorNumber::PathFileAccess);
    const std::size_t separator = target_.find_last_of(LR"(/\)");
    const std::wstring folder =
        separator == std::wstring::npos ? std::wstring() : target_.substr(0, separator + 1);
    // A name that Windows refuses must not wait until the bytes are there, and a colon would hide them in a
    // stream.
    if (target_.find_first_of(LR"(<>:"|?*)", folder.size()) != std::wstring::npos)
        throw RunTimeError(ErrorNumber::BadFileName);
    std::random_device random;
    for (int attempt = 0; attempt < kNameTries; ++attempt) {
        path_ = InSystemForm(folder + L"new" + std::to_wstring(random()) + L".tmp");
        const FileHandle file(CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                          FILE_ATTRIBUTE_NORMAL, nullptr));
        if (file.IsOpen()) return;
        const DWORD failure = GetLastError();
        if (failure != ERROR_FILE_EXISTS) {
            path_.clear();
            host::RaiseSystemError(static_cast<int>(failure), Action::Write, target);
        }
    }
    path_.clear();
    throw RunTimeError(ErrorNumber::PathFileAccess);
}

NewFile::~NewFile() {
    if (!path_.empty()) DeleteFileW(path_.c_str());
}

void NewFile::Write(std::span<const std::uint8_t> bytes) {
    const FileHandle file(
        CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) RaiseLastError(Action::Write, targetText_);
    WriteAll(file, bytes, targetText_);
}

void NewFile::TakePlace() {
    // What is replaced leaves its attributes to the new one.
    if (const DWORD attributes = GetFileAttributesW(target_.c_str()); attributes != INVALID_FILE_ATTRIBUTES)
        SetFileAttributesW(path_.c_str(), attributes);
    if (MoveFileExW(path_.c_str(), target_.c_str(), MOVEFILE_REPLACE_EXISTING) == 0) {
        // Windows says of an open file that access to it is denied.
        const DWORD failure = GetLastError();
        const bool isHeld = failure == ERROR_ACCESS_DENIED;
        host::RaiseSystemError(static_cast<int>(isHeld ? DWORD(ERROR_SHARING_VIOLATION) : failure),
                               Action::Write, targetText_);
    }
    path_.clear();
}

} // namespace mirelle::windows
