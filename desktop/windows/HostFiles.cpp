// Files and folders of a Windows machine. Names that begin with a point are as good as any; hidden is what
// bears the attribute, or that of the system's own files.
#include "desktop/files/HostFiles.h"

#include "desktop/windows/FileHandle.h"
#include "desktop/windows/Wide.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>
#include <new>

namespace mirelle::host {
namespace {

using windows::AttributesOf;
using windows::FileHandle;
using windows::RaiseLastError;
using windows::SystemPath;

constexpr DWORD kHidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
constexpr DWORD kGreatestRead = 1U << 24; // one call's, so that a slow disk can be seen to go on

bool Has(DWORD attributes, DWORD wanted) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & wanted) != 0;
}

bool IsFile(DWORD attributes) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool IsPointOrTwo(std::wstring_view name) {
    return name == L"." || name == L"..";
}

std::wstring Inside(const std::wstring& folder, std::wstring_view name) {
    const bool needsSeparator = !folder.ends_with(L'\\') && !folder.ends_with(L'/');
    return folder + (needsSeparator ? L"\\" : L"") + std::wstring(name);
}

// A look through the entries of a folder.
class Search {
public:
    // Whether there is a first one stands in IsOpen(); the root of an empty disk has none, not even itself.
    explicit Search(const std::wstring& folder)
        : handle_(FindFirstFileExW(Inside(folder, L"*").c_str(), FindExInfoBasic, &entry_,
                                   FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH)) {}
    ~Search() {
        if (IsOpen()) FindClose(handle_);
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    const WIN32_FIND_DATAW& Entry() const { return entry_; }
    bool Next() { return FindNextFileW(handle_, &entry_) != 0; }

private:
    WIN32_FIND_DATAW entry_{}; // ahead of the handle, whose making fills it
    HANDLE handle_;
};

// Calls `take` for each entry of the folder but "." and "..". False where the folder can't be listed.
template <class Take>
bool ForEachEntry(const std::string& folder, Take&& take) {
    const std::optional<std::wstring> wide = SystemPath(folder);
    if (!wide) return false;
    Search search(*wide);
    if (!search.IsOpen()) return GetLastError() == ERROR_FILE_NOT_FOUND && IsFolder(folder);
    do {
        if (!IsPointOrTwo(search.Entry().cFileName)) take(*wide, search.Entry());
    } while (search.Next());
    return true;
}

std::vector<std::uint8_t> MakeBuffer(std::size_t size) {
    if (size > kGreatestFileSize) throw RunTimeError(ErrorNumber::OutOfMemory);
    try {
        return std::vector<std::uint8_t>(size);
    } catch (const std::bad_alloc&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    }
}

// Reads until the span is full or the file ends; returns how many bytes came.
std::size_t ReadInto(const FileHandle& file, std::span<std::uint8_t> bytes, const std::string& path) {
    std::size_t count = 0;
    while (count < bytes.size()) {
        const DWORD wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size() - count, kGreatestRead));
        DWORD got = 0;
        if (ReadFile(file.Get(), bytes.data() + count, wanted, &got, nullptr) == 0)
            RaiseLastError(Action::Read, path);
        if (got == 0) break;
        count += got;
    }
    return count;
}

std::wstring RealPath(const std::wstring& path) {
    return windows::WithoutLongBeginning(windows::FinalPath(path).value_or(std::wstring()));
}

bool SameText(std::wstring_view first, std::wstring_view second) {
    return CompareStringOrdinal(first.data(), static_cast<int>(first.size()), second.data(),
                                static_cast<int>(second.size()), TRUE) == CSTR_EQUAL;
}

bool IsBelow(const std::wstring& root, const std::wstring& place) {
    if (place.size() < root.size() || !SameText(root, std::wstring_view(place).substr(0, root.size())))
        return false;
    return place.size() == root.size() || root.ends_with(L'\\') || place[root.size()] == L'\\';
}

} // namespace

bool IsFolder(const std::string& path) {
    return Has(AttributesOf(path), FILE_ATTRIBUTE_DIRECTORY);
}

bool IsRegularFile(const std::string& path) {
    return IsFile(AttributesOf(path));
}

bool CanEnterFolder(const std::string& path) {
    if (!IsFolder(path)) return false;
    const Search search(*SystemPath(path));
    return search.IsOpen() || GetLastError() == ERROR_FILE_NOT_FOUND;
}

bool IsMarkedReadOnly(const std::string& path) {
    const DWORD attributes = AttributesOf(path);
    return IsFile(attributes) && Has(attributes, FILE_ATTRIBUTE_READONLY);
}

std::vector<std::uint8_t> ReadWholeFile(const std::string& path) {
    const FileHandle file = windows::OpenRegularFile(path, GENERIC_READ, OPEN_EXISTING, Action::Read);
    LARGE_INTEGER size{};
    if (GetFileSizeEx(file.Get(), &size) == 0) RaiseLastError(Action::Read, path);
    std::vector<std::uint8_t> bytes = MakeBuffer(static_cast<std::size_t>(size.QuadPart));
    bytes.resize(ReadInto(file, bytes, path));

    // Some files grow meanwhile.
    std::array<std::uint8_t, 4096> more{};
    while (const std::size_t count = ReadInto(file, more, path)) {
        if (bytes.size() + count > kGreatestFileSize) throw RunTimeError(ErrorNumber::OutOfMemory);
        bytes.insert(bytes.end(), more.begin(), more.begin() + static_cast<std::ptrdiff_t>(count));
    }
    return bytes;
}

void DeleteRegularFile(const std::string& path) {
    const std::optional<std::wstring> wide = SystemPath(path);
    if (!wide || IsFolder(path)) throw RunTimeError(ErrorNumber::FileNotFound);
    if (DeleteFileW(wide->c_str()) == 0) RaiseLastError(Action::Delete, path);
}

void GiveWritePermission(const std::string& path) {
    const std::optional<std::wstring> wide = SystemPath(path);
    const DWORD attributes = AttributesOf(path);
    if (!wide || !IsFile(attributes)) throw RunTimeError(ErrorNumber::FileNotFound);
    if (SetFileAttributesW(wide->c_str(), attributes & ~DWORD(FILE_ATTRIBUTE_READONLY)) == 0)
        RaiseLastError(Action::Delete, path);
}

bool IsHiddenFile(const std::string& path) {
    const DWORD attributes = AttributesOf(path);
    return IsFile(attributes) && Has(attributes, kHidden);
}

std::vector<std::string> EntryNames(const std::string& folder, EntryKind kind,
                                    const FollowsLink& followsLink) {
    const bool wantsFolders = kind == EntryKind::Folder;
    std::vector<std::string> names;
    const bool listed = ForEachEntry(folder, [&](const std::wstring& place, const WIN32_FIND_DATAW& entry) {
        const DWORD attributes = entry.dwFileAttributes;
        if (Has(attributes, kHidden) || Has(attributes, FILE_ATTRIBUTE_DIRECTORY) != wantsFolders) return;
        // A name that can't be said in UTF-8 could not be found again.
        const std::optional<std::string> name = windows::ExactlyUtf8(entry.cFileName);
        if (!name) return;
        if (Has(attributes, FILE_ATTRIBUTE_REPARSE_POINT)) {
            if (followsLink && !followsLink(*name)) return;
            if (!windows::FinalPath(windows::InSystemForm(Inside(place, entry.cFileName)))) return;
        }
        names.push_back(*name);
    });
    if (!listed) throw RunTimeError(ErrorNumber::PathNotFound);
    return names;
}

std::vector<std::string> AllNames(const std::string& folder) {
    std::vector<std::string> names;
    ForEachEntry(folder, [&](const std::wstring&, const WIN32_FIND_DATAW& entry) {
        if (const std::optional<std::string> name = windows::ExactlyUtf8(entry.cFileName))
            names.push_back(*name);
    });
    return names;
}

bool Exists(const std::string& path) {
    return AttributesOf(path) != INVALID_FILE_ATTRIBUTES;
}

std::string RealPathBelow(const std::string& root, const std::string& path) {
    const std::optional<std::wstring> wide = SystemPath(path);
    const std::optional<std::wstring> wideRoot = SystemPath(root);
    if (!wide || !wideRoot) return {};
    const std::wstring realRoot = RealPath(*wideRoot);
    std::wstring place = RealPath(*wide);
    if (place.empty()) {
        // A link without a target would let a new file appear wherever it points.
        const std::size_t separator = wide->find_last_of(LR"(/\)");
        if (separator == std::wstring::npos || Exists(path)) return {};
        const std::wstring name = wide->substr(separator + 1);
        const std::wstring folder = RealPath(wide->substr(0, separator + 1));
        if (name.empty() || IsPointOrTwo(name) || folder.empty()) return {};
        place = Inside(folder, name);
    }
    if (realRoot.empty() || !IsBelow(realRoot, place)) return {};
    return windows::ExactlyUtf8(place).value_or(std::string());
}

} // namespace mirelle::host
