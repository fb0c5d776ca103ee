// That files which change without the program's doing, or by a way past its files, are seen at the end.
#include "tests/driver/random/RandomWorld.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace mirelle::driver {
namespace {

TEST(RandomWorldTest, LetsFilesChangeWhereTheProgramHasBeen) {
    const test::TemporaryFolder folder;
    RandomWorld world(folder.Path());
    folder.MakeFile("C/Mirelle/Support/Materials/new.jpg");
    EXPECT_EQ(world.StrayFile(), std::nullopt);
}

TEST(RandomWorldTest, TellsAFileThatChangedElsewhere) {
    const test::TemporaryFolder folder;
    RandomWorld world(folder.Path());
    folder.MakeFile("D/Pictures/wall.bmp", "changed");
    EXPECT_EQ(world.StrayFile(), "D/Pictures/wall.bmp");
    EXPECT_EQ(world.Do("opendir Dir5 D:\\Pictures"), std::nullopt);
    EXPECT_EQ(world.StrayFile(), std::nullopt);
}

TEST(RandomWorldTest, TellsAFileBesideTheDrives) {
    const test::TemporaryFolder folder;
    RandomWorld world(folder.Path());
    folder.MakeFile("stray");
    EXPECT_EQ(world.StrayFile(), "stray");
}

} // namespace
} // namespace mirelle::driver
