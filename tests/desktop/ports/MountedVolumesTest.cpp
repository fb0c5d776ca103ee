#include "desktop/files/MountedVolumes.h"

#include <gmock/gmock.h>

namespace mirelle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MountedVolumes, AreBlockDevicesButNotTheRootNorTheSystemsOwnParts) {
    EXPECT_THAT(MountedVolumes("/dev/sda2 / ext4 rw 0 0\n"
                               "/dev/sda1 /boot/efi vfat rw 0 0\n"
                               "/dev/sdb1 /data ext4 rw 0 0\n"
                               "/dev/sda3 /home ext4 rw 0 0\n"
                               "/dev/sda2 /etc/hosts ext4 rw 0 0\n"),
                ElementsAre("/data", "/home"));
}

TEST(MountedVolumes, AreWhateverIsMountedInTheFoldersForVolumes) {
    EXPECT_THAT(MountedVolumes("server:/share /mnt/share nfs4 rw 0 0\n"
                               "/dev/sdc1 /media/anna/STICK vfat rw 0 0\n"
                               "/dev/sdd1 /run/media/anna/DISK ext4 rw 0 0\n"),
                ElementsAre("/media/anna/STICK", "/mnt/share", "/run/media/anna/DISK"));
}

TEST(MountedVolumes, AreNoKernelFileSystemsNorMountedPackages) {
    EXPECT_THAT(MountedVolumes("proc /proc proc rw 0 0\n"
                               "tmpfs /run tmpfs rw 0 0\n"
                               "tmpfs /tmp tmpfs rw 0 0\n"
                               "/dev/loop3 /snap/core/1 squashfs ro 0 0\n"
                               "/dev/loop4 /opt/image squashfs ro 0 0\n"),
                IsEmpty());
}

TEST(MountedVolumes, HaveTheBlanksOfTheirNamesBack) {
    EXPECT_THAT(MountedVolumes("/dev/sdc1 /media/anna/My\\040Stick\\0111 vfat rw 0 0\n"),
                ElementsAre("/media/anna/My Stick\t1"));
}

TEST(MountedVolumes, AreToldOnceEach) {
    EXPECT_THAT(MountedVolumes("/dev/sdb1 /data ext4 rw 0 0\n/dev/sdb1 /data ext4 rw 0 0\n"),
                ElementsAre("/data"));
}

TEST(MountedVolumes, OfATableThatIsNoneAreNone) {
    EXPECT_THAT(MountedVolumes(""), IsEmpty());
    EXPECT_THAT(MountedVolumes("\n\n   \nword\n/dev/sdb1"), IsEmpty());
    EXPECT_THAT(MountedVolumes("/dev/sdb1 /data\\04"), ElementsAre("/data\\04"));
}

// A folder whose name merely begins like one of the system's.
TEST(MountedVolumes, AreToldApartFromTheSystemsFoldersByWholeNames) {
    EXPECT_THAT(MountedVolumes("/dev/sdb1 /various ext4 rw 0 0\n"), ElementsAre("/various"));
}

} // namespace
} // namespace mirelle
