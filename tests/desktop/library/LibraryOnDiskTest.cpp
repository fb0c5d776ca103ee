// The library on a real disk, with the real loader and encoders: what is saved is listed and opened again.
#include "forms/Text.h"
#include "tests/desktop/library/DiskProgram.h"
#include "tests/library/FileNameKinds.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>

namespace mirelle::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

int GreatestDifference(const Bitmap& a, const Bitmap& b) {
    int greatest = 0;
    for (std::size_t i = 0; i < a.Pixels().size(); ++i) {
        const Pixel p = a.Pixels()[i];
        const Pixel q = b.Pixels()[i];
        greatest = std::max(
            {greatest, std::abs(p.red - q.red), std::abs(p.green - q.green), std::abs(p.blue - q.blue)});
    }
    return greatest;
}

class NameOnDiskTest : public ::testing::TestWithParam<FileNameKind> {};

TEST_P(NameOnDiskTest, IsSavedListedAndOpenedAgain) {
    DiskProgram program;
    FrmPicX& form = program.form;
    const std::string name = Trim(GetParam().stem) + ".jpg";
    program.Save(GetParam().stem, "*.jpg");
    EXPECT_THAT(program.desktop.dialogs.messages, IsEmpty());
    EXPECT_THAT(program.EverythingInArt(), ElementsAre(name));
    ASSERT_THAT(form.File5.Rows(), ElementsAre(name));
    form.PicImage.Picture = Picture();
    form.File5.SetListIndex(0);
    EXPECT_EQ(form.CurrentImagePath.Text(), program.InArt(name));
    ASSERT_EQ(form.PicImage.Picture().Width(), 64);
    ASSERT_EQ(form.PicImage.Picture().Height(), 48);
    EXPECT_LT(GreatestDifference(form.PicImage.Picture().Pixels(), program.sample.Pixels()), 24);
}

INSTANTIATE_TEST_SUITE_P(Names, NameOnDiskTest, ::testing::ValuesIn(kFileNameKinds),
                         [](const auto& row) { return std::string(row.param.kind); });

TEST(LibraryOnDisk, TellsSmallLettersFromCapitals) {
    DiskProgram program;
    program.Save("wall", "*.jpg");
    program.Save("Wall", "*.jpg");
    program.Save("WALL", "*.jpg");
    EXPECT_THAT(program.desktop.dialogs.messages, IsEmpty());
    EXPECT_THAT(program.form.File5.Rows(), ElementsAre("WALL.jpg", "Wall.jpg", "wall.jpg"));
}

TEST(LibraryOnDisk, LosslessFormatThatTheLoaderReadsComesBackUnchanged) {
    DiskProgram program;
    program.Save("wall", "*.bmp");
    program.ShowPattern("*.bmp");
    program.form.File5.SetListIndex(0);
    EXPECT_EQ(program.form.PicImage.Picture().Pixels(), program.sample.Pixels());
}

TEST(LibraryOnDisk, FormatsThatTheLoaderDoesNotReadKeepThePictures) {
    for (const char* pattern : {"*.png", "*.tif"}) {
        DiskProgram program;
        program.form.PicImage.Picture = program.sample;
        program.Save("wall", pattern);
        program.ShowPattern(pattern);
        ASSERT_EQ(program.form.File5.ListCount(), 1) << pattern;
        program.form.File5.SetListIndex(0);
        EXPECT_TRUE(program.form.PicImage.Picture().SharesPixelsWith(program.sample)) << pattern;
        EXPECT_EQ(program.form.CurrentImagePath.Text(), program.InArt(std::string("wall") + (pattern + 1)));
        EXPECT_EQ(program.form.textProfileName.Text(), "wall");
    }
}

TEST(LibraryOnDisk, FileChangedBetweenTwoClicksIsReadAnew) {
    DiskProgram program;
    program.Save("wall", "*.bmp");
    program.ShowPattern("*.bmp");
    program.form.File5.SetListIndex(0);
    program.form.picSmall.Picture = Picture(SmoothBitmap(20, 10));
    program.desktop.dialogs.messageAnswers.push_back(MessageAnswer::Yes);
    program.Save("wall", "*.bmp");
    program.form.File5.SetListIndex(0);
    EXPECT_EQ(program.form.PicImage.Picture().Width(), 20);
}

TEST(LibraryOnDisk, FileThatWentBetweenListingAndClickKeepsThePictures) {
    DiskProgram program;
    program.form.PicImage.Picture = program.sample;
    program.Save("wall", "*.jpg");
    std::filesystem::remove(program.InArt("wall.jpg"));
    program.form.File5.SetListIndex(0);
    EXPECT_TRUE(program.form.PicImage.Picture().SharesPixelsWith(program.sample));
    EXPECT_EQ(program.form.textProfileName.Text(), "wall");
}

// While it lives no file can grow beyond so many bytes, as on a disk that runs full midway.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &former_);
        rlimit limit = former_;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &former_);
        std::signal(SIGXFSZ, signal_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*signal_)(int);
    rlimit former_{};
};

// A save over a file of the same name that stops after 300 bytes.
class SaveThatFailsMidwayTest : public ::testing::TestWithParam<const char*> {
protected:
    SaveThatFailsMidwayTest() {
        program.Save("wall", GetParam());
        before = program.folder.ContentOf("Support/Materials/Art/" + Name());
        program.form.Label2(1).Caption = "caption";
        program.desktop.dialogs.messageAnswers.push_back(MessageAnswer::Yes);
        program.form.picSmall.Picture = Picture(NoiseBitmap(200, 200, 1));
    }
    static std::string Name() { return std::string("wall") + (GetParam() + 1); }
    void SaveOnAFullDisk() {
        const FullDisk full(300);
        program.Save("wall", GetParam());
    }

    DiskProgram program;
    std::string before;
};

class FailingJpegTest : public SaveThatFailsMidwayTest {};

TEST_P(FailingJpegTest, IsToldAndTheFormerFileIsGone) {
    SaveOnAFullDisk();
    ASSERT_EQ(program.desktop.dialogs.messages.size(), 2U);
    EXPECT_EQ(program.desktop.dialogs.messages[1].text, "Disk full Mirelle");
    EXPECT_THAT(program.EverythingInArt(), IsEmpty());
    EXPECT_EQ(program.form.Label2(1).Caption(), "caption");
}

INSTANTIATE_TEST_SUITE_P(Formats, FailingJpegTest, ::testing::Values("*.jpg", "*.jpeg"));

class FailingBitmapTest : public SaveThatFailsMidwayTest {};

TEST_P(FailingBitmapTest, IsToldAndTheFormerFileStays) {
    SaveOnAFullDisk();
    ASSERT_EQ(program.desktop.dialogs.messages.size(), 2U);
    EXPECT_EQ(program.desktop.dialogs.messages[1].text, "Disk full Mirelle");
    EXPECT_THAT(program.EverythingInArt(), ElementsAre(Name()));
    EXPECT_EQ(program.folder.ContentOf("Support/Materials/Art/" + Name()), before);
}

INSTANTIATE_TEST_SUITE_P(Formats, FailingBitmapTest, ::testing::Values("*.bmp"));

class FailingEncoderTest : public SaveThatFailsMidwayTest {};

TEST_P(FailingEncoderTest, IsSilentAndTheFormerFileStays) {
    SaveOnAFullDisk();
    EXPECT_EQ(program.desktop.dialogs.messages.size(), 1U);
    EXPECT_THAT(program.EverythingInArt(), ElementsAre(Name()));
    EXPECT_EQ(program.folder.ContentOf("Support/Materials/Art/" + Name()), before);
    EXPECT_EQ(program.form.Label2(1).Caption(), "Last Save: " + Name());
}

INSTANTIATE_TEST_SUITE_P(Formats, FailingEncoderTest, ::testing::Values("*.png", "*.tif", "*.gif"));

} // namespace
} // namespace mirelle::test
