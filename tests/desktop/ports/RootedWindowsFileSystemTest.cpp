#include "desktop/files/RootedWindowsFileSystem.h"

#include "tests/desktop/ports/Bytes.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace mirelle {
namespace {

namespace fs = std::filesystem;
using test::BytesOf;
using test::ErrorOf;
using test::Sorted;
using test::TextOfBytes;
using testing::ElementsAre;
using testing::IsEmpty;

class RootedWindowsFileSystemTest : public testing::Test {
protected:
    RootedWindowsFileSystemTest() {
        folder_.MakeFolder("disk/C/Mirelle/Support");
        folder_.MakeFolder("disk/D");
    }

    test::TemporaryFolder folder_;
    std::string root_ = folder_.MakeFolder("disk");
    RootedWindowsFileSystem files_{root_};
};

TEST_F(RootedWindowsFileSystemTest, TellsItsPlaces) {
    EXPECT_EQ(files_.Separator(), '\\');
    EXPECT_EQ(files_.AppPath(), "C:\\Mirelle");
    EXPECT_EQ(files_.DumpFile(), "c:\\komp.txt");
    EXPECT_THAT(files_.Drives(), ElementsAre("c:", "d:"));
    EXPECT_EQ(ErrorOf([&] { RootedWindowsFileSystem(folder_ / "none"); }), ErrorNumber::PathNotFound);
}

TEST_F(RootedWindowsFileSystemTest, HasADriveForEachFolderThatIsNamedByALetter) {
    folder_.MakeFolder("disk/z");
    folder_.MakeFolder("disk/Extra");
    folder_.MakeFile("disk/E");
    EXPECT_THAT(files_.Drives(), ElementsAre("c:", "d:", "z:"));
    EXPECT_EQ(files_.ResolveFolder("Z:"), "Z:\\");
    EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder("E:"); }), ErrorNumber::PathNotFound);
}

TEST_F(RootedWindowsFileSystemTest, WritesWhereThePathSays) {
    files_.WriteFile("C:\\Mirelle\\Support\\wall.jpg", BytesOf("brick"));
    EXPECT_EQ(folder_.ContentOf("disk/C/Mirelle/Support/wall.jpg"), "brick");
    files_.WriteFile("d:/wall.jpg", BytesOf("stone"));
    EXPECT_EQ(folder_.ContentOf("disk/D/wall.jpg"), "stone");
    files_.WriteFile("\\Mirelle\\x", BytesOf("root of the drive"));
    EXPECT_EQ(folder_.ContentOf("disk/C/Mirelle/x"), "root of the drive");
    files_.WriteFile("Support\\x", BytesOf("relative"));
    EXPECT_EQ(folder_.ContentOf("disk/C/Mirelle/Support/x"), "relative");
}

TEST_F(RootedWindowsFileSystemTest, MatchesNamesWithoutRegardToCase) {
    folder_.MakeFile("disk/C/Mirelle/Support/W\xC3\xA4nde.JPG", "brick");
    const std::string path = "c:\\MIRELLE\\support\\w\xC3\x84nde.jpg";
    EXPECT_TRUE(files_.FileExists(path));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(path)), "brick");
    EXPECT_THAT(files_.FolderNames("c:\\mirelle"), ElementsAre("Support"));
}

TEST_F(RootedWindowsFileSystemTest, KeepsAReplacedFilesOwnName) {
    folder_.MakeFile("disk/C/Wall.JPG", "old");
    files_.WriteFile("C:\\wall.jpg", BytesOf("new"));
    EXPECT_THAT(files_.FileNames("C:\\"), ElementsAre("Wall.JPG"));
    EXPECT_EQ(folder_.ContentOf("disk/C/Wall.JPG"), "new");
}

TEST_F(RootedWindowsFileSystemTest, PrefersTheNameThatWasTyped) {
    folder_.MakeFile("disk/C/wall.jpg", "small");
    folder_.MakeFile("disk/C/WALL.jpg", "large");
    EXPECT_EQ(TextOfBytes(files_.ReadFile("C:\\wall.jpg")), "small");
    EXPECT_EQ(TextOfBytes(files_.ReadFile("C:\\WALL.jpg")), "large");
    EXPECT_EQ(TextOfBytes(files_.ReadFile("C:\\Wall.jpg")), "large");
    EXPECT_THAT(Sorted(files_.FileNames("C:\\")), ElementsAre("WALL.jpg", "wall.jpg"));
}

TEST_F(RootedWindowsFileSystemTest, CutsBlanksAndPointsAtANamesEnd) {
    files_.WriteFile("C:\\wall.jpg. . ", BytesOf("brick"));
    EXPECT_THAT(files_.FileNames("C:\\"), ElementsAre("wall.jpg"));
    EXPECT_TRUE(files_.FileExists("C:\\wall.jpg  "));
    EXPECT_TRUE(files_.FolderExists("C:\\Mirelle. "));
}

TEST_F(RootedWindowsFileSystemTest, ResolvesAFolderToOneText) {
    EXPECT_EQ(files_.ResolveFolder("D:"), "D:\\");
    EXPECT_EQ(files_.ResolveFolder("c:/Mirelle/Support/"), "C:\\Mirelle\\Support");
    EXPECT_EQ(files_.ResolveFolder("d:"), "D:\\");
    EXPECT_EQ(files_.ResolveFolder("C:\\Mirelle\\\\Support\\..\\."), "C:\\Mirelle");
    EXPECT_EQ(files_.ResolveFolder("C:\\..\\..\\Mirelle"), "C:\\Mirelle");
    EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder("C:\\none"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(""); }), ErrorNumber::PathNotFound);
}

TEST_F(RootedWindowsFileSystemTest, KnowsNoNetwork) {
    for (const char* path : {"\\\\server\\share\\x", "//server/share/x", "\\\\?\\C:\\Mirelle"}) {
        EXPECT_FALSE(files_.FolderExists(path)) << path;
        EXPECT_FALSE(files_.FileExists(path)) << path;
        EXPECT_EQ(ErrorOf([&] { files_.ReadFile(path); }), ErrorNumber::PathNotFound) << path;
        EXPECT_EQ(ErrorOf([&] { files_.WriteFile(path, BytesOf("x")); }), ErrorNumber::PathNotFound) << path;
        EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(path); }), ErrorNumber::FileNotFound) << path;
    }
}

TEST_F(RootedWindowsFileSystemTest, RefusesNamesThatWindowsForbids) {
    for (const char* path :
         {"C:\\a<b", "C:\\a>b", "C:\\a:b", "C:\\a\"b", "C:\\a|b", "C:\\a?b", "C:\\*.jpg", "CD:\\x"}) {
        EXPECT_FALSE(files_.FileExists(path)) << path;
        EXPECT_FALSE(files_.FolderExists(path)) << path;
        EXPECT_EQ(ErrorOf([&] { files_.ReadFile(path); }), ErrorNumber::BadFileName) << path;
        EXPECT_EQ(ErrorOf([&] { files_.WriteFile(path, BytesOf("x")); }), ErrorNumber::BadFileName) << path;
        EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(path); }), ErrorNumber::BadFileName) << path;
        EXPECT_EQ(ErrorOf([&] { files_.FileNames(path); }), ErrorNumber::PathNotFound) << path;
    }
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile("", BytesOf("x")); }), ErrorNumber::PathFileAccess);
    EXPECT_THAT(files_.FileNames("C:\\"), IsEmpty());
}

TEST_F(RootedWindowsFileSystemTest, RaisesWhatIsMissing) {
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile("C:\\none"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile("C:\\none\\none"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile("E:\\none"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile("C:\\none\\none", BytesOf("x")); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile("C:\\none"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile("C:\\none\\none"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.MakeWritable("C:\\none"); }), ErrorNumber::FileNotFound);
}

TEST_F(RootedWindowsFileSystemTest, TellsFilesAndFoldersApart) {
    folder_.MakeFile("disk/C/wall.jpg");
    EXPECT_FALSE(files_.FileExists("C:\\Mirelle"));
    EXPECT_FALSE(files_.FolderExists("C:\\wall.jpg"));
    EXPECT_FALSE(files_.FileExists("C:\\wall.jpg\\"));
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile("C:\\Mirelle"); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile("C:\\Mirelle\\"); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile("C:\\wall.jpg\\"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile("C:\\wall.jpg\\x"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile("C:\\Mirelle", BytesOf("x")); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile("C:\\", BytesOf("x")); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.FileNames("C:\\wall.jpg"); }), ErrorNumber::PathNotFound);
}

TEST_F(RootedWindowsFileSystemTest, HonoursTheReadOnlyAttribute) {
    const std::string path = folder_.MakeFile("disk/C/wall.jpg", "old");
    ::chmod(path.c_str(), 0444);
    EXPECT_TRUE(files_.FileExists("C:\\wall.jpg"));
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile("C:\\wall.jpg", BytesOf("new")); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart("C:\\wall.jpg", BytesOf("new")); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile("C:\\wall.jpg"); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(folder_.ContentOf("disk/C/wall.jpg"), "old");
    files_.MakeWritable("c:\\WALL.JPG");
    files_.DeleteFile("C:\\wall.jpg");
    EXPECT_FALSE(files_.FileExists("C:\\wall.jpg"));
}

TEST_F(RootedWindowsFileSystemTest, KeepsALongerDumpsTail) {
    files_.OverwriteStart(files_.DumpFile(), BytesOf("0123456789"));
    files_.OverwriteStart(files_.DumpFile(), BytesOf("abc"));
    EXPECT_EQ(folder_.ContentOf("disk/C/komp.txt"), "abc3456789");
}

TEST_F(RootedWindowsFileSystemTest, ListsNoNameThatAWindowsDiskCannotHold) {
    folder_.MakeFile("disk/C/a:b.jpg");
    folder_.MakeFile("disk/C/a\\b.jpg");
    folder_.MakeFile("disk/C/end.");
    folder_.MakeFile("disk/C/.hidden");
    folder_.MakeFile("disk/C/wall\xFF.jpg");
    EXPECT_THAT(files_.FileNames("C:\\"), ElementsAre("wall\xFF.jpg"));
    EXPECT_TRUE(files_.FileExists("C:\\wall\xFF.jpg"));
    EXPECT_TRUE(files_.FileExists("C:\\.hidden"));
    EXPECT_TRUE(files_.IsHidden("C:\\.hidden"));
    EXPECT_FALSE(files_.IsHidden("C:\\.missing"));
    EXPECT_FALSE(files_.IsHidden("C:\\wall\xFF.jpg"));
}

TEST_F(RootedWindowsFileSystemTest, WritesNamesOf250Characters) {
    const std::string name = std::string(246, 'w') + ".jpg";
    files_.WriteFile("C:\\" + name, BytesOf("x"));
    EXPECT_THAT(files_.FileNames("C:\\"), ElementsAre(name));
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile("C:\\" + std::string(256, 'w'), BytesOf("x")); }),
              ErrorNumber::PathFileAccess);
}

TEST_F(RootedWindowsFileSystemTest, ReachesNothingOutsideItsFolder) {
    folder_.MakeFolder("outside");
    folder_.MakeFile("outside/secret", "secret");
    folder_.MakeFile("secret", "secret");
    fs::create_symlink("../../outside", root_ + "/C/way out");
    fs::create_symlink("../../outside/secret", root_ + "/C/file out");
    fs::create_symlink("../../outside/new", root_ + "/C/new out");
    fs::create_symlink("../outside", root_ + "/E");
    fs::create_symlink("loop", root_ + "/C/loop");
    fs::create_symlink("Mirelle", root_ + "/C/way round");

    EXPECT_THAT(files_.Drives(), ElementsAre("c:", "d:"));
    EXPECT_THAT(files_.FileNames("C:\\"), IsEmpty());
    EXPECT_THAT(Sorted(files_.FolderNames("C:\\")), ElementsAre("Mirelle", "way round"));
    EXPECT_THAT(files_.FolderNames("C:\\way round"), ElementsAre("Support"));
    for (const char* path : {"C:\\way out\\secret", "C:\\file out", "C:\\..\\..\\secret", "E:\\secret",
                             "C:\\loop", "C:\\loop\\x", "C:\\..\\D\\..\\..\\outside\\secret"}) {
        EXPECT_FALSE(files_.FileExists(path)) << path;
        EXPECT_NE(ErrorOf([&] { files_.ReadFile(path); }), std::nullopt) << path;
        EXPECT_NE(ErrorOf([&] { files_.DeleteFile(path); }), std::nullopt) << path;
        EXPECT_NE(ErrorOf([&] { files_.MakeWritable(path); }), std::nullopt) << path;
    }
    for (const char* path : {"C:\\way out\\new", "C:\\file out", "C:\\new out", "E:\\new"}) {
        EXPECT_EQ(ErrorOf([&] { files_.WriteFile(path, BytesOf("x")); }), ErrorNumber::PathNotFound) << path;
        EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(path, BytesOf("x")); }), ErrorNumber::PathNotFound)
            << path;
    }
    EXPECT_EQ(folder_.ContentOf("outside/secret"), "secret");
    EXPECT_EQ(folder_.ContentOf("secret"), "secret");
    EXPECT_FALSE(fs::exists(folder_ / "outside/new"));
}

TEST_F(RootedWindowsFileSystemTest, NeverWaitsForAPipe) {
    ASSERT_EQ(::mkfifo((root_ + "/C/pipe").c_str(), 0600), 0);
    EXPECT_THAT(files_.FileNames("C:\\"), IsEmpty());
    EXPECT_FALSE(files_.FileExists("C:\\pipe"));
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile("C:\\pipe"); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile("C:\\pipe", BytesOf("x")); }), ErrorNumber::PathFileAccess);
}

} // namespace
} // namespace mirelle
