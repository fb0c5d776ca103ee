#include "desktop/files/NativeFileSystem.h"

#include "tests/desktop/ports/Bytes.h"
#include "tests/support/AsNobody.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <chrono>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

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
    void MakeSocket(const std::string& name) const {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        (folder_ / name).copy(address.sun_path, sizeof(address.sun_path) - 1);
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
        ::close(socket);
    }
    std::size_t EntryCount() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_.Path()), {}));
    }

    test::TemporaryFolder folder_;
    NativeFileSystem files_{folder_.Path(), folder_ / "komp.txt"};
};

TEST_F(NativeFileSystemTest, TellsItsPlaces) {
    EXPECT_EQ(files_.Separator(), '/');
    EXPECT_EQ(files_.AppPath(), folder_.Path());
    EXPECT_EQ(NativeFileSystem("/opt/mirelle/", "").AppPath(), "/opt/mirelle");
    EXPECT_EQ(NativeFileSystem("/", "").AppPath(), "/");
    EXPECT_EQ(files_.DumpFile(), folder_ / "komp.txt");
}

TEST_F(NativeFileSystemTest, HasTheRootAndTheHomeFolderAsDrives) {
    ::setenv("HOME", folder_.Path().c_str(), 1);
    const std::vector<std::string> drives = files_.Drives();
    ASSERT_FALSE(drives.empty());
    EXPECT_EQ(drives.front(), "/");
    EXPECT_THAT(drives, Contains(folder_.Path()));
    ::unsetenv("HOME");
    EXPECT_EQ(files_.Drives().front(), "/");
}

TEST_F(NativeFileSystemTest, ReadsBackWhatItWrote) {
    std::vector<std::uint8_t> bytes(300'000);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
    files_.WriteFile(folder_ / "wall.bin", bytes);
    EXPECT_EQ(files_.ReadFile(folder_ / "wall.bin"), bytes);
    files_.WriteFile(folder_ / "wall.bin", {});
    EXPECT_THAT(files_.ReadFile(folder_ / "wall.bin"), IsEmpty());
    EXPECT_EQ(EntryCount(), 1u);
}

TEST_F(NativeFileSystemTest, ReadsAFileThatTellsNoSize) {
    EXPECT_FALSE(files_.ReadFile("/proc/self/status").empty());
}

TEST_F(NativeFileSystemTest, RefusesAFileOfATerabyteForWantOfMemory) {
    const std::string path = folder_.MakeFile("endless");
    if (::truncate(path.c_str(), off_t{1} << 40) != 0) GTEST_SKIP() << "no sparse files here";
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(path); }), ErrorNumber::OutOfMemory);
}

TEST_F(NativeFileSystemTest, RaisesWhatIsMissing) {
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(folder_ / "none"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(folder_ / "none/none"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(folder_ / "none/none", BytesOf("x")); }),
              ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(folder_ / "none/none", BytesOf("x")); }),
              ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(folder_ / "none"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.MakeWritable(folder_ / "none"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.FileNames(folder_ / "none"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.FolderNames(folder_ / "none"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(folder_ / "none"); }), ErrorNumber::PathNotFound);
}

TEST_F(NativeFileSystemTest, TakesAFileForNoFolder) {
    folder_.MakeFile("wall");
    EXPECT_FALSE(files_.FolderExists(folder_ / "wall"));
    EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(folder_ / "wall"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.FileNames(folder_ / "wall"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(folder_ / "wall/x"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(folder_ / "wall/x", BytesOf("x")); }),
              ErrorNumber::PathNotFound);
}

TEST_F(NativeFileSystemTest, TakesAFolderForNoFile) {
    folder_.MakeFolder("Art");
    EXPECT_TRUE(files_.FolderExists(folder_ / "Art"));
    EXPECT_FALSE(files_.FileExists(folder_ / "Art"));
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(folder_ / "Art"); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(folder_ / "Art", BytesOf("x")); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(folder_ / "Art", BytesOf("x")); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(folder_ / "Art"); }), ErrorNumber::FileNotFound);
    EXPECT_TRUE(files_.FolderExists(folder_ / "Art"));
}

TEST_F(NativeFileSystemTest, TakesTheEmptyTextAndANulForNoPath) {
    folder_.MakeFile("a");
    const std::string cut = folder_ / "a" + std::string("\0b", 2);
    for (const std::string& path : {std::string(), cut}) {
        EXPECT_FALSE(files_.FileExists(path));
        EXPECT_FALSE(files_.FolderExists(path));
        EXPECT_EQ(ErrorOf([&] { files_.ReadFile(path); }), ErrorNumber::PathFileAccess);
        EXPECT_EQ(ErrorOf([&] { files_.WriteFile(path, BytesOf("x")); }), ErrorNumber::PathFileAccess);
        EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(path); }), ErrorNumber::PathNotFound);
        EXPECT_EQ(ErrorOf([&] { files_.FileNames(path); }), ErrorNumber::PathNotFound);
    }
    EXPECT_EQ(folder_.ContentOf("a"), "x");
}

TEST_F(NativeFileSystemTest, ListsFilesAndFoldersApartAndLeavesOutWhatIsHidden) {
    folder_.MakeFile("wall.jpg");
    folder_.MakeFile("Wall.JPG");
    folder_.MakeFile(".hidden.jpg");
    folder_.MakeFolder("Art");
    folder_.MakeFolder(".git");
    EXPECT_THAT(Sorted(files_.FileNames(folder_.Path())), ElementsAre("Wall.JPG", "wall.jpg"));
    EXPECT_THAT(files_.FolderNames(folder_.Path()), ElementsAre("Art"));
    EXPECT_TRUE(files_.FileExists(folder_ / ".hidden.jpg"));
    EXPECT_TRUE(files_.IsHidden(folder_ / ".hidden.jpg"));
    EXPECT_FALSE(files_.IsHidden(folder_ / ".missing.jpg"));
    EXPECT_FALSE(files_.IsHidden(folder_ / ".git"));
    EXPECT_FALSE(files_.IsHidden(folder_ / "wall.jpg"));
}

// Folders that have stood for a while are read in one go for both lists.
TEST_F(NativeFileSystemTest, ListsWhatCameAfterTheOtherListOfTheSameFolder) {
    for (const bool isOld : {false, true}) {
        const std::string folder = folder_.MakeFolder(isOld ? "old" : "new");
        folder_.MakeFile((isOld ? "old" : "new") + std::string("/first.jpg"));
        const auto longAgo = fs::last_write_time(folder) - std::chrono::hours(1);
        if (isOld) fs::last_write_time(folder, longAgo);
        EXPECT_THAT(files_.FolderNames(folder), IsEmpty());
        EXPECT_THAT(files_.FileNames(folder), ElementsAre("first.jpg"));

        if (isOld) fs::last_write_time(folder, longAgo);
        EXPECT_THAT(files_.FolderNames(folder), IsEmpty());
        fs::create_directory(folder + "/inner");
        std::ofstream(folder + "/second.jpg") << "x";
        EXPECT_THAT(Sorted(files_.FileNames(folder)), ElementsAre("first.jpg", "second.jpg"));
        EXPECT_THAT(files_.FolderNames(folder), ElementsAre("inner"));
    }
}

TEST_F(NativeFileSystemTest, ListsEachOfTwoFoldersAfterTheOther) {
    const auto longAgo = fs::last_write_time(folder_.Path()) - std::chrono::hours(1);
    for (const char* name : {"one", "two"}) {
        folder_.MakeFolder(name);
        folder_.MakeFile(std::string(name) + "/of " + name + ".jpg");
        fs::last_write_time(folder_ / name, longAgo);
    }
    EXPECT_THAT(files_.FolderNames(folder_ / "one"), IsEmpty());
    EXPECT_THAT(files_.FileNames(folder_ / "two"), ElementsAre("of two.jpg"));
    EXPECT_THAT(files_.FileNames(folder_ / "one"), ElementsAre("of one.jpg"));
}

TEST_F(NativeFileSystemTest, ListsALinkAsWhatItLeadsToByThen) {
    const std::string folder = folder_.MakeFolder("links");
    folder_.MakeFile("target");
    fs::create_symlink("../target", folder + "/link");
    fs::last_write_time(folder, fs::last_write_time(folder) - std::chrono::hours(1));
    EXPECT_THAT(files_.FolderNames(folder), IsEmpty());
    fs::remove(folder_ / "target");
    fs::create_directory(folder_ / "target");
    EXPECT_THAT(files_.FileNames(folder), IsEmpty());
    EXPECT_THAT(files_.FolderNames(folder), ElementsAre("link"));
}

TEST_F(NativeFileSystemTest, ListsLinksAsWhatTheyLeadTo) {
    folder_.MakeFile("wall.jpg");
    folder_.MakeFolder("Art");
    fs::create_symlink("wall.jpg", folder_ / "to file");
    fs::create_symlink("Art", folder_ / "to folder");
    fs::create_symlink("nowhere", folder_ / "to nothing");
    EXPECT_THAT(Sorted(files_.FileNames(folder_.Path())), ElementsAre("to file", "wall.jpg"));
    EXPECT_THAT(Sorted(files_.FolderNames(folder_.Path())), ElementsAre("Art", "to folder"));
    EXPECT_TRUE(files_.FileExists(folder_ / "to file"));
    EXPECT_FALSE(files_.FileExists(folder_ / "to nothing"));
}

TEST_F(NativeFileSystemTest, IsNotLedAstrayByLinksInACircle) {
    fs::create_symlink("second", folder_ / "first");
    fs::create_symlink("first", folder_ / "second");
    fs::create_symlink(".", folder_ / "itself");
    EXPECT_THAT(files_.FileNames(folder_.Path()), IsEmpty());
    EXPECT_THAT(files_.FolderNames(folder_.Path()), ElementsAre("itself"));
    EXPECT_FALSE(files_.FileExists(folder_ / "first"));
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(folder_ / "first"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(folder_ / "first"); }), ErrorNumber::PathNotFound);
}

TEST_F(NativeFileSystemTest, NeverWaitsForAPipeOrASocket) {
    ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);
    MakeSocket("socket");
    fs::create_symlink("pipe", folder_ / "to pipe");
    EXPECT_THAT(files_.FileNames(folder_.Path()), IsEmpty());
    for (const char* name : {"pipe", "socket", "to pipe"}) {
        EXPECT_FALSE(files_.FileExists(folder_ / name)) << name;
        EXPECT_EQ(ErrorOf([&] { files_.ReadFile(folder_ / name); }), ErrorNumber::PathFileAccess) << name;
        EXPECT_EQ(ErrorOf([&] { files_.WriteFile(folder_ / name, BytesOf("x")); }),
                  ErrorNumber::PathFileAccess)
            << name;
        EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(folder_ / name, BytesOf("x")); }),
                  ErrorNumber::PathFileAccess)
            << name;
    }
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(folder_ / "pipe"); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile("/dev/null"); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile("/dev/null", BytesOf("x")); }), ErrorNumber::PathFileAccess);
}

TEST_F(NativeFileSystemTest, PassesNamesThatAreNoUtf8AsTheirBytes) {
    const std::string name = "wall\xFF\xC0.jpg";
    files_.WriteFile(folder_ / name, BytesOf("brick"));
    EXPECT_THAT(files_.FileNames(folder_.Path()), ElementsAre(name));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(folder_ / name)), "brick");
}

TEST_F(NativeFileSystemTest, KeepsNamesApartThatDifferInCase) {
    files_.WriteFile(folder_ / "wall.jpg", BytesOf("small"));
    files_.WriteFile(folder_ / "WALL.jpg", BytesOf("large"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(folder_ / "wall.jpg")), "small");
    EXPECT_EQ(TextOfBytes(files_.ReadFile(folder_ / "WALL.jpg")), "large");
    EXPECT_FALSE(files_.FileExists(folder_ / "Wall.jpg"));
}

TEST_F(NativeFileSystemTest, WritesNamesAsLongAsTheSystemHasThem) {
    const std::string name = std::string(251, 'w') + ".jpg";
    files_.WriteFile(folder_ / name, BytesOf("one"));
    files_.WriteFile(folder_ / name, BytesOf("two"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(folder_ / name)), "two");
    const std::string tooLong = folder_ / std::string(256, 'w');
    EXPECT_FALSE(files_.FileExists(tooLong));
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(tooLong); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(tooLong, BytesOf("x")); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(EntryCount(), 1u);
}

TEST_F(NativeFileSystemTest, KeepsTheDumpToItsOwnerAndWritesItThroughNoLink) {
    files_.OverwriteStart(folder_ / "komp.txt", BytesOf("abc"));
    EXPECT_EQ(fs::status(folder_ / "komp.txt").permissions(), fs::perms::owner_read | fs::perms::owner_write);
    folder_.MakeFile("another's", "old");
    fs::create_symlink("another's", folder_ / "link");
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(folder_ / "link", BytesOf("new")); }),
              ErrorNumber::PathNotFound);
    EXPECT_EQ(folder_.ContentOf("another's"), "old");
}

TEST_F(NativeFileSystemTest, TakesADumpThatIsThereForItsOwnerAlone) {
    folder_.MakeFile("komp.txt", "0123456789");
    ::chmod((folder_ / "komp.txt").c_str(), 0666);
    files_.OverwriteStart(folder_ / "komp.txt", BytesOf("abc"));
    EXPECT_EQ(fs::status(folder_ / "komp.txt").permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(folder_.ContentOf("komp.txt"), "abc3456789");
}

TEST_F(NativeFileSystemTest, WritesNoDumpIntoAFileOfTwoNames) {
    folder_.MakeFile("another's", "old");
    fs::create_hard_link(folder_ / "another's", folder_ / "komp.txt");
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(folder_ / "komp.txt", BytesOf("new")); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(folder_.ContentOf("another's"), "old");
    EXPECT_EQ(folder_.ContentOf("komp.txt"), "old");
}

TEST_F(NativeFileSystemTest, WritesNoDumpIntoAFileOfAnotherUser) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs a second user, which only root can become";
    ::chmod(folder_.Path().c_str(), 0777);
    folder_.MakeFile("komp.txt", "laid ready");
    ::chmod((folder_ / "komp.txt").c_str(), 0666);
    {
        const test::AsNobody nobody;
        EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(folder_ / "komp.txt", BytesOf("new")); }),
                  ErrorNumber::PathFileAccess);
    }
    EXPECT_EQ(folder_.ContentOf("komp.txt"), "laid ready");
}

TEST_F(NativeFileSystemTest, ReplacesTheFileBehindALinkAndKeepsTheLink) {
    folder_.MakeFolder("store");
    folder_.MakeFile("store/wall.jpg", "old");
    fs::create_symlink("store/wall.jpg", folder_ / "wall.jpg");
    files_.WriteFile(folder_ / "wall.jpg", BytesOf("new"));
    EXPECT_TRUE(fs::is_symlink(folder_ / "wall.jpg"));
    EXPECT_EQ(folder_.ContentOf("store/wall.jpg"), "new");
    files_.DeleteFile(folder_ / "wall.jpg");
    EXPECT_FALSE(fs::exists(fs::symlink_status(folder_ / "wall.jpg")));
    EXPECT_TRUE(files_.FileExists(folder_ / "store/wall.jpg"));
}

TEST_F(NativeFileSystemTest, GivesNewFilesTheUsersPermissionsAndReplacedOnesTheirOwn) {
    const mode_t mask = ::umask(027);
    files_.WriteFile(folder_ / "new", BytesOf("x"));
    ::umask(mask);
    EXPECT_EQ(fs::status(folder_ / "new").permissions(), static_cast<fs::perms>(0640));
    ::chmod((folder_ / "new").c_str(), 0604);
    files_.WriteFile(folder_ / "new", BytesOf("y"));
    EXPECT_EQ(fs::status(folder_ / "new").permissions(), static_cast<fs::perms>(0604));
}

TEST_F(NativeFileSystemTest, OverwritesAStartAndKeepsALongerFilesTail) {
    folder_.MakeFile("komp.txt", "0123456789");
    files_.OverwriteStart(folder_ / "komp.txt", BytesOf("abc"));
    EXPECT_EQ(folder_.ContentOf("komp.txt"), "abc3456789");
    files_.OverwriteStart(folder_ / "komp.txt", BytesOf("ABCDEFGHIJKLM"));
    EXPECT_EQ(folder_.ContentOf("komp.txt"), "ABCDEFGHIJKLM");
    files_.OverwriteStart(folder_ / "new.txt", BytesOf("abc"));
    EXPECT_EQ(folder_.ContentOf("new.txt"), "abc");
}

TEST_F(NativeFileSystemTest, MakesAReadOnlyFileWritable) {
    const std::string path = folder_.MakeFile("wall.jpg");
    ::chmod(path.c_str(), 0444);
    files_.MakeWritable(path);
    EXPECT_EQ(fs::status(path).permissions(), static_cast<fs::perms>(0644));
}

TEST_F(NativeFileSystemTest, ResolvesAFolderToOneText) {
    folder_.MakeFolder("Art/Old");
    EXPECT_EQ(files_.ResolveFolder("/"), "/");
    EXPECT_EQ(files_.ResolveFolder("//"), "/");
    EXPECT_EQ(files_.ResolveFolder(folder_ / "Art/"), folder_ / "Art");
    EXPECT_EQ(files_.ResolveFolder(folder_ / "Art//./Old/."), folder_ / "Art/Old");
    EXPECT_EQ(files_.ResolveFolder(folder_ / "Art/Old/.."), folder_ / "Art");
    EXPECT_EQ(files_.ResolveFolder("/../.."), "/");
}

TEST_F(NativeFileSystemTest, KeepsALinkedFoldersOwnTextUnlessThePathLeavesItUpwards) {
    folder_.MakeFolder("store/deep");
    fs::create_symlink("store/deep", folder_ / "link");
    EXPECT_EQ(files_.ResolveFolder(folder_ / "link"), folder_ / "link");
    EXPECT_EQ(files_.ResolveFolder(folder_ / "link/.."), folder_ / "store");
}

class FencedFileSystemTest : public testing::Test {
protected:
    FencedFileSystemTest() {
        folder_.MakeFolder("outside");
        folder_.MakeFile("outside/secret", "secret");
        fs::create_symlink("../outside", folder_ / "inside/way out");
        fs::create_symlink("../outside/secret", folder_ / "inside/file out");
        fs::create_symlink("../outside/new", folder_ / "inside/new out");
        fs::create_symlink("Art", folder_ / "inside/way round");
    }

    test::TemporaryFolder folder_;
    const std::string art_ = folder_.MakeFolder("inside/Art");
    NativeFileSystem files_{folder_ / "inside", folder_ / "inside/tmp/komp.txt", folder_ / "inside"};
};

TEST_F(FencedFileSystemTest, HasTheFenceAsItsOnlyDrive) {
    EXPECT_THAT(files_.Drives(), ElementsAre(folder_ / "inside"));
}

TEST_F(FencedFileSystemTest, ReadsAndWritesInside) {
    files_.WriteFile(folder_ / "inside/Art/wall", BytesOf("brick"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(folder_ / "inside/way round/wall")), "brick");
    EXPECT_EQ(files_.ResolveFolder(folder_ / "inside/Art/.."), folder_ / "inside");
}

TEST_F(FencedFileSystemTest, SeesNothingOutside) {
    EXPECT_THAT(files_.FileNames(folder_ / "inside"), IsEmpty());
    EXPECT_THAT(Sorted(files_.FolderNames(folder_ / "inside")), ElementsAre("Art", "way round"));
    for (const char* path :
         {"outside/secret", "inside/../outside/secret", "inside/way out/secret", "inside/file out"}) {
        EXPECT_FALSE(files_.FileExists(folder_ / path)) << path;
        EXPECT_EQ(ErrorOf([&] { files_.ReadFile(folder_ / path); }), ErrorNumber::PathNotFound) << path;
        EXPECT_EQ(ErrorOf([&] { files_.WriteFile(folder_ / path, BytesOf("x")); }), ErrorNumber::PathNotFound)
            << path;
        EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(folder_ / path, BytesOf("x")); }),
                  ErrorNumber::PathNotFound)
            << path;
        EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(folder_ / path); }), ErrorNumber::FileNotFound) << path;
        EXPECT_EQ(ErrorOf([&] { files_.MakeWritable(folder_ / path); }), ErrorNumber::FileNotFound) << path;
    }
    EXPECT_EQ(folder_.ContentOf("outside/secret"), "secret");
    for (const char* path : {"outside", "inside/..", "inside/way out", ""}) {
        EXPECT_FALSE(files_.FolderExists(folder_ / path)) << path;
        EXPECT_EQ(ErrorOf([&] { files_.FileNames(folder_ / path); }), ErrorNumber::PathNotFound) << path;
        EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(folder_ / path); }), ErrorNumber::PathNotFound) << path;
    }
}

TEST_F(FencedFileSystemTest, MakesNoFileOutsideThroughALinkToNothing) {
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(folder_ / "inside/new out", BytesOf("x")); }),
              ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(folder_ / "inside/new out", BytesOf("x")); }),
              ErrorNumber::PathNotFound);
    EXPECT_FALSE(fs::exists(folder_ / "outside/new"));
}

} // namespace
} // namespace mirelle
