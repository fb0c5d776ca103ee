// File names of all kinds, through listing, click and the list of the SuperBatch.
#include "tests/library/FileNameKinds.h"
#include "tests/library/LibraryProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class FileNameTest : public ::testing::TestWithParam<FileNameKind> {
protected:
    FileNameTest() : name(GetParam().stem + ".jpg") {
        picture = program.AddPicture(kArt, name);
        program.StartIn(kArt);
    }
    LibraryProgram program;
    FrmPicX& form = program.form;
    std::string name;
    Picture picture;
};

TEST_P(FileNameTest, IsListedOpenedAndNamed) {
    ASSERT_THAT(form.File5.Rows(), ::testing::ElementsAre(name));
    program.ClickFile(name);
    EXPECT_EQ(form.CurrentImagePath.Text(), kArt + '\\' + name);
    EXPECT_EQ(form.textProfileName.Text(), GetParam().stem);
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(picture));
}

TEST_P(FileNameTest, IsGatheredOnce) {
    form.Frame8.Visible = true;
    form.ckSingleFile.Value = kChecked;
    program.ClickFile(name);
    program.ClickFile(name);
    EXPECT_THAT(form.List2.Rows(), ::testing::ElementsAre(kArt + '\\' + name));
}

INSTANTIATE_TEST_SUITE_P(Names, FileNameTest, ::testing::ValuesIn(kFileNameKinds),
                         [](const auto& row) { return std::string(row.param.kind); });

// On a system that tells small letters from capitals both stand in one folder.
class TellingFileSystem : public MemoryFileSystem {
public:
    std::vector<std::string> FileNames(const std::string& folder) const override {
        std::vector<std::string> names = MemoryFileSystem::FileNames(folder);
        names.insert(names.end(), {"brick.jpg", "Brick.jpg", "BRICK.JPG"});
        return names;
    }
};

TEST(FileNamesOfDifferentCase, AreRowsOfTheirOwn) {
    TellingFileSystem files;
    ScriptedLoader loader;
    ScriptedEncoders encoders;
    ScriptedDesktop desktop;
    files.AddFolder(kArt);
    Sampler sampler(desktop.PortsOver(files, loader, encoders));
    FrmPicX& form = sampler.form;
    form.Load();
    form.Activate();
    form.Dir5.SetPath(kArt);
    ASSERT_THAT(form.File5.Rows(), ::testing::ElementsAre("BRICK.JPG", "Brick.jpg", "brick.jpg"));
    for (int row = 0; row < 3; ++row) {
        const Picture picture = ChartPicture(5, 5);
        loader.pictures[kArt + '\\' + form.File5.List(row)] = picture;
        form.File5.SetListIndex(row);
        EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(picture)) << row;
    }
    EXPECT_EQ(form.textProfileName.Text(), "brick");
}

} // namespace
} // namespace mirelle::test
