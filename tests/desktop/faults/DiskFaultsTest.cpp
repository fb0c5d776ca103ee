// A library that may not be written and one that goes away while it is shown.
#include "tests/desktop/faults/DiskProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

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
