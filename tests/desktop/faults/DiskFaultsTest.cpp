// A library that may not be written, one that has no room left, and one that goes away while it is shown.
#include "tests/desktop/faults/DiskProgram.h"
#include "tests/support/FullDisk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <tuple>

#include <sys/stat.h>
#include <unistd.h>

namespace mirelle::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A folder that may not be written, for a user that is not root.
class ReadOnlyArt {
public:
    explicit ReadOnlyArt(const DiskProgram& program) : art_(program.InArt("")) {
        ::chmod(program.folder.Path().c_str(), 0755);
        ::chmod(art_.c_str(), 0555);
        wasRoot_ = ::geteuid() == 0;
        if (wasRoot_ && ::seteuid(kNobody) != 0) std::abort();
    }
    ~ReadOnlyArt() {
        if (wasRoot_ && ::seteuid(0) != 0) std::abort();
        ::chmod(art_.c_str(), 0755);
    }
    ReadOnlyArt(const ReadOnlyArt&) = delete;
    ReadOnlyArt& operator=(const ReadOnlyArt&) = delete;

private:
    static constexpr uid_t kNobody = 65534;
    std::string art_;
    bool wasRoot_ = false;
};

TEST(ReadOnlyLibrary, TellsThatAFileCannotBeWrittenAndKeepsWhatIsThere) {
    for (const char* pattern : {"*.jpg", "*.bmp"}) {
        DiskProgram program;
        program.form.picSmall.Picture = Picture(SmoothBitmap(20, 10));
        program.folder.MakeFile(std::string("Support/Materials/Art/wall") + (pattern + 1), "old");
        program.desktop.dialogs.messageAnswers = {MessageAnswer::Yes, MessageAnswer::Yes};
        const ReadOnlyArt readOnly(program);
        program.Save("new", pattern);
        EXPECT_THAT(program.TakeMessages(), ElementsAre("Path/File access error Mirelle")) << pattern;
    }
}

TEST(ReadOnlyLibrary, KeepsAFileThatWouldBeOverwritten) {
    for (const char* pattern : {"*.jpg", "*.bmp", "*.png"}) {
        DiskProgram program;
        const std::string name = std::string("Support/Materials/Art/wall") + (pattern + 1);
        program.form.picSmall.Picture = Picture(SmoothBitmap(20, 10));
        program.folder.MakeFile(name, "old");
        program.desktop.dialogs.messageAnswers = {MessageAnswer::Yes, MessageAnswer::Yes};
        {
            const ReadOnlyArt readOnly(program);
            program.Save("wall", pattern);
        }
        EXPECT_EQ(program.folder.ContentOf(name), "old") << pattern;
    }
}

struct FullDiskRow {
    const char* name;
    const char* pattern;
    const char* message; // the empty text where a save that fails is silent
    // Whether the file that is saved over goes first: it is then gone where there is no room for the new one.
    bool deletesFirst;

    friend void PrintTo(const FullDiskRow& row, std::ostream* out) { *out << row.pattern; }
};

constexpr FullDiskRow kFormats[] = {
    {"Bmp", "*.bmp", "Disk full Mirelle", false},
    {"Png", "*.png", "", false},
    {"Tif", "*.tif", "", false},
    {"Gif", "*.gif", "", false},
    {"Jpg", "*.jpg", "Disk full Mirelle", true},
    {"Jpeg", "*.jpeg", "Disk full Mirelle", true},
};

// More than there is room for in any of the formats, in few enough colours for a quick GIF.
Bitmap LargeSample() {
    Bitmap sample = NoiseBitmap(400, 300, 1);
    for (Pixel& pixel : sample.Pixels()) {
        for (std::uint8_t* channel : {&pixel.blue, &pixel.green, &pixel.red})
            *channel &= 0xC0;
    }
    return sample;
}

// The whole program saves over a library of small files, with room for one of those and no more.
struct SaveOnAFullDisk : testing::TestWithParam<std::tuple<FullDiskRow, FullBy>> {
    void SetUp() override {
        if (!disk.IsThere()) {
            ASSERT_EQ(std::get<FullBy>(GetParam()), FullBy::Mount) << "the size of files can't be limited";
            GTEST_SKIP() << "no disk can be mounted here, the limit stands in for it";
        }
        for (const FullDiskRow& format : kFormats)
            program.folder.MakeFile(Wall(format), std::string("old ") + format.name);
        program.form.File5.Refresh();
        before = Everything();
    }
    static std::string Wall(const FullDiskRow& format) {
        return std::string("Support/Materials/Art/wall") + (format.pattern + 1);
    }
    // The folder's files, hidden ones too, and what they hold.
    std::map<std::string, std::string> Everything() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(program.InArt(""))) {
            const std::string name = entry.path().filename().string();
            files[name] = program.folder.ContentOf("Support/Materials/Art/" + name);
        }
        return files;
    }
    void SaveOver(const std::string& name, Bitmap&& picture) {
        program.form.picSmall.Picture = Picture(std::move(picture));
        program.desktop.dialogs.messageAnswers = {MessageAnswer::Yes};
        program.Save(name, row.pattern);
    }
    // What was told but for the question whether to overwrite.
    std::string Told() {
        std::string told;
        for (const std::string& text : program.TakeMessages())
            if (!text.starts_with("File exists!")) told += text;
        return told;
    }

    const FullDiskRow row = std::get<FullDiskRow>(GetParam());
    DiskProgram program;
    FullDisk disk{program.InArt(""), std::get<FullBy>(GetParam())};
    std::map<std::string, std::string> before;
};

TEST_P(SaveOnAFullDisk, LeavesNothingOfANewFile) {
    SaveOver("new", LargeSample());
    EXPECT_EQ(Told(), row.message);
    EXPECT_EQ(Everything(), before);
}

TEST_P(SaveOnAFullDisk, LosesNothingButWhatGoesAheadOfTheSave) {
    SaveOver("wall", LargeSample());
    EXPECT_EQ(Told(), row.message);
    if (row.deletesFirst) before.erase(std::filesystem::path(Wall(row)).filename().string());
    EXPECT_EQ(Everything(), before);
}

TEST_P(SaveOnAFullDisk, StillSavesWhatThereIsRoomFor) {
    SaveOver("wall", LargeSample());
    Told();
    SaveOver("wall", SmoothBitmap(8, 6));
    EXPECT_EQ(Told(), "");
    auto now = Everything();
    const std::string saved = std::filesystem::path(Wall(row)).filename().string();
    EXPECT_GT(now[saved].size(), 40U);
    now[saved] = before[saved];
    EXPECT_EQ(now, before);
}

INSTANTIATE_TEST_SUITE_P(Formats, SaveOnAFullDisk,
                         testing::Combine(testing::ValuesIn(kFormats),
                                          testing::Values(FullBy::Mount, FullBy::Limit)),
                         [](const auto& test) {
                             return std::string(std::get<FullDiskRow>(test.param).name) + "By" +
                                    NameOf(std::get<FullBy>(test.param));
                         });

struct FolderThatGoes : testing::Test {
    FolderThatGoes() {
        program.ShowPattern("*.bmp");
        program.form.picSmall.Picture = sample;
        program.form.PicImage.Picture = sample;
        std::filesystem::remove_all(program.InArt(""));
    }
    DiskProgram program;
    FrmPicX& form = program.form;
    Picture sample{SmoothBitmap(20, 10)};
};

TEST_F(FolderThatGoes, KeepsThePicturesWhenAFileOfItIsChosen) {
    ASSERT_EQ(form.File5.ListCount(), 1);
    form.File5.SetListIndex(0);
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(sample));
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(sample));
}

TEST_F(FolderThatGoes, TellsThatNothingCanBeSavedThere) {
    for (const char* pattern : {"*.jpg", "*.bmp"}) {
        program.Save("wall", pattern);
        EXPECT_THAT(program.TakeMessages(), ElementsAre("Path not found Mirelle")) << pattern;
    }
    EXPECT_FALSE(std::filesystem::exists(program.InArt("")));
}

TEST_F(FolderThatGoes, LeavesEveryButtonOfTheLibraryUsable) {
    for (CommandButton* button : {&form.cmdRefreshFile, &form.cmdBackDir, &form.cmdOpen2Combo, &form.cmdCopy})
        EXPECT_NO_THROW(button->UserClick()) << button->FullName();
    form.cmdMatDirs.ForEach([](CommandButton& button) { EXPECT_NO_THROW(button.UserClick()); });
    EXPECT_NO_THROW(form.Activate());
    EXPECT_EQ(form.PicImage.Picture().Width(), 20);
}

TEST_F(FolderThatGoes, IsListedAgainWhenItComesBack) {
    form.cmdBackDir.UserClick();
    form.cmdMatDirs(0).UserClick(); // it is not there
    program.folder.MakeFolder("Support/Materials/Art");
    program.folder.MakeFile("Support/Materials/Art/Art_2.bmp", BmpFile(SmoothBitmap(7, 5)));
    form.cmdMatDirs(0).UserClick();
    ASSERT_THAT(form.File5.Rows(), ElementsAre("Art_2.bmp"));
    form.File5.SetListIndex(0);
    EXPECT_EQ(form.PicImage.Picture().Width(), 7);
}

} // namespace
} // namespace mirelle::test
