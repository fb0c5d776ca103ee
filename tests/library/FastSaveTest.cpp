#include "codecs/BmpWriter.h"
#include "codecs/cJPEG.h"
#include "forms/Text.h"
#include "tests/library/FileNameKinds.h"
#include "tests/library/LibraryProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>

namespace mirelle::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Bytes = std::vector<std::uint8_t>;

class FastSaveTest : public ::testing::Test {
protected:
    FastSaveTest() {
        program.StartIn(kArt);
        form.picSmall.Picture = sample;
        form.textProfileName.Text = "Art_13";
    }
    void Save(const std::string& pattern) {
        form.Combo5.Text = pattern;
        form.Command3.UserClick();
    }
    void Answer(MessageAnswer answer) { program.desktop.dialogs.messageAnswers.push_back(answer); }
    const std::vector<ShownMessage>& Messages() const { return program.desktop.dialogs.messages; }
    bool Exists(const std::string& path) const { return program.files.FileExists(path); }

    // What the JPEG writer makes of the sample at its best quality.
    Bytes SampleAsJpeg() const {
        MemoryFileSystem other;
        cJPEG jpeg;
        jpeg.Quality(100);
        jpeg.SampleHDC(sample.Pixels(), sample.Width(), sample.Height());
        jpeg.SaveFileJPG("C:\\sample.jpg", other);
        return other.ReadFile("C:\\sample.jpg");
    }

    LibraryProgram program;
    FrmPicX& form = program.form;
    Picture sample = ChartPicture(30, 20, 77);
};

// Where it saves.

TEST_F(FastSaveTest, WritesIntoTheFolderShownUnderTheNameInTheBox) {
    Save("*.jpg");
    EXPECT_TRUE(Exists(kArt + "\\Art_13.jpg"));
    EXPECT_THAT(form.File5.Rows(), ElementsAre("Art_13.jpg"));
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(FastSaveTest, InADriveRootThePathHasOneSeparator) {
    program.files.AddFolder("D:\\");
    form.Dir5.SetPath("D:\\");
    Save("*.jpg");
    EXPECT_TRUE(Exists("D:\\Art_13.jpg"));
    Save("*.jpg");
    EXPECT_EQ(Messages().back().text, "File exists! Overwrite D:\\Art_13.jpg?");
}

TEST_F(FastSaveTest, NameIsTrimmedForTheFileButNotForTheCaption) {
    form.textProfileName.Text = "  red brick ";
    Save("*.jpg");
    EXPECT_TRUE(Exists(kArt + "\\red brick.jpg"));
    EXPECT_EQ(form.Label2(1).Caption(), "Last Save: red brick .jpg");
}

TEST_F(FastSaveTest, EveryStarIsTakenOutOfTheExtension) {
    Save(" *.*jpg ");
    EXPECT_EQ(form.Label2(1).Caption(), "Last Save: Art_13.jpg");
}

TEST_F(FastSaveTest, NameWithASeparatorLandsInTheFolderBelow) {
    program.files.AddFolder(kArt + "\\old");
    form.textProfileName.Text = "old\\wall";
    Save("*.jpg");
    EXPECT_TRUE(Exists(kArt + "\\old\\wall.jpg"));
}

TEST_F(FastSaveTest, NameWithASeparatorFailsWhereThereIsNoSuchFolder) {
    form.textProfileName.Text = "old\\wall";
    Save("*.jpg");
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Messages()[0].text, "Path not found Mirelle");
}

// What it leaves alone.

TEST_F(FastSaveTest, LeavesNameCounterPathAndSourceAlone) {
    form.TextLoops.Text = "13";
    form.CurrentImagePath = "C:\\before.jpg";
    Save("*.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "Art_13");
    EXPECT_EQ(form.TextLoops.Text(), "13");
    EXPECT_EQ(form.IncrementCounter.Number(), 13);
    EXPECT_EQ(form.CurrentImagePath.Text(), "C:\\before.jpg");
    EXPECT_EQ(form.File5.ListIndex(), kNoRow);
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(sample));
}

TEST_F(FastSaveTest, SendsNothingAlsoWithTheSendBoxChecked) {
    form.Check3.Value = kChecked;
    Save("*.jpg");
    EXPECT_THAT(program.desktop.console.sent, IsEmpty());
}

// The overwrite question.

TEST_F(FastSaveTest, SecondSaveToTheSameNameAsks) {
    Save("*.jpg");
    Save("*.jpg");
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Messages()[0].text, "File exists! Overwrite " + kArt + "\\Art_13.jpg?");
    EXPECT_EQ(Messages()[0].title, "Mirelle Version 1.0.0");
    EXPECT_EQ(Messages()[0].buttons, MessageButtons::YesNo);
}

TEST_F(FastSaveTest, NoLeavesFileListAndCaptionUntouched) {
    program.files.AddFile(kArt + "\\Art_13.jpg", "as it was");
    form.Label8(46).Caption = "count";
    form.Label2(1).Caption = "caption";
    Answer(MessageAnswer::No);
    Save("*.jpg");
    EXPECT_EQ(program.files.Text(kArt + "\\Art_13.jpg"), "as it was");
    EXPECT_EQ(form.File5.ListCount(), 0);
    EXPECT_EQ(form.Label8(46).Caption(), "count");
    EXPECT_EQ(form.Label2(1).Caption(), "caption");
}

TEST_F(FastSaveTest, YesReplacesTheFile) {
    program.files.AddFile(kArt + "\\Art_13.jpg", "as it was");
    Answer(MessageAnswer::Yes);
    Save("*.jpg");
    EXPECT_EQ(program.files.ReadFile(kArt + "\\Art_13.jpg"), SampleAsJpeg());
}

TEST_F(FastSaveTest, QuestionComesForEveryPattern) {
    for (const char* extension : {".bmp", ".jpeg", ".png", ".tif", ".gif", ".psd", ".tga", ".xyz"}) {
        program.files.AddFile(kArt + "\\Art_13" + extension, "as it was");
        program.desktop.dialogs.messages.clear();
        Save(std::string("*") + extension);
        ASSERT_EQ(Messages().size(), 1U) << extension;
        EXPECT_EQ(Messages()[0].text, "File exists! Overwrite " + kArt + "\\Art_13" + extension + "?");
        EXPECT_EQ(program.files.Text(kArt + "\\Art_13" + extension), "as it was");
    }
}

TEST_F(FastSaveTest, FolderOfThatNameIsNoFileToAskAbout) {
    program.files.AddFolder(kArt + "\\Art_13.jpg");
    Save("*.jpg");
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Messages()[0].text, "Path/File access error Mirelle");
    EXPECT_EQ(Messages()[0].title, "Mirelle");
}

// The formats.

TEST_F(FastSaveTest, JpegHasBestQualityHalvedColoursAndNoComment) {
    Save("*.jpg");
    const Bytes bytes = program.files.ReadFile(kArt + "\\Art_13.jpg");
    EXPECT_EQ(bytes, SampleAsJpeg());
    // Behind the start and the 18 bytes of the first segment: a table of 64 ones, without a comment before
    // it.
    ASSERT_GT(bytes.size(), 200U);
    EXPECT_EQ(Bytes(bytes.begin() + 20, bytes.begin() + 25), (Bytes{0xFF, 0xDB, 0x00, 0x43, 0x00}));
    EXPECT_EQ(Bytes(bytes.begin() + 25, bytes.begin() + 89), Bytes(64, 1));
    // Behind both tables the frame: 20 rows, 30 columns, three components of 2x2, 1x1, 1x1.
    EXPECT_EQ(
        Bytes(bytes.begin() + 158, bytes.begin() + 177),
        (Bytes{0xFF, 0xC0, 0x00, 0x11, 0x08, 0x00, 20, 0x00, 30, 3, 1, 0x22, 0, 2, 0x11, 1, 3, 0x11, 1}));
}

TEST_F(FastSaveTest, JpegAndJpegShortDifferInTheNameAlone) {
    Save("*.jpeg");
    EXPECT_EQ(program.files.ReadFile(kArt + "\\Art_13.jpeg"), SampleAsJpeg());
    EXPECT_EQ(form.Label2(1).Caption(), "Last Save: Art_13.jpeg");
}

TEST_F(FastSaveTest, JpegTakesThePaintedImageOfTheMaterial) {
    form.picSmall.Picture = Picture();
    form.picSmall.Move(0, 0, 30, 20);
    form.picSmall.PaintPicture(sample, 0, 0, 30, 20, 0, 0);
    Save("*.jpg");
    EXPECT_EQ(program.files.ReadFile(kArt + "\\Art_13.jpg"), SampleAsJpeg());
}

TEST_F(FastSaveTest, BitmapHoldsThePaintedImage) {
    form.picSmall.Paint().At(3, 4) = {1, 2, 3, 0};
    Save("*.bmp");
    const Picture painted = form.picSmall.Image();
    EXPECT_EQ(program.files.ReadFile(kArt + "\\Art_13.bmp"), BmpFile(painted.Pixels()));
    EXPECT_EQ(painted.Pixels().At(3, 4), (Pixel{1, 2, 3, 0}));
}

TEST_F(FastSaveTest, BitmapReplacesALongerFileWhole) {
    program.files.AddFile(kArt + "\\Art_13.bmp", std::string(100000, 'x'));
    Answer(MessageAnswer::Yes);
    Save("*.bmp");
    EXPECT_EQ(program.files.ReadFile(kArt + "\\Art_13.bmp"), BmpFile(sample.Pixels()));
}

TEST_F(FastSaveTest, EncodersOfThePlatformWriteTheOthers) {
    for (const auto& [pattern, format] :
         {std::pair{"*.png", ImageFormat::Png}, {"*.tif", ImageFormat::Tiff}, {"*.gif", ImageFormat::Gif}}) {
        Save(pattern);
        ASSERT_FALSE(program.encoders.saved.empty()) << pattern;
        const auto& saved = program.encoders.saved.back();
        EXPECT_EQ(saved.format, format) << pattern;
        EXPECT_EQ(saved.path, kArt + "\\Art_13" + (pattern + 1));
        EXPECT_TRUE(saved.picture.SharesPixelsWith(sample)) << pattern;
        EXPECT_EQ(form.Label2(1).Caption(), std::string("Last Save: Art_13") + (pattern + 1));
    }
    EXPECT_EQ(program.encoders.starts, 3);
    EXPECT_EQ(program.encoders.stops, 3);
}

TEST_F(FastSaveTest, EncodersGetTheAssignedPictureOverWhatWasPainted) {
    form.picSmall.Paint().At(3, 4) = {1, 2, 3, 0};
    Save("*.png");
    ASSERT_EQ(program.encoders.saved.size(), 1U);
    EXPECT_TRUE(program.encoders.saved[0].picture.SharesPixelsWith(sample));
}

TEST_F(FastSaveTest, EncodersGetThePaintedImageWhereNoPictureIsAssigned) {
    form.picSmall.Picture = Picture();
    form.picSmall.Move(0, 0, 5, 4);
    form.picSmall.PaintPicture(sample, 0, 0, 5, 4, 10, 10);
    Save("*.png");
    ASSERT_EQ(program.encoders.saved.size(), 1U);
    EXPECT_EQ(program.encoders.saved[0].picture.Pixels(), Cut(sample.Pixels(), 10, 10, 5, 4));
}

TEST_F(FastSaveTest, PhotoshopFormatIsRefusedAndNothingElseHappens) {
    form.Label8(46).Caption = "count";
    form.Label2(1).Caption = "caption";
    Save("*.psd");
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Messages()[0].text, "Cannot save .psd format");
    EXPECT_EQ(Messages()[0].title, "Mirelle");
    EXPECT_EQ(form.Label8(46).Caption(), "count");
    EXPECT_EQ(form.Label2(1).Caption(), "caption");
    EXPECT_FALSE(Exists(kArt + "\\Art_13.psd"));
}

TEST_F(FastSaveTest, PatternWithoutAFormatWritesNothingAndReportsASave) {
    program.AddFiles(kArt, {"other.jpg"});
    for (const auto& [pattern, file] : {std::pair{"*.tga", "Art_13.tga"},
                                        {"*.JPG", "Art_13.JPG"},
                                        {"*.jpg;*.bmp", "Art_13.jpg;.bmp"},
                                        {"*", "Art_13"}}) {
        Save(pattern);
        EXPECT_EQ(form.Label2(1).Caption(), std::string("Last Save: ") + file);
    }
    EXPECT_EQ(program.files.WriteCount(), 0);
    EXPECT_THAT(program.encoders.saved, IsEmpty());
    EXPECT_THAT(form.File5.Rows(), ElementsAre("other.jpg"));
    EXPECT_THAT(Messages(), IsEmpty());
}

// What it shows.

TEST_F(FastSaveTest, CountIsInThePluralAlsoForOneFile) {
    Save("*.jpg");
    EXPECT_EQ(form.Label8(46).Caption(), "1 Files");
}

TEST_F(FastSaveTest, NamesOfMoreThanEighteenCharactersAreShownInSmallType) {
    for (const auto& [name, size] : {std::pair{"fourteen chars", 10.0F},
                                     {"fifteen charact", 8.0F},
                                     {"x", 10.0F},
                                     // Blanks count, though neither file nor caption has them.
                                     {"blanks behind   ", 8.0F},
                                     {"   blanks before", 8.0F},
                                     // Fourteen characters in twenty-eight bytes.
                                     {"\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3"
                                      "\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4",
                                      10.0F}}) {
        form.textProfileName.Text = name;
        Save("*.jpg");
        EXPECT_EQ(form.Label2(1).FontSize(), size) << name;
    }
    EXPECT_EQ(form.Label2(0).FontSize(), 8);
}

// What goes wrong.

TEST_F(FastSaveTest, FailedJpegSaveIsToldAndTheConfirmedFileIsGone) {
    program.files.AddFile(kArt + "\\Art_13.jpg", "as it was");
    form.Label2(1).Caption = "caption";
    program.files.FailWritesWith(ErrorNumber::DiskFull);
    Answer(MessageAnswer::Yes);
    Save("*.jpg");
    ASSERT_EQ(Messages().size(), 2U);
    EXPECT_EQ(Messages()[1].text, "Disk full Mirelle");
    EXPECT_EQ(Messages()[1].title, "Mirelle");
    EXPECT_EQ(Messages()[1].buttons, MessageButtons::Ok);
    EXPECT_FALSE(Exists(kArt + "\\Art_13.jpg"));
    EXPECT_EQ(form.Label2(1).Caption(), "caption");
}

TEST_F(FastSaveTest, FailedBitmapSaveIsToldAndLosesNothing) {
    program.files.AddFile(kArt + "\\Art_13.bmp", "as it was");
    form.Label2(1).Caption = "caption";
    program.files.FailWritesWith(ErrorNumber::PermissionDenied);
    Answer(MessageAnswer::Yes);
    Save("*.bmp");
    ASSERT_EQ(Messages().size(), 2U);
    EXPECT_EQ(Messages()[1].text, "Permission denied Mirelle");
    EXPECT_EQ(program.files.Text(kArt + "\\Art_13.bmp"), "as it was");
    EXPECT_EQ(form.Label2(1).Caption(), "caption");
}

TEST_F(FastSaveTest, FailedSaveOfAnEncoderIsSilent) {
    program.encoders.succeeds = false;
    program.files.AddFile(kArt + "\\Art_13.png", "as it was");
    Answer(MessageAnswer::Yes);
    Save("*.png");
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(program.files.Text(kArt + "\\Art_13.png"), "as it was");
    EXPECT_EQ(form.Label2(1).Caption(), "Last Save: Art_13.png");
    EXPECT_EQ(program.encoders.stops, 1);
}

TEST_F(FastSaveTest, NothingToSaveIsToldForJpegAndBitmap) {
    form.picSmall.Picture = Picture();
    form.picSmall.Move(0, 0, 0, 0);
    program.files.AddFile(kArt + "\\Art_13.jpg", "as it was");
    Answer(MessageAnswer::Yes);
    Save("*.jpg");
    Save("*.bmp");
    ASSERT_EQ(Messages().size(), 3U);
    EXPECT_EQ(Messages()[1].text, "Subscript out of range Mirelle");
    EXPECT_EQ(Messages()[2].text, "Invalid picture Mirelle");
    EXPECT_FALSE(Exists(kArt + "\\Art_13.jpg"));
}

TEST_F(FastSaveTest, ConfirmedReadOnlyFileIsReplacedByAJpeg) {
    program.files.AddFile(kArt + "\\Art_13.jpg", {}, MemoryFileSystem::Attribute::ReadOnly);
    Answer(MessageAnswer::Yes);
    Save("*.jpg");
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(program.files.ReadFile(kArt + "\\Art_13.jpg"), SampleAsJpeg());
}

TEST_F(FastSaveTest, ReadOnlyBitmapIsTold) {
    program.files.AddFile(kArt + "\\Art_13.bmp", {}, MemoryFileSystem::Attribute::ReadOnly);
    Answer(MessageAnswer::Yes);
    Save("*.bmp");
    ASSERT_EQ(Messages().size(), 2U);
    EXPECT_EQ(Messages()[1].text, "Path/File access error Mirelle");
}

TEST_F(FastSaveTest, FolderThatWentIsTold) {
    program.files.RemoveFolder(kArt);
    Save("*.jpg");
    ASSERT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Messages()[0].text, "Path not found Mirelle");
}

// A save to Art_13.jpg on a disk of a kind.
template <class Disk>
class FastSaveOn : public ::testing::Test {
protected:
    void Save() {
        Sampler sampler(desktop.PortsOver(files, loader, encoders));
        sampler.form.Load();
        sampler.form.Activate();
        sampler.form.Dir5.SetPath(kArt);
        sampler.form.picSmall.Picture = ChartPicture(8, 8);
        sampler.form.textProfileName.Text = "Art_13";
        sampler.form.Combo5.Text = "*.jpg";
        sampler.form.Command3.UserClick();
        caption = sampler.form.Label2(1).Caption;
        EXPECT_EQ(files.WriteCount(), 0);
    }

    Disk files;
    ScriptedLoader loader;
    ScriptedEncoders encoders;
    ScriptedDesktop desktop;
    std::string caption;
};

// A disk on which files can be neither deleted nor replaced.
class StubbornFileSystem : public MemoryFileSystem {
public:
    void DeleteFile(const std::string&) override { throw RunTimeError(ErrorNumber::PermissionDenied); }
};

class FastSaveOnAStubbornDisk : public FastSaveOn<StubbornFileSystem> {
protected:
    void SaveOver(MemoryFileSystem::Attribute attribute) {
        files.AddFile(kArt + "\\Art_13.jpg", {'o', 'l', 'd'}, attribute);
        desktop.dialogs.messageAnswers.push_back(MessageAnswer::Yes);
        Save();
        EXPECT_EQ(files.Text(kArt + "\\Art_13.jpg"), "old");
    }
};

TEST_F(FastSaveOnAStubbornDisk, TellsThatTheFileCannotBeDeletedAndKeepsIt) {
    SaveOver(MemoryFileSystem::Attribute::Normal);
    ASSERT_EQ(desktop.dialogs.messages.size(), 2U);
    EXPECT_EQ(desktop.dialogs.messages[1].text, "Permission denied Mirelle");
}

// It is asked about, and then in the writer's way; that nothing was written is not told.
TEST_F(FastSaveOnAStubbornDisk, HiddenFileIsNotSeenByTheSecondTryAndStays) {
    SaveOver(MemoryFileSystem::Attribute::Hidden);
    ASSERT_EQ(desktop.dialogs.messages.size(), 1U);
    EXPECT_EQ(desktop.dialogs.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(caption, "Last Save: Art_13.jpg");
}

// A disk on which the look for a file that may be there finds no memory.
class MemorylessFileSystem : public MemoryFileSystem {
public:
    bool FileExists(const std::string& path) const override {
        if (path == kArt + "\\Art_13.jpg") throw std::bad_alloc();
        return MemoryFileSystem::FileExists(path);
    }
};

class FastSaveWithoutMemory : public FastSaveOn<MemorylessFileSystem> {};

TEST_F(FastSaveWithoutMemory, TellsThatThereIsNone) {
    files.AddFolder(kArt);
    Save();
    ASSERT_EQ(desktop.dialogs.messages.size(), 1U);
    EXPECT_EQ(desktop.dialogs.messages[0].text, "Out of memory Mirelle");
}

// Names of all kinds.

class FastSaveNameTest : public ::testing::TestWithParam<FileNameKind> {};

TEST_P(FastSaveNameTest, IsSavedShownAndOpenedAgain) {
    LibraryProgram program;
    FrmPicX& form = program.form;
    program.StartIn(kArt);
    form.picSmall.Picture = ChartPicture(8, 8);
    form.textProfileName.Text = GetParam().stem;
    form.Command3.UserClick();
    const std::string name = Trim(GetParam().stem) + ".jpg";
    ASSERT_THAT(form.File5.Rows(), ElementsAre(name));
    EXPECT_EQ(form.Label2(1).Caption(), "Last Save: " + name);
    const Picture saved = program.AddPicture(kArt, name);
    program.ClickFile(name);
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(saved));
    EXPECT_EQ(form.CurrentImagePath.Text(), kArt + '\\' + name);
}

INSTANTIATE_TEST_SUITE_P(Names, FastSaveNameTest, ::testing::ValuesIn(kFileNameKinds),
                         [](const auto& row) { return std::string(row.param.kind); });

} // namespace
} // namespace mirelle::test
