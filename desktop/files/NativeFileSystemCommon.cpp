// What native files and folders are on every system alike. Paths and drives are each system's own.
#include "desktop/files/NativeFileSystem.h"

namespace mirelle {

std::vector<std::string> NativeFileSystem::FileNames(const std::string& folder) const {
    return NamesIn(folder, host::EntryKind::File);
}

std::vector<std::string> NativeFileSystem::FolderNames(const std::string& folder) const {
    return NamesIn(folder, host::EntryKind::Folder);
}

std::vector<std::uint8_t> NativeFileSystem::ReadFile(const std::string& path) const {
    return host::ReadWholeFile(Checked(path, ErrorNumber::PathNotFound));
}

void NativeFileSystem::WriteFile(const std::string& path, std::span<const std::uint8_t> bytes) {
    host::ReplaceFile(Checked(path, ErrorNumber::PathNotFound), bytes);
}

void NativeFileSystem::OverwriteStart(const std::string& path, std::span<const std::uint8_t> bytes) {
    host::OverwriteFileStart(Checked(path, ErrorNumber::PathNotFound), bytes);
}

void NativeFileSystem::DeleteFile(const std::string& path) {
    host::DeleteRegularFile(Checked(path, ErrorNumber::FileNotFound));
}

void NativeFileSystem::MakeWritable(const std::string& path) {
    host::GiveWritePermission(Checked(path, ErrorNumber::FileNotFound));
}

bool NativeFileSystem::IsInReach(const std::string& path) const {
    return fence_.empty() || !host::RealPathBelow(fence_, path).empty();
}

} // namespace mirelle
