#include "library/PrefixTable.h"
#include "tests/library/LibraryProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kPrefixFile = "C:\\Mirelle\\Support\\Settings\\MaterialsSamplerPrefix.txt";

class MaterialNamesTest : public ::testing::Test {
protected:
    // The user picks an entry of the drop-down list.
    void Pick(const std::string& entry) {
        const auto& rows = form.textProfileName.Rows();
        const auto found = std::ranges::find(rows, entry);
        ASSERT_NE(found, rows.end()) << entry;
        form.textProfileName.SetListIndex(static_cast<int>(found - rows.begin()));
    }
    static std::string NumberedLines(int count) {
        std::string text;
        for (int line = 1; line <= count; ++line)
            text += "P" + std::to_string(line) + "\r\n";
        return text;
    }
    const std::vector<std::string>& Entries() const { return program.form.textProfileName.Rows(); }

    LibraryProgram program;
    FrmPicX& form = program.form;
};

TEST_F(MaterialNamesTest, ListStartsWithTheBuiltInPrefixes) {
    program.Start();
    EXPECT_THAT(Entries(),
                ElementsAre("BldgFace_", "Art_", "Fractal_", "Graffiti_", "Metal_", "Color_", "Gradient_",
                            "Bio_", "Arch_", "Industrial_", "Material_", "Texture_", "Misc_"));
}

TEST_F(MaterialNamesTest, PickingAPrefixJumpsToItsFolderAndArmsIt) {
    program.Start();
    for (const auto& [prefix, folder] : {std::pair{"BldgFace_", ""},
                                         {"Art_", "\\Art"},
                                         {"Fractal_", "\\Fractal"},
                                         {"Graffiti_", "\\Graffiti"},
                                         {"Metal_", "\\Metal"},
                                         {"Color_", "\\Color"},
                                         {"Gradient_", "\\Gradient"},
                                         {"Bio_", "\\Bio"},
                                         {"Arch_", "\\Architecture"},
                                         {"Industrial_", "\\Industrial"},
                                         {"Material_", ""},
                                         {"Texture_", ""},
                                         {"Misc_", "\\Misc"}}) {
        Pick(prefix);
        EXPECT_EQ(form.Dir5.Path(), kLibraryRoot + folder) << prefix;
        EXPECT_EQ(form.MaterialPrefix, prefix);
        EXPECT_EQ(form.textProfileName.Text(), prefix);
    }
}

TEST_F(MaterialNamesTest, WithCountingTheFolderChangeUsesThePrefixUp) {
    program.AddFiles(kArt, {"Art_12.jpg"});
    program.Start();
    form.ckGetCount.Value = kChecked;
    Pick("Art_");
    EXPECT_EQ(form.textProfileName.Text(), "Art_");
    EXPECT_EQ(form.TextLoops.Text(), "12");
    EXPECT_EQ(form.MaterialPrefix, "");
}

TEST_F(MaterialNamesTest, PrefixOfThePresentFolderIsArmedWithoutAChange) {
    program.StartIn(kArt);
    form.ckGetCount.Value = kChecked;
    Pick("Art_");
    EXPECT_EQ(form.MaterialPrefix, "Art_");
    EXPECT_THAT(form.ListDirs.Rows(), ElementsAre(kLibraryRoot, kArt));
}

TEST_F(MaterialNamesTest, PrefixIsArmedAlsoWhereItsFolderIsMissing) {
    program.StartIn(kArt);
    program.files.RemoveFolder(kMetal);
    Pick("Metal_");
    EXPECT_EQ(form.MaterialPrefix, "Metal_");
    EXPECT_EQ(form.Dir5.Path(), kArt);
}

TEST_F(MaterialNamesTest, EntryThatIsNoBuiltInPrefixChangesNothingButTheText) {
    program.files.AddFile(kPrefixFile, "Oak_\nart_\nArt\nArt_ \n");
    program.Start();
    for (const char* entry : {"Oak_", "art_", "Art", "Art_ "}) {
        Pick(entry);
        EXPECT_EQ(form.textProfileName.Text(), entry);
        EXPECT_EQ(form.MaterialPrefix, "") << entry;
        EXPECT_EQ(form.Dir5.Path(), kLibraryRoot) << entry;
    }
}

// The prefix file.

TEST_F(MaterialNamesTest, LinesOfTheFileStandInThePlaceOfTheBuiltInPrefixes) {
    program.files.AddFile(kPrefixFile, "Oak_\r\n\r\n  Pine_ \r\nArt_");
    program.Start();
    EXPECT_THAT(Entries(), ElementsAre("Oak_", "", "  Pine_ ", "Art_"));
}

TEST_F(MaterialNamesTest, EmptyFileLeavesTheBuiltInPrefixes) {
    program.files.AddFile(kPrefixFile, "");
    program.Start();
    EXPECT_EQ(Entries().size(), kPrefixes.size());
}

TEST_F(MaterialNamesTest, EachReadingAddsTheLinesAgain) {
    program.files.AddFile(kPrefixFile, "Oak_\nPine_\n");
    program.Start();
    form.cmdOpen2Combo.UserClick();
    EXPECT_THAT(Entries(), ElementsAre("Oak_", "Pine_", "Oak_", "Pine_"));
}

TEST_F(MaterialNamesTest, ListKeepsItsEntriesWhenTheFileChanges) {
    program.files.AddFile(kPrefixFile, "Oak_\n");
    program.Start();
    program.files.AddFile(kPrefixFile, "Elm_\n");
    EXPECT_THAT(Entries(), ElementsAre("Oak_"));
    form.cmdOpen2Combo.UserClick();
    EXPECT_THAT(Entries(), ElementsAre("Oak_", "Elm_"));
}

TEST_F(MaterialNamesTest, MissingFileIsPassedOver) {
    program.Start();
    form.cmdOpen2Combo.UserClick();
    EXPECT_EQ(Entries().size(), kPrefixes.size());
    EXPECT_THAT(program.desktop.dialogs.messages, IsEmpty());
}

TEST_F(MaterialNamesTest, FileOfTenThousandLinesIsReadWhole) {
    program.files.AddFile(kPrefixFile, NumberedLines(10000));
    program.Start();
    EXPECT_EQ(Entries().size(), 10000U);
    EXPECT_EQ(Entries().back(), "P10000");
    form.cmdOpen2Combo.UserClick();
    EXPECT_EQ(Entries().size(), 20000U);
}

TEST_F(MaterialNamesTest, LongerFileStopsAtItsLimitAndStaysOpen) {
    program.files.AddFile(kPrefixFile, NumberedLines(10005));
    program.Start();
    EXPECT_EQ(Entries().size(), 10001U);
    EXPECT_EQ(Entries().back(), "P10001");
    // The file is open still, so the next reading goes on where the first one stopped.
    form.cmdOpen2Combo.UserClick();
    EXPECT_EQ(Entries().size(), 10005U);
    EXPECT_EQ(Entries().back(), "P10005");
    // The end was seen and the file closed: now it is opened anew.
    form.cmdOpen2Combo.UserClick();
    EXPECT_EQ(Entries().size(), 20006U);
    EXPECT_EQ(Entries()[10005], "P1");
}

TEST_F(MaterialNamesTest, DoubleClicksOnTheNameBoxesDoNothing) {
    program.StartIn(kArt);
    form.textProfileName.Text = "Oak_3";
    form.textProfileName.UserDblClick();
    form.textProfileNamebk.UserDblClick();
    EXPECT_EQ(form.textProfileName.Text(), "Oak_3");
    EXPECT_EQ(form.textProfileNamebk.Text(), "");
}

} // namespace
} // namespace mirelle::test
