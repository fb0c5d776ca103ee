// Paths that are longer than Windows takes by itself.
#include "desktop/files/NativeFileSystem.h"
#include "desktop/windows/FileHandle.h"
#include "desktop/windows/GdiPlusEncoders.h"
#include "desktop/windows/Wide.h"
#include "tests/desktop/ports/Bytes.h"
#include "tests/desktop/windows/DeepFolder.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/Patterns.h"

#include <gmock/gmock.h>

namespace mirelle::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using windows::SystemPath;
using windows::Wide;

const std::string kName = std::string(60, 'a') + '\\';
const std::string kFiveNames = kName + kName + kName + kName + kName;

TEST(SystemPath, LeavesPathsThatWindowsTakesByItself) {
    for (const char* path :
         {"C:\\Art\\wall.jpg", "C:/Art/../Bio/wall.jpg", "wall.jpg", "..", "\\\\host\\share\\wall.jpg"})
        EXPECT_EQ(SystemPath(path), Wide(path)) << path;
}

TEST(SystemPath, GivesLongerOnesTheirLongForm) {
    EXPECT_EQ(SystemPath("C:\\" + kFiveNames + "wall.jpg"), Wide("\\\\?\\C:\\" + kFiveNames + "wall.jpg"));
    EXPECT_EQ(SystemPath("\\\\host\\share\\" + kFiveNames + "wall.jpg"),
              Wide("\\\\?\\UNC\\host\\share\\" + kFiveNames + "wall.jpg"));
}

TEST(SystemPath, ResolvesWhatTheLongFormTakesAsItStands) {
    EXPECT_EQ(SystemPath("C:/Art/.." + ("/./" + kFiveNames) + "/wall.jpg"),
              Wide("\\\\?\\C:\\" + kFiveNames + "wall.jpg"));
    EXPECT_EQ(SystemPath("C:\\" + kFiveNames + "..\\..\\..\\..\\..\\wall.jpg"),
              Wide("C:\\" + kFiveNames + "..\\..\\..\\..\\..\\wall.jpg"));
}

TEST(SystemPath, KeepsTheLongForm) {
    for (const std::string& path : {std::string("\\\\?\\C:\\Art"), "\\\\?\\C:\\" + kFiveNames + "wall.jpg"})
        EXPECT_EQ(SystemPath(path), Wide(path));
}

TEST(SystemPath, ChangesTheFormWhereAFolderCouldTakeNoMoreNames) {
    const std::string longest = "C:\\" + std::string(244, 'a');
    EXPECT_EQ(SystemPath(longest), Wide(longest));
    EXPECT_EQ(SystemPath(longest + 'a'), Wide("\\\\?\\" + longest + 'a'));
}

class LongPaths : public testing::Test {
protected:
    std::string In(const std::string& name) const { return folder_.In(name); }

    DeepFolder folder_;
    NativeFileSystem files_{folder_.Path(), "c:\\komp.txt"};
};

TEST_F(LongPaths, FilesAreWrittenReadReplacedListedAndDeleted) {
    EXPECT_EQ(files_.AppPath(), folder_.Path());
    files_.WriteFile(In("Wall_1.jpg"), BytesOf("small"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(In("Wall_1.jpg"))), "small");
    files_.WriteFile(In("WALL_1.JPG"), BytesOf("larger"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(folder_.Path() + "/./Wall_1.jpg")), "larger");
    files_.OverwriteStart(In("wall_1.jpg"), BytesOf("L"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(In("wall_1.jpg"))), "Larger");
    EXPECT_THAT(files_.FileNames(folder_.Path()), ElementsAre("Wall_1.jpg"));
    EXPECT_TRUE(files_.FileExists(In("Wall_1.jpg")));
    EXPECT_FALSE(files_.FileExists(In("Wall_2.jpg")));
    files_.DeleteFile(In("Wall_1.jpg"));
    EXPECT_THAT(files_.FileNames(folder_.Path()), IsEmpty());
}

TEST_F(LongPaths, FoldersAreFoundAndListed) {
    EXPECT_EQ(files_.ResolveFolder(folder_.Path() + "\\."), folder_.Path());
    EXPECT_TRUE(files_.FolderExists(folder_.Path()));
    EXPECT_FALSE(files_.FolderExists(In("none")));
    const std::string above = folder_.Path().substr(0, folder_.Path().rfind('\\'));
    EXPECT_THAT(files_.FolderNames(above), ElementsAre(folder_.Path().substr(above.size() + 1)));
    EXPECT_EQ(ErrorOf([&] { files_.ReadFile(In("none")); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(In("none\\none"), BytesOf("x")); }), ErrorNumber::PathNotFound);
}

TEST_F(LongPaths, AReadOnlyFileIsMadeWritable) {
    files_.WriteFile(In("wall"), BytesOf("old"));
    SetFileAttributesW(SystemPath(In("wall"))->c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(ErrorOf([&] { files_.WriteFile(In("wall"), BytesOf("new")); }), ErrorNumber::PathFileAccess);
    files_.MakeWritable(In("wall"));
    files_.WriteFile(In("wall"), BytesOf("new"));
    EXPECT_EQ(TextOfBytes(files_.ReadFile(In("wall"))), "new");
    files_.DeleteFile(In("wall"));
}

TEST_F(LongPaths, AFenceHoldsThere) {
    if (!windows::FinalPath(*SystemPath(folder_.Path())))
        GTEST_SKIP() << "this Windows tells no real path of that length";
    const NativeFileSystem fenced(folder_.Path(), "", folder_.Path());
    files_.WriteFile(In("wall"), BytesOf("x"));
    EXPECT_TRUE(fenced.FileExists(In("wall")));
    EXPECT_FALSE(fenced.FolderExists(folder_.Path() + "\\.."));
    files_.DeleteFile(In("wall"));
}

TEST_F(LongPaths, PicturesAreSavedInTheFormatsOfTheSystemsEncoders) {
    GdiPlusEncoders encoders;
    encoders.Start();
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(encoders.Save(ChartPicture(8, 8), ImageFormat::Png, In("wall.png")));
        EXPECT_TRUE(encoders.Save(ChartPicture(8, 8), ImageFormat::Gif, In("wall.gif")));
    }
    EXPECT_TRUE(TextOfBytes(files_.ReadFile(In("wall.png"))).starts_with("\x89PNG"));
    EXPECT_TRUE(TextOfBytes(files_.ReadFile(In("wall.gif"))).starts_with("GIF8"));
    EXPECT_EQ(files_.FileNames(folder_.Path()).size(), 2u);
    files_.DeleteFile(In("wall.png"));
    files_.DeleteFile(In("wall.gif"));
}

} // namespace
} // namespace mirelle::test
