// That files which go astray are seen.
#include "tests/driver/random/WatchedFiles.h"
#include "desktop/files/RootedWindowsFileSystem.h"
#include "tests/driver/random/FolderSnapshot.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace mirelle::driver {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct PlaceRow {
    const char* name;
    const char* folder;
    const char* typedName;
    const char* path;
    bool within;

    friend void PrintTo(const PlaceRow& row, std::ostream* out) { *out << row.path; }
};

constexpr PlaceRow kRows[] = {
    {"InTheFolder", "C:\\Lib\\Art", "wall", "C:\\Lib\\Art\\wall.jpg", true},
    {"OtherCaseAndPoints", "C:\\Lib\\Art", "wall", "c:\\LIB\\.\\art\\wall.jpg", true},
    {"InARoot", "D:\\", "wall", "D:\\wall.jpg", true},
    {"BesideTheFolder", "C:\\Lib\\Art", "wall", "C:\\Lib\\wall.jpg", false},
    {"InAFolderOfALongerName", "C:\\Lib\\Art", "wall", "C:\\Lib\\Artist\\wall.jpg", false},
    {"BelowTheFolder", "C:\\Lib\\Art", "wall", "C:\\Lib\\Art\\old\\wall.jpg", false},
    {"BelowARoot", "C:\\", "wall", "C:\\Lib\\wall.jpg", false},
    {"UpAndOut", "C:\\Lib\\Art", "wall", "C:\\Lib\\Art\\..\\wall.jpg", false},
    {"OnAnotherDrive", "C:\\", "wall", "D:\\wall.jpg", false},
    {"WhereATypedNameLeads", "C:\\Lib\\Art", " ..\\wall ", "C:\\Lib\\wall.jpg", true},
    {"WhereATypedNameLeadsDown", "C:\\Lib\\Art", "old\\wall", "C:\\Lib\\Art\\old\\wall.jpg", true},
    {"ElsewhereThanATypedNameLeads", "C:\\Lib\\Art", "..\\wall", "C:\\Lib\\Bio\\wall.jpg", false},
    {"OtherFileThanATypedNameLeadsTo", "C:\\Lib\\Art", "..\\wall", "C:\\Lib\\brick.jpg", false},
};

class SavePlaceTest : public testing::TestWithParam<PlaceRow> {};

TEST_P(SavePlaceTest, TellsWhatASaveMayTouch) {
    const PlaceRow& row = GetParam();
    EXPECT_EQ(IsWithin({row.folder, row.typedName}, row.path), row.within);
}

INSTANTIATE_TEST_SUITE_P(Places, SavePlaceTest, testing::ValuesIn(kRows),
                         [](const auto& row) { return row.param.name; });

struct WatchedFilesTest : testing::Test {
    WatchedFilesTest() {
        folder.MakeFolder("C/Lib/Art");
        folder.MakeFolder("C/Lib/Artist");
        folder.MakeFile("C/Lib/Artist/wall.jpg");
        watched.savePlace = [this] { return place; };
    }
    test::TemporaryFolder folder;
    RootedWindowsFileSystem disk{folder.Path()};
    WatchedFiles watched{disk};
    SavePlace place{"C:\\Lib\\Art", "wall"};
};

TEST_F(WatchedFilesTest, LetsPassWhatLiesInTheFolder) {
    watched.WriteFile("C:\\Lib\\Art\\wall.jpg", {});
    watched.MakeWritable("C:\\Lib\\Art\\wall.jpg");
    watched.OverwriteStart("C:\\Lib\\Art\\wall.jpg", {});
    watched.DeleteFile("C:\\Lib\\Art\\wall.jpg");
    EXPECT_EQ(watched.strayPath, std::nullopt);
    EXPECT_TRUE(watched.HasBeenIn("c:\\lib\\art\\"));
}

TEST_F(WatchedFilesTest, TellsTheFirstThatStrays) {
    watched.DeleteFile("C:\\Lib\\Artist\\wall.jpg");
    watched.WriteFile("C:\\Lib\\wall.jpg", {});
    EXPECT_EQ(watched.strayPath, "C:\\Lib\\Artist\\wall.jpg");
    EXPECT_FALSE(watched.HasBeenIn("C:\\Lib\\Artist"));
}

TEST_F(WatchedFilesTest, TellsWhateverIsDoneToAStray) {
    const std::string stray = "C:\\Lib\\Artist\\wall.jpg";
    for (const auto& act : std::initializer_list<std::function<void()>>{
             [&] { watched.WriteFile(stray, {}); }, [&] { watched.OverwriteStart(stray, {}); },
             [&] { watched.MakeWritable(stray); }, [&] { watched.DeleteFile(stray); }}) {
        watched.strayPath.reset();
        act();
        EXPECT_EQ(watched.strayPath, stray);
    }
}

TEST_F(WatchedFilesTest, HasBeenWhereFilesWereListed) {
    EXPECT_FALSE(watched.HasBeenIn("C:\\Lib\\Artist"));
    EXPECT_THAT(watched.FileNames("C:\\Lib\\Artist"), ElementsAre("wall.jpg"));
    EXPECT_TRUE(watched.HasBeenIn("C:/Lib/Artist/"));
    EXPECT_FALSE(watched.HasBeenIn("C:\\Lib"));
}

TEST(FolderSnapshotTest, TellsWhatWasMadeChangedAndTakenAway) {
    const test::TemporaryFolder folder;
    folder.MakeFolder("a/b");
    folder.MakeFile("a/stays", "same");
    folder.MakeFile("a/changes", "before");
    folder.MakeFile("a/b/goes");
    const FolderSnapshot snapshot(folder.Path());
    EXPECT_THAT(snapshot.ChangedSince(), IsEmpty());
    folder.MakeFile("a/stays", "same");
    folder.MakeFile("a/changes", "behind");
    folder.MakeFile(".comes");
    std::filesystem::remove(folder / "a/b/goes");
    EXPECT_THAT(snapshot.ChangedSince(), ElementsAre(".comes", "a/b/goes", "a/changes"));
}

} // namespace
} // namespace mirelle::driver
