// What stands in a folder and is no file to open, what may not be read, and names that nothing can bear: the
// program shows what can be shown, tells a save that can't be, and never waits.
#include "tests/desktop/library/DiskProgram.h"
#include "tests/support/AsNobody.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace mirelle::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

void MakeFifo(const std::string& path) {
    ASSERT_EQ(::mkfifo(path.c_str(), 0666), 0);
}

// Its name stays on the disk when the socket is closed.
void MakeSocket(const std::string& path) {
    const int number = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.size(), sizeof address.sun_path);
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    EXPECT_EQ(::bind(number, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(number);
}

void MakeLoop(const std::string& path) {
    std::filesystem::create_symlink(path, path + ".back");
    std::filesystem::create_symlink(path + ".back", path);
}

struct StrangeKind {
    const char* name;
    void (*make)(const std::string& path);
};

void PrintTo(const StrangeKind& kind, std::ostream* out) {
    *out << kind.name;
}

const StrangeKind kStrangeKinds[] = {
    {"Fifo", MakeFifo},
    {"Socket", MakeSocket},
    {"LinkLoop", MakeLoop},
    {"LinkToNothing",
     [](const std::string& path) { std::filesystem::create_symlink("nothing/at all", path); }},
    {"LinkToFifo",
     [](const std::string& path) {
         MakeFifo(path + ".fifo");
         std::filesystem::create_symlink(path + ".fifo", path);
     }},
    {"Folder", [](const std::string& path) { std::filesystem::create_directory(path); }},
};

class StrangeFileTest : public ::testing::TestWithParam<StrangeKind> {
protected:
    StrangeFileTest() {
        program.Save("wall", "*.jpg");
        form.PicImage.Picture = program.sample;
    }
    void ExpectPicturesStay() {
        EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(program.sample));
        EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(program.sample));
    }
    std::vector<ShownMessage>& Messages() { return program.desktop.dialogs.messages; }

    DiskProgram program;
    FrmPicX& form = program.form;
};

TEST_P(StrangeFileTest, IsNoRowOfTheList) {
    GetParam().make(program.InArt("odd.jpg"));
    form.cmdRefreshFile.UserClick();
    EXPECT_THAT(form.File5.Rows(), ElementsAre("wall.jpg"));
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_P(StrangeFileTest, InThePlaceOfAListedFileKeepsThePictures) {
    std::filesystem::remove(program.InArt("wall.jpg"));
    GetParam().make(program.InArt("wall.jpg"));
    form.File5.SetListIndex(0);
    EXPECT_EQ(form.textProfileName.Text(), "wall");
    ExpectPicturesStay();
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_P(StrangeFileTest, ChosenInTheDialogKeepsThePictures) {
    GetParam().make(program.InArt("odd.jpg"));
    program.desktop.dialogs.openAnswers.push_back(program.InArt("odd.jpg"));
    form.Command23.UserClick();
    ExpectPicturesStay();
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_P(StrangeFileTest, InThePlaceOfThePrefixFileIsPassedOver) {
    program.folder.MakeFolder("Support/Settings");
    GetParam().make(program.folder / "Support/Settings/MaterialsSamplerPrefix.txt");
    const int before = form.textProfileName.ListCount();
    form.cmdOpen2Combo.UserClick();
    EXPECT_EQ(form.textProfileName.ListCount(), before);
}

INSTANTIATE_TEST_SUITE_P(Kinds, StrangeFileTest, ::testing::ValuesIn(kStrangeKinds),
                         [](const auto& kind) { return std::string(kind.param.name); });

class StrangeTargetTest : public ::testing::TestWithParam<const char*> {};

// A FIFO would swallow the picture, and wait for somebody to read it.
TEST_P(StrangeTargetTest, SaveOverAFifoIsToldAndLeavesIt) {
    DiskProgram program;
    const std::string path = program.InArt(std::string("odd") + (GetParam() + 1));
    MakeFifo(path);
    program.Save("odd", GetParam());
    EXPECT_TRUE(std::filesystem::is_fifo(path));
    ASSERT_EQ(program.desktop.dialogs.messages.size(), 1U);
    EXPECT_EQ(program.desktop.dialogs.messages[0].text, "Path/File access error Mirelle");
}

TEST_P(StrangeTargetTest, SaveOverAFolderIsTold) {
    DiskProgram program;
    program.folder.MakeFolder(std::string("Support/Materials/Art/odd") + (GetParam() + 1));
    program.Save("odd", GetParam());
    ASSERT_EQ(program.desktop.dialogs.messages.size(), 1U);
    EXPECT_EQ(program.desktop.dialogs.messages[0].text, "Path/File access error Mirelle");
}

TEST_P(StrangeTargetTest, SaveToANameLongerThanAnyIsTold) {
    DiskProgram program;
    program.Save(std::string(300, 'x'), GetParam());
    ASSERT_EQ(program.desktop.dialogs.messages.size(), 1U);
    EXPECT_EQ(program.form.Label2(1).Caption(), "Last Save: ");
    EXPECT_THAT(program.EverythingInArt(), IsEmpty());
}

TEST_P(StrangeTargetTest, SaveBelowAFileIsTold) {
    DiskProgram program;
    program.folder.MakeFile("Support/Materials/Art/wall");
    program.Save("wall/odd", GetParam());
    EXPECT_EQ(program.desktop.dialogs.messages.size(), 1U);
    EXPECT_EQ(program.form.Label2(1).Caption(), "Last Save: ");
}

INSTANTIATE_TEST_SUITE_P(Formats, StrangeTargetTest, ::testing::Values("*.jpg", "*.bmp"),
                         [](const auto& pattern) { return std::string(pattern.param + 2); });

class ForbiddenLibraryTest : public ::testing::Test {
protected:
    ForbiddenLibraryTest() {
        program.Save("wall", "*.jpg");
        form.PicImage.Picture = program.sample;
        ::chmod(program.folder.Path().c_str(), 0755);
    }
    DiskProgram program;
    FrmPicX& form = program.form;
};

TEST_F(ForbiddenLibraryTest, FolderThatMayNotBeReadIsNotEntered) {
    program.folder.MakeFolder("Support/Materials/Metal");
    ::chmod((program.folder / "Support/Materials/Metal").c_str(), 0);
    const AsNobody nobody;
    form.cmdMatDirs(3).UserClick();
    EXPECT_EQ(form.Dir5.Path() + '/', program.InArt(""));
    EXPECT_THAT(form.File5.Rows(), ElementsAre("wall.jpg"));
    EXPECT_THAT(program.desktop.dialogs.messages, IsEmpty());
}

TEST_F(ForbiddenLibraryTest, FolderThatIsForbiddenLaterListsNothing) {
    ::chmod(program.InArt("").c_str(), 0);
    const AsNobody nobody;
    form.cmdRefreshFile.UserClick();
    EXPECT_EQ(form.File5.ListCount(), 0);
    EXPECT_THAT(program.desktop.dialogs.messages, IsEmpty());
}

TEST_F(ForbiddenLibraryTest, FileThatMayNotBeReadIsNamedAndKeepsThePictures) {
    ::chmod(program.InArt("wall.jpg").c_str(), 0);
    const AsNobody nobody;
    form.File5.SetListIndex(0);
    EXPECT_EQ(form.CurrentImagePath.Text(), program.InArt("wall.jpg"));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(program.sample));
}

TEST_F(ForbiddenLibraryTest, SaveIntoAFolderThatMayNotBeWrittenIsToldForJpegAndBitmapAlone) {
    ::chmod(program.InArt("").c_str(), 0555);
    const AsNobody nobody;
    for (const char* pattern : {"*.jpg", "*.bmp"}) {
        program.Save("new", pattern);
        ASSERT_EQ(program.desktop.dialogs.messages.size(), 1U) << pattern;
        EXPECT_EQ(program.desktop.dialogs.messages[0].text, "Path/File access error Mirelle") << pattern;
        program.desktop.dialogs.messages.clear();
    }
    program.Save("new", "*.png");
    EXPECT_THAT(program.desktop.dialogs.messages, IsEmpty());
    EXPECT_EQ(form.Label2(1).Caption(), "Last Save: new.png");
}

} // namespace
} // namespace mirelle::test
