// Files and folders of Windows, under its paths and its rules.
#include "desktop/files/NativeFileSystem.h"

#include "desktop/windows/FileHandle.h"
#include "desktop/windows/Wide.h"
#include "tests/desktop/ports/Bytes.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace mirelle {
namespace {

namespace fs = std::filesystem;
using test::BytesOf;
using test::ErrorOf;
using test::Sorted;
using test::TextOfBytes;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class NativeFileSystemTest : public testing::Test {
protected:
    std::string In(const std::string& name) const { return home_ + '\\' + name; }
    std::size_t EntryCount() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(fs::path(home_)), {}));
    }
    void SetAttributes(const std::string& name, DWORD attributes) const {
        ASSERT_NE(SetFileAttributesW(windows::Wide(In(name)).c_str(), attributes), 0);
    }

    test::TemporaryFolder folder_;
    NativeFileSystem files_{folder_.Path(), "c:\\komp.txt"};
    std::string home_ = files_.AppPath();
};

TEST_F(NativeFileSystemTest, TellsItsPlaces) {
    EXPECT_EQ(files_.Separator(), '\\');
    EXPECT_EQ(files_.DumpFile(), "c:\\komp.txt");
    EXPECT_EQ(NativeFileSystem("c:/Programs/Mirelle/", "").AppPath(), "C:\\Programs\\Mirelle");
    EXPECT_EQ(NativeFileSystem("c:\\", "").AppPath(), "C:\\");
}

TEST_F(NativeFileSystemTest, HasEveryDriveWithALetter) {
    const std::vector<std::string> drives = files_.Drives();
    EXPECT_THAT(drives, Contains("c:"));
    EXPECT_EQ(drives, Sorted(drives));
}

TEST_F(NativeFileSystemTest, TakesADriveAloneForItsRoot) {
    fs::current_path(fs::path(home_));
    EXPECT_EQ(files_.ResolveFolder("c:"), "C:\\");
    EXPECT_EQ(files_.ResolveFolder("C:\\"), "C:\\");
    EXPECT_EQ(files_.ResolveFolder("c:/."), "C:\\");
    EXPECT_TRUE(files_.FolderExists("c:"));
    fs::current_path(fs::path("C:\\"));
}

TEST_F(NativeFileSystemTest, ADriveThatIsNotThereIsNoFolder) {
    const DWORD letters = GetLogicalDrives();
    for (int i = 25; i >= 0; --i) {
        if ((letters >> i & 1) != 0) continue;
        const std::string drive = {static_cast<char>('a' + i), ':'};
        EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(drive); }), ErrorNumber::PathNotFound);
        EXPECT_EQ(ErrorOf([&] { files_.ReadFile(drive + "\\wall.jpg"); }), ErrorNumber::PathNotFound);
        return;
    }
    GTEST_SKIP() << "every letter is taken";
}

TEST_F(NativeFileSystemTest, ResolvesToOneTextWithBackslashes) {
    folder_.MakeFolder("Art/Brick");
    EXPECT_EQ(files_.ResolveFolder(In("Art/Brick/")), In("Art\\Brick"));
    EXPECT_EQ(files_.ResolveFolder(In("Art\\.\\..\\Art\\")), In("Art"));
}

TEST_F(NativeFileSystemTest, MatchesNamesWithoutRegardToCaseAndKeepsThemAsTheyWereMade) {
    files_.WriteFile(In("Wall.jpg"), BytesOf("small"));
    EXPECT_TRUE(files_.FileExists(In("WALL.JPG")));
    files_.WriteFile(In("wall.JPG"), BytesOf("large"));
    EXPECT_THAT(files_.FileNames(home_), ElementsAre("Wall.jpg"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(In("wall.jpg"))), "large");
    folder_.MakeFolder("Art");
    EXPECT_EQ(files_.ResolveFolder(In("ART")), In("ART"));
}

TEST_F(NativeFileSystemTest, ReadsBackWhatItWroteAndLeavesNothingElse) {
    std::vector<std::uint8_t> bytes(300'000);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
    files_.WriteFile(In("wall.bin"), bytes);
    EXPECT_EQ(files_.ReadFile(In("wall.bin")), bytes);
    files_.WriteFile(In("wall.bin"), {});
    EXPECT_THAT(files_.ReadFile(In("wall.bin")), IsEmpty());
    EXPECT_EQ(EntryCount(), 1u);
    EXPECT_THAT(files_.FileNames(home_), ElementsAre("wall.bin"));
}

TEST_F(NativeFileSystemTest, OverwritesAStartAndLeavesTheRest) {
    files_.WriteFile(In("dump"), BytesOf("abcdef"));
    files_.OverwriteStart(In("dump"), BytesOf("XY"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(In("dump"))), "XYcdef");
    files_.OverwriteStart(In("fresh"), BytesOf("XY"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(In("fresh"))), "XY");
}

TEST_F(NativeFileSystemTest, FindsNamesOfEveryScript) {
    const std::string name = "стена ß 字 😀.jpg";
    files_.WriteFile(In(name), BytesOf("brick"));
    EXPECT_THAT(files_.FileNames(home_), ElementsAre(name));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(In(name))), "brick");
    EXPECT_EQ(TextOfBytes(files_.ReadFile(In("СТЕНА ß 字 😀.JPG"))), "brick");
}

TEST_F(NativeFileSystemTest, RaisesWhatIsMissing) {
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(In("none")); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(In("none\\none")); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(In("none\\none"), BytesOf("x")); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(In("none\\none"), BytesOf("x")); }),
              ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(In("none")); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.MakeWritable(In("none")); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.FileNames(In("none")); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.FolderNames(In("none")); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(In("none")); }), ErrorNumber::PathNotFound);
}

TEST_F(NativeFileSystemTest, TakesAFolderForNoFileAndAFileForNoFolder) {
    folder_.MakeFolder("Art");
    folder_.MakeFile("wall");
    EXPECT_FALSE(files_.FileExists(In("Art")));
    EXPECT_FALSE(files_.FolderExists(In("wall")));
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(In("Art")); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(In("Art"), BytesOf("x")); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(In("Art"), BytesOf("x")); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(In("Art")); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(In("wall")); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.FileNames(In("wall")); }), ErrorNumber::PathNotFound);
    EXPECT_TRUE(files_.FolderExists(In("Art")));
}

TEST_F(NativeFileSystemTest, TakesTheEmptyTextAndOddTextsForNoPath) {
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(""); }), ErrorNumber::PathFileAccess);
    for (const std::string& path :
         {std::string(), In("wall\xFF.jpg"), In(std::string("a\0b", 3)), std::string("NUL")}) {
        EXPECT_FALSE(files_.FileExists(path)) << path;
        EXPECT_FALSE(files_.FolderExists(path)) << path;
        EXPECT_TRUE(ErrorOf([&] { files_.ReadFile(path); })) << path;
        EXPECT_TRUE(ErrorOf([&] { files_.WriteFile(path, BytesOf("x")); })) << path;
        EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(path); }), ErrorNumber::PathNotFound) << path;
    }
    EXPECT_EQ(EntryCount(), 0u);
}

TEST_F(NativeFileSystemTest, RefusesNamesThatWindowsForbids) {
    for (const char* name : {"a<b", "a>b", "a\"b", "a|b", "a?b", "a*b", "a:b"}) {
        EXPECT_EQ(ErrorOf([&] { files_.WriteFile(In(name), BytesOf("x")); }), ErrorNumber::BadFileName)
            << name;
        EXPECT_FALSE(files_.FileExists(In(name))) << name;
    }
    EXPECT_EQ(EntryCount(), 0u);
}

TEST_F(NativeFileSystemTest, ListsFilesAndFoldersApartAndLeavesOutWhatIsHidden) {
    folder_.MakeFile("wall.jpg");
    folder_.MakeFile("secret.jpg");
    folder_.MakeFile("system.jpg");
    folder_.MakeFolder("Art");
    folder_.MakeFolder("Attic");
    SetAttributes("secret.jpg", FILE_ATTRIBUTE_HIDDEN);
    SetAttributes("system.jpg", FILE_ATTRIBUTE_SYSTEM);
    SetAttributes("Attic", FILE_ATTRIBUTE_HIDDEN);
    EXPECT_THAT(files_.FileNames(home_), ElementsAre("wall.jpg"));
    EXPECT_THAT(files_.FolderNames(home_), ElementsAre("Art"));
    EXPECT_TRUE(files_.FileExists(In("secret.jpg")));
    EXPECT_TRUE(files_.IsHidden(In("secret.jpg")));
    EXPECT_TRUE(files_.IsHidden(In("system.jpg")));
    EXPECT_FALSE(files_.IsHidden(In("wall.jpg")));
    EXPECT_FALSE(files_.IsHidden(In("Attic")));
    EXPECT_FALSE(files_.IsHidden(In("missing.jpg")));
}

TEST_F(NativeFileSystemTest, LeavesAReadOnlyFileUntilItIsMadeWritable) {
    files_.WriteFile(In("wall"), BytesOf("old"));
    SetAttributes("wall", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(In("wall"), BytesOf("new")); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(In("wall"), BytesOf("new")); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(In("wall")); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(TextOfBytes(files_.ReadFile(In("wall"))), "old");
    files_.MakeWritable(In("wall"));
    files_.WriteFile(In("wall"), BytesOf("new"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(In("wall"))), "new");
    files_.DeleteFile(In("wall"));
    EXPECT_EQ(EntryCount(), 0u);
}

TEST_F(NativeFileSystemTest, AFileThatAnotherProgramHoldsIsDenied) {
    files_.WriteFile(In("wall"), BytesOf("old"));
    const windows::FileHandle held(
        CreateFileW(windows::Wide(In("wall")).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held.IsOpen());
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(In("wall")); }), ErrorNumber::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(In("wall"), BytesOf("new")); }), ErrorNumber::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(In("wall")); }), ErrorNumber::PermissionDenied);
    EXPECT_THAT(files_.FileNames(home_), ElementsAre("wall"));
}

TEST_F(NativeFileSystemTest, StaysBehindItsFence) {
    const NativeFileSystem fenced(folder_.MakeFolder("inside"), "", folder_.MakeFolder("inside"));
    folder_.MakeFile("outside.txt");
    folder_.MakeFile("inside/wall.txt");
    EXPECT_TRUE(fenced.FileExists(In("inside\\wall.txt")));
    EXPECT_FALSE(fenced.FileExists(In("outside.txt")));
    EXPECT_FALSE(fenced.FileExists(In("inside\\..\\outside.txt")));
    EXPECT_FALSE(fenced.FolderExists("C:\\"));
    EXPECT_EQ(ErrorOf([&] { fenced.ReadFile(In("outside.txt")); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { fenced.ResolveFolder(home_); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(fenced.Drives().size(), 1u);
}

} // namespace
} // namespace mirelle
