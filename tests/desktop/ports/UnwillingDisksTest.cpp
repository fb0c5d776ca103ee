// Disks that are full and folders that forbid: what is raised, and what is left.

#include "desktop/files/NativeFileSystem.h"
#include "tests/desktop/ports/Bytes.h"
#include "tests/support/AsNobody.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <cstring>

#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mirelle {
namespace {

using test::AsNobody;
using test::BytesOf;
using test::ErrorOf;
using test::TextOfBytes;
using testing::ElementsAre;
using testing::IsEmpty;

class ForbiddenTest : public testing::Test {
protected:
    ForbiddenTest() { ::chmod(folder_.Path().c_str(), 0755); }

    void Set(const std::string& name, mode_t mode) const { ::chmod((folder_ / name).c_str(), mode); }

    test::TemporaryFolder folder_;
    NativeFileSystem files_{folder_.Path(), folder_ / "komp.txt"};
};

TEST_F(ForbiddenTest, FilesAreNotRead) {
    folder_.MakeFile("wall.jpg");
    Set("wall.jpg", 0);
    const AsNobody nobody;
    EXPECT_TRUE(files_.FileExists(folder_ / "wall.jpg"));
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(folder_ / "wall.jpg"); }), ErrorNumber::PathFileAccess);
}

TEST_F(ForbiddenTest, FilesAreNotWrittenNorDeleted) {
    folder_.MakeFolder("Art");
    folder_.MakeFile("Art/wall.jpg", "old");
    Set("Art/wall.jpg", 0444);
    Set("Art", 0555);
    {
        const AsNobody nobody;
        EXPECT_EQ(ErrorOf([&] { files_.WriteFile(folder_ / "Art/wall.jpg", BytesOf("new")); }),
                  ErrorNumber::PathFileAccess);
        EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(folder_ / "Art/wall.jpg", BytesOf("new")); }),
                  ErrorNumber::PathFileAccess);
        EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(folder_ / "Art/wall.jpg"); }), ErrorNumber::PathFileAccess);
        EXPECT_EQ(ErrorOf([&] { files_.WriteFile(folder_ / "Art/new.jpg", BytesOf("new")); }),
                  ErrorNumber::PathFileAccess);
        EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(folder_ / "Art/new.jpg", BytesOf("new")); }),
                  ErrorNumber::PathFileAccess);
    }
    Set("Art", 0755);
    EXPECT_EQ(folder_.ContentOf("Art/wall.jpg"), "old");
    EXPECT_THAT(files_.FileNames(folder_ / "Art"), ElementsAre("wall.jpg"));
}

TEST_F(ForbiddenTest, AReadOnlyFileIsNotReplacedInAFolderThatAllowsNewFiles) {
    folder_.MakeFolder("Art");
    folder_.MakeFile("Art/wall.jpg", "old");
    Set("Art/wall.jpg", 0444);
    Set("Art", 0777);
    const AsNobody nobody;
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(folder_ / "Art/wall.jpg", BytesOf("new")); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(folder_.ContentOf("Art/wall.jpg"), "old");
}

TEST_F(ForbiddenTest, FoldersAreNotEntered) {
    folder_.MakeFolder("Art");
    folder_.MakeFile("Art/wall.jpg");
    Set("Art", 0);
    {
        const AsNobody nobody;
        EXPECT_TRUE(files_.FolderExists(folder_ / "Art"));
        EXPECT_EQ(ErrorOf([&] { files_.ResolveFolder(folder_ / "Art"); }), ErrorNumber::PathNotFound);
        EXPECT_EQ(ErrorOf([&] { files_.FileNames(folder_ / "Art"); }), ErrorNumber::PathNotFound);
        EXPECT_FALSE(files_.FileExists(folder_ / "Art/wall.jpg"));
        EXPECT_EQ(ErrorOf([&] { files_.ReadFile(folder_ / "Art/wall.jpg"); }), ErrorNumber::PathFileAccess);
        EXPECT_EQ(ErrorOf([&] { files_.MakeWritable(folder_ / "Art/wall.jpg"); }),
                  ErrorNumber::PathFileAccess);
    }
    Set("Art", 0755);
}

TEST_F(ForbiddenTest, AnothersFilesAttributesAreNotChanged) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs a second user, which only root can become";
    folder_.MakeFile("wall.jpg");
    Set("wall.jpg", 0444);
    const AsNobody nobody;
    EXPECT_EQ(ErrorOf([&] { files_.MakeWritable(folder_ / "wall.jpg"); }), ErrorNumber::PathFileAccess);
}

// A disk of 64 KiB.
class FullDiskTest : public testing::Test {
protected:
    void SetUp() override {
        folder_.MakeFolder("disk");
        isMounted_ = ::mount("none", disk_.c_str(), "tmpfs", 0, "size=64k,mode=755") == 0;
        if (!isMounted_) GTEST_SKIP() << "no disk can be mounted here: " << std::strerror(errno);
    }
    ~FullDiskTest() override {
        if (isMounted_) ::umount2(disk_.c_str(), MNT_DETACH);
    }

    test::TemporaryFolder folder_;
    std::string disk_ = folder_ / "disk";
    bool isMounted_ = false;
    NativeFileSystem files_{folder_.Path(), folder_ / "komp.txt"};
    const std::vector<std::uint8_t> tooMuch_ = std::vector<std::uint8_t>(200'000, 'x');
};

TEST_F(FullDiskTest, LeavesNothingOfANewFile) {
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(disk_ + "/wall.jpg", tooMuch_); }), ErrorNumber::DiskFull);
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(disk_ + "/komp.txt", tooMuch_); }), ErrorNumber::DiskFull);
    EXPECT_THAT(folder_.ContentOf("disk/wall.jpg"), IsEmpty());
    EXPECT_TRUE(std::filesystem::is_empty(disk_));
}

TEST_F(FullDiskTest, LosesNothingOfTheOldFile) {
    files_.WriteFile(disk_ + "/wall.jpg", BytesOf("old"));
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(disk_ + "/wall.jpg", tooMuch_); }), ErrorNumber::DiskFull);
    EXPECT_EQ(TextOfBytes(files_.ReadFile(disk_ + "/wall.jpg")), "old");
    EXPECT_THAT(files_.FileNames(disk_), ElementsAre("wall.jpg"));
    files_.WriteFile(disk_ + "/wall.jpg", BytesOf("new"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(disk_ + "/wall.jpg")), "new");
}

TEST_F(FullDiskTest, ThatIsWriteProtectedSaysSo) {
    files_.WriteFile(disk_ + "/wall.jpg", BytesOf("old"));
    if (::mount("none", disk_.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k") != 0)
        GTEST_SKIP() << "no disk can be write-protected here";
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(disk_ + "/wall.jpg", BytesOf("new")); }),
              ErrorNumber::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(disk_ + "/new.jpg", BytesOf("new")); }),
              ErrorNumber::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(disk_ + "/wall.jpg"); }), ErrorNumber::PermissionDenied);
    EXPECT_EQ(TextOfBytes(files_.ReadFile(disk_ + "/wall.jpg")), "old");
}

} // namespace
} // namespace mirelle
