// Disks that are full and folders that forbid: what is raised, and what is left.

#include "desktop/files/HostErrors.h"
#include "desktop/files/NativeFileSystem.h"
#include "tests/desktop/ports/Bytes.h"
#include "tests/support/AsNobody.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/FullDisk.h"
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
using test::FullBy;
using test::FullDisk;
using test::TextOfBytes;
using testing::ElementsAre;

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

class FullDiskTest : public testing::TestWithParam<FullBy> {
protected:
    void SetUp() override {
        if (full_.IsThere()) return;
        ASSERT_EQ(GetParam(), FullBy::Mount)
            << "the size of files can't be limited: " << std::strerror(errno);
        GTEST_SKIP() << "no disk can be mounted here, the limit stands in for it: " << std::strerror(errno);
    }

    test::TemporaryFolder folder_;
    std::string disk_ = folder_.MakeFolder("disk");
    FullDisk full_{disk_, GetParam()};
    NativeFileSystem files_{folder_.Path(), folder_ / "komp.txt"};
    const std::vector<std::uint8_t> tooMuch_ = std::vector<std::uint8_t>(3 * FullDisk::kSize, 'x');
};

TEST_P(FullDiskTest, LeavesNothingOfANewFile) {
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(disk_ + "/wall.jpg", tooMuch_); }), ErrorNumber::DiskFull);
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(disk_ + "/komp.txt", tooMuch_); }), ErrorNumber::DiskFull);
    EXPECT_TRUE(std::filesystem::is_empty(disk_));
}

TEST_P(FullDiskTest, LosesNothingOfTheOldFile) {
    files_.WriteFile(disk_ + "/wall.jpg", BytesOf("old"));
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(disk_ + "/wall.jpg", tooMuch_); }), ErrorNumber::DiskFull);
    EXPECT_EQ(TextOfBytes(files_.ReadFile(disk_ + "/wall.jpg")), "old");
    EXPECT_THAT(files_.FileNames(disk_), ElementsAre("wall.jpg"));
    files_.WriteFile(disk_ + "/wall.jpg", BytesOf("new"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(disk_ + "/wall.jpg")), "new");
}

INSTANTIATE_TEST_SUITE_P(Ways, FullDiskTest, testing::Values(FullBy::Mount, FullBy::Limit),
                         [](const auto& way) { return NameOf(way.param); });

class WriteProtectedDiskTest : public testing::Test {
protected:
    void SetUp() override {
        folder_.MakeFile("disk/wall.jpg", "old");
        isMounted_ = ::mount(disk_.c_str(), disk_.c_str(), nullptr, MS_BIND, nullptr) == 0;
        if (!isMounted_ || ::mount("none", disk_.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr))
            GTEST_SKIP() << "no disk can be write-protected here: " << std::strerror(errno);
    }
    ~WriteProtectedDiskTest() override {
        if (isMounted_) ::umount2(disk_.c_str(), MNT_DETACH);
    }

    test::TemporaryFolder folder_;
    std::string disk_ = folder_.MakeFolder("disk");
    bool isMounted_ = false;
    NativeFileSystem files_{folder_.Path(), folder_ / "komp.txt"};
};

TEST_F(WriteProtectedDiskTest, SaysSo) {
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(disk_ + "/wall.jpg", BytesOf("new")); }),
              ErrorNumber::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(disk_ + "/new.jpg", BytesOf("new")); }),
              ErrorNumber::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files_.OverwriteStart(disk_ + "/wall.jpg", BytesOf("new")); }),
              ErrorNumber::PermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files_.DeleteFile(disk_ + "/wall.jpg"); }), ErrorNumber::PermissionDenied);
    EXPECT_EQ(TextOfBytes(files_.ReadFile(disk_ + "/wall.jpg")), "old");
}

// What the system says of disks, for where no such disk can be had.
TEST(SystemErrors, TellFullAndWriteProtectedDisksApart) {
    using host::Action;
    for (const int full : {ENOSPC, EDQUOT, EFBIG})
        EXPECT_EQ(ErrorOf([&] { host::RaiseSystemError(full, Action::Write, "/x"); }), ErrorNumber::DiskFull);
    for (const Action action : {Action::Write, Action::Delete})
        EXPECT_EQ(ErrorOf([&] { host::RaiseSystemError(EROFS, action, "/x"); }),
                  ErrorNumber::PermissionDenied);
}

} // namespace
} // namespace mirelle
