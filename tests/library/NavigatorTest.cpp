#include "tests/library/LibraryProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class NavigatorTest : public ::testing::Test {
protected:
    LibraryProgram program;
    FrmPicX& form = program.form;

    const std::vector<ShownMessage>& Messages() const { return program.desktop.dialogs.messages; }
};

TEST_F(NavigatorTest, StartsInTheLibraryWithItsFirstFileOpened) {
    const Picture first = program.AddPicture(kLibraryRoot, "Brick_7.jpg");
    program.AddPicture(kLibraryRoot, "Wall.jpg");
    program.Start();
    EXPECT_EQ(form.Dir5.Path(), kLibraryRoot);
    EXPECT_EQ(form.File5.Path(), kLibraryRoot);
    EXPECT_THAT(form.ListDirs.Rows(), ElementsAre(kLibraryRoot));
    EXPECT_THAT(form.Combo5.Rows(), ElementsAre("*.jpg", "*.jpeg", "*.bmp", "*.gif"));
    EXPECT_EQ(form.Label8(46).Caption(), "2 Files");
    EXPECT_EQ(form.File5.FileName(), "Brick_7.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "Brick_7");
    EXPECT_TRUE(form.Picture().SharesPixelsWith(first));
}

TEST_F(NavigatorTest, StartGetsThroughFileNumbersBeyondAllRange) {
    program.AddPicture(kLibraryRoot, "Brick_1e999.jpg");
    program.AddPicture(kLibraryRoot, "Brick_2.jpg");
    program.Start();
    EXPECT_FALSE(form.FirstActivate);
    EXPECT_EQ(form.textProfileName.Text(), "Brick_1e999");
}

// The drive.

TEST_F(NavigatorTest, DriveTakesTheFolderListToItsRoot) {
    program.files.AddFolder("D:\\textures");
    program.Start();
    form.Drive5.Drive = "d:";
    EXPECT_EQ(form.Dir5.Path(), "D:\\");
    EXPECT_EQ(form.File5.Path(), "D:\\");
}

TEST_F(NavigatorTest, DriveThatIsNotReadyLeavesTheFolderWithoutAWord) {
    program.StartIn(kArt);
    form.Drive5.Drive = "e:";
    EXPECT_EQ(form.Drive5.Drive(), "e:");
    EXPECT_EQ(form.Dir5.Path(), kArt);
    EXPECT_EQ(form.File5.Path(), kArt);
    EXPECT_THAT(Messages(), IsEmpty());
}

// The folder.

TEST_F(NavigatorTest, FolderChangeListsItsFilesAndRemembersTheFolder) {
    program.AddFiles(kArt, {"Art_3.jpg", "Art_12.jpg", "plan.bmp", "notes.txt"});
    program.StartIn(kArt);
    EXPECT_THAT(form.File5.Rows(), ElementsAre("Art_12.jpg", "Art_3.jpg"));
    EXPECT_EQ(form.File5.ListIndex(), kNoRow);
    EXPECT_THAT(form.ListHigh.Rows(), ElementsAre("12", "3"));
    EXPECT_EQ(form.Label8(46).Caption(), "2 Files");
    EXPECT_THAT(form.ListDirs.Rows(), ElementsAre(kLibraryRoot, kArt));
}

TEST_F(NavigatorTest, FoldersVisitedAreKeptWithRepeats) {
    program.StartIn(kArt);
    form.Dir5.SetPath(kMetal);
    form.Dir5.SetPath(kArt);
    form.Dir5.SetPath(kArt);
    EXPECT_THAT(form.ListDirs.Rows(), ElementsAre(kLibraryRoot, kArt, kMetal, kArt));
}

TEST_F(NavigatorTest, CountIsToldInTheWordsForOneNoneAndMany) {
    program.AddFiles(kMetal, {"Metal_1.jpg"});
    program.StartIn(kMetal);
    EXPECT_EQ(form.Label8(46).Caption(), "1 File");
    form.Dir5.SetPath(kArt);
    EXPECT_EQ(form.Label8(46).Caption(), "0 Files");
}

TEST_F(NavigatorTest, FolderThatIsNotThereChangesNothing) {
    program.StartIn(kArt);
    EXPECT_THROW(form.Dir5.SetPath("C:\\nowhere"), RunTimeError);
    EXPECT_EQ(form.File5.Path(), kArt);
    EXPECT_THAT(form.ListDirs.Rows(), ElementsAre(kLibraryRoot, kArt));
}

TEST_F(NavigatorTest, FolderClickShowsTheFolderWithoutRememberingIt) {
    program.AddFiles(kLibraryRoot, {"Brick_4.jpg"});
    program.Start();
    form.File5.SetPath(kMetal);
    form.Dir5.SetListIndex(0);
    EXPECT_EQ(form.File5.Path(), kLibraryRoot);
    EXPECT_THAT(form.ListHigh.Rows(), ElementsAre("4"));
    EXPECT_THAT(form.ListDirs.Rows(), ElementsAre(kLibraryRoot));
}

TEST_F(NavigatorTest, FolderClickThatListsNothingLeavesTheOldCount) {
    program.AddFiles(kArt, {"Art_1.jpg", "Art_2.jpg"});
    program.StartIn(kArt);
    form.Combo5.Text = "*.bmp";
    form.Dir5.Click();
    EXPECT_EQ(form.File5.ListCount(), 0);
    EXPECT_EQ(form.Label8(46).Caption(), "2 Files");
    EXPECT_THAT(form.ListHigh.Rows(), IsEmpty());
}

// What a change of folder does beside: gathering, the highest number, the waiting prefix.

TEST_F(NavigatorTest, AppendGathersTheFilesOfEachFolder) {
    program.AddFiles(kArt, {"Art_1.jpg", "Art_2.jpg"});
    program.AddFiles(kMetal, {"Metal_1.jpg"});
    program.Start();
    form.ckAppend.Value = kChecked;
    form.Dir5.SetPath(kArt);
    form.Dir5.SetPath(kMetal);
    EXPECT_THAT(form.List2.Rows(),
                ElementsAre(kArt + "\\Art_1.jpg", kArt + "\\Art_2.jpg", kMetal + "\\Metal_1.jpg"));
    EXPECT_EQ(form.Label8(0).Caption(), "3 Files");
}

TEST_F(NavigatorTest, AppendDoesNotLookForRowsThatAreThere) {
    program.AddFiles(kArt, {"Art_1.jpg"});
    program.Start();
    form.ckAppend.Value = kChecked;
    form.Dir5.SetPath(kArt);
    form.Dir5.Click();
    EXPECT_EQ(form.List2.ListCount(), 2);
    EXPECT_EQ(form.Label8(0).Caption(), "2 Files");
}

TEST_F(NavigatorTest, AppendOfAnEmptyFolderLeavesTheLabel) {
    program.Start();
    form.Label8(0).Caption = "as it was";
    form.ckAppend.Value = kChecked;
    form.Dir5.SetPath(kArt);
    EXPECT_EQ(form.Label8(0).Caption(), "as it was");
}

TEST_F(NavigatorTest, SingleAddingBarsWholeFolders) {
    program.AddFiles(kArt, {"Art_1.jpg"});
    program.Start();
    form.ckAppend.Value = kChecked;
    form.ckSingleFile.Value = kChecked;
    form.Dir5.SetPath(kArt);
    EXPECT_EQ(form.List2.ListCount(), 0);
}

TEST_F(NavigatorTest, WithoutAppendNothingIsGathered) {
    program.AddFiles(kArt, {"Art_1.jpg"});
    program.StartIn(kArt);
    EXPECT_EQ(form.List2.ListCount(), 0);
}

TEST_F(NavigatorTest, CountingShowsTheHighestNumberOfTheFolder) {
    program.AddFiles(kArt, {"Art_3.jpg", "Art_12.jpg", "Art_5.jpg"});
    program.Start();
    form.ckGetCount.Value = kChecked;
    form.Dir5.SetPath(kArt);
    EXPECT_EQ(form.TextLoops.Text(), "12");
    EXPECT_EQ(form.IncrementCounter.Number(), 12);
    EXPECT_EQ(form.ListHigh.ListCount(), 3);
}

TEST_F(NavigatorTest, WithoutCountingTheCounterStays) {
    program.AddFiles(kArt, {"Art_12.jpg"});
    program.Start();
    form.TextLoops.Text = "4";
    form.Dir5.SetPath(kArt);
    EXPECT_EQ(form.TextLoops.Text(), "4");
    form.Dir5.SetPath(kMetal);
    EXPECT_EQ(form.TextLoops.Text(), "4");
}

TEST_F(NavigatorTest, CountingInAnEmptyFolderShowsZero) {
    program.Start();
    form.ckGetCount.Value = kChecked;
    form.TextLoops.Text = "9";
    form.Dir5.SetPath(kArt);
    EXPECT_EQ(form.TextLoops.Text(), "0");
}

TEST_F(NavigatorTest, CountingInAnEmptyFolderLeavesTheBoxWhileNothingIsIncremented) {
    program.Start();
    form.TextLoops.Text = "9";
    form.ckIncrement.Value = kUnchecked;
    form.ckGetCount.Value = kChecked;
    form.Dir5.SetPath(kArt);
    EXPECT_EQ(form.TextLoops.Text(), "9");
}

TEST_F(NavigatorTest, CountingInAFolderWithoutNumbersLeavesTheBox) {
    program.AddFiles(kArt, {"a.jpg"});
    program.Start();
    form.ckGetCount.Value = kChecked;
    form.TextLoops.Text = "9";
    form.Dir5.SetPath(kArt);
    EXPECT_EQ(form.TextLoops.Text(), "9");
}

TEST_F(NavigatorTest, CountingUsesTheWaitingPrefixUp) {
    program.Start();
    form.ckGetCount.Value = kChecked;
    form.MaterialPrefix = " Oak_ ";
    form.textProfileName.Text = "Brick_4";
    form.Dir5.SetPath(kArt);
    EXPECT_EQ(form.textProfileName.Text(), "Oak_");
    EXPECT_EQ(form.MaterialPrefix, "");
}

TEST_F(NavigatorTest, WithoutCountingThePrefixWaitsOn) {
    program.Start();
    form.MaterialPrefix = "Oak_";
    form.textProfileName.Text = "Brick_4";
    form.Dir5.SetPath(kArt);
    EXPECT_EQ(form.textProfileName.Text(), "Brick_4");
    EXPECT_EQ(form.MaterialPrefix, "Oak_");
}

// The pattern.

TEST_F(NavigatorTest, ChoosingAPatternListsAndCountsAnew) {
    program.AddFiles(kArt, {"Art_1.jpg", "Art_2.jpg", "Art_3.bmp"});
    program.StartIn(kArt);
    form.Combo5.SetListIndex(2);
    EXPECT_EQ(form.File5.Pattern(), "*.bmp");
    EXPECT_THAT(form.File5.Rows(), ElementsAre("Art_3.bmp"));
    EXPECT_EQ(form.Label8(46).Caption(), "1 File");
}

TEST_F(NavigatorTest, ChosenPatternIsTrimmed) {
    program.AddFiles(kArt, {"Art_3.bmp"});
    program.StartIn(kArt);
    form.Combo5.AddItem("  *.bmp ");
    form.Combo5.SetListIndex(4);
    EXPECT_EQ(form.File5.Pattern(), "*.bmp");
    EXPECT_EQ(form.File5.ListCount(), 1);
}

TEST_F(NavigatorTest, TypedTextThatIsNoPatternTurnsBack) {
    program.Start();
    for (const char* typed : {"jpg", "", " ", ".bmp"}) {
        form.Combo5.Text = "*.gif";
        form.Combo5.Text = typed;
        EXPECT_EQ(form.Combo5.Text(), "*.jpg") << '"' << typed << '"';
    }
    form.Combo5.Text = "a*";
    EXPECT_EQ(form.Combo5.Text(), "a*");
}

TEST_F(NavigatorTest, TypedPatternWaitsForTheNextChangeOfFolder) {
    program.AddFiles(kArt, {"Art_1.jpg", "Art_2.tif"});
    program.AddFiles(kMetal, {"Metal_1.jpg", "Metal_2.tif"});
    program.StartIn(kArt);
    form.Combo5.Text = "*.tif";
    EXPECT_EQ(form.File5.Pattern(), "*.jpg");
    EXPECT_THAT(form.File5.Rows(), ElementsAre("Art_1.jpg"));
    form.Dir5.SetPath(kMetal);
    EXPECT_EQ(form.File5.Pattern(), "*.tif");
    EXPECT_THAT(form.File5.Rows(), ElementsAre("Metal_2.tif"));
}

// The jumps.

TEST_F(NavigatorTest, CategoryButtonsLeadToTheFoldersTheyName) {
    constexpr std::array kNames = {"Art",      "Fractal", "Graffiti",     "Metal",      "Color",
                                   "Gradient", "Bio",     "Architecture", "Industrial", "Misc"};
    program.Start();
    ASSERT_EQ(form.cmdMatDirs.Count(), 10);
    for (int index = 0; index < 10; ++index) {
        const std::string name = kNames[static_cast<std::size_t>(index)];
        form.cmdMatDirs(index).UserClick();
        EXPECT_EQ(form.Dir5.Path(), kLibraryRoot + '\\' + name);
        EXPECT_EQ(form.File5.Path(), kLibraryRoot + '\\' + name);
        const std::string shown = name == "Misc" ? "Miscellaneous" : name;
        EXPECT_EQ(form.cmdMatDirs(index).ToolTipText(), "Go to " + shown + " Materials");
    }
    EXPECT_EQ(form.ListDirs.ListCount(), 11);
}

TEST_F(NavigatorTest, MissingCategoryFolderLeavesTheFolderWithoutAWord) {
    program.StartIn(kArt);
    program.files.RemoveFolder(kMetal);
    form.cmdMatDirs(3).UserClick();
    EXPECT_EQ(form.Dir5.Path(), kArt);
    EXPECT_THAT(form.ListDirs.Rows(), ElementsAre(kLibraryRoot, kArt));
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(NavigatorTest, BackLeadsToTheFirstFolderVisited) {
    program.StartIn(kArt);
    form.Dir5.SetPath(kMetal);
    form.cmdBackDir.UserClick();
    EXPECT_EQ(form.Dir5.Path(), kLibraryRoot);
}

TEST_F(NavigatorTest, BackBeforeAnyVisitDoesNothing) {
    program.StartIn(kArt);
    form.ListDirs.Clear();
    form.cmdBackDir.UserClick();
    EXPECT_EQ(form.Dir5.Path(), kArt);
}

TEST_F(NavigatorTest, BackToADeletedLibraryDoesNothing) {
    program.files.AddFolder("D:\\textures");
    program.StartIn("D:\\textures");
    program.files.RemoveFolder(kLibraryRoot);
    form.cmdBackDir.UserClick();
    EXPECT_EQ(form.Dir5.Path(), "D:\\textures");
    EXPECT_THAT(Messages(), IsEmpty());
}

// Refreshing.

class RefreshTest : public NavigatorTest {
protected:
    void StartWithFiles(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            program.AddPicture(kArt, name);
        program.StartIn(kArt);
        form.File5.Click.Connect([this] { clicked.push_back(form.File5.FileName()); });
    }
    std::vector<std::string> clicked;
};

TEST_F(RefreshTest, OpensTheFirstSixFilesUpwardsAndTheFirstOnceMore) {
    StartWithFiles({"a.jpg", "b.jpg", "c.jpg", "d.jpg", "e.jpg", "f.jpg", "g.jpg", "h.jpg"});
    program.ClickFile("h.jpg");
    clicked.clear();
    form.cmdRefreshFile.UserClick();
    EXPECT_THAT(clicked, ElementsAre("f.jpg", "e.jpg", "d.jpg", "c.jpg", "b.jpg", "a.jpg", "a.jpg"));
    EXPECT_EQ(form.File5.FileName(), "a.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "a");
}

TEST_F(RefreshTest, PassesOverRowsThatDoNotExist) {
    StartWithFiles({"a.jpg", "b.jpg"});
    form.cmdRefreshFile.UserClick();
    EXPECT_THAT(clicked, ElementsAre("b.jpg", "a.jpg", "a.jpg"));
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(RefreshTest, DeselectsEachRowBehindItsClick) {
    StartWithFiles({"a.jpg", "b.jpg"});
    std::vector<int> selected;
    form.File5.Watch([&] {
        const int row = form.File5.ListIndex();
        if (selected.empty() || selected.back() != row) selected.push_back(row);
    });
    form.cmdRefreshFile.UserClick();
    EXPECT_THAT(selected, ElementsAre(kNoRow, 1, kNoRow, 0, kNoRow, 0));
}

TEST_F(RefreshTest, ShowsFilesThatCameAndDropsThoseThatWent) {
    StartWithFiles({"b.jpg", "c.jpg"});
    const Picture newest = program.AddPicture(kArt, "a.jpg");
    program.files.DeleteFile(kArt + "\\c.jpg");
    form.cmdRefreshFile.UserClick();
    EXPECT_THAT(form.File5.Rows(), ElementsAre("a.jpg", "b.jpg"));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(newest));
}

TEST_F(RefreshTest, OfAnEmptyFolderOpensNothing) {
    StartWithFiles({});
    form.cmdRefreshFile.UserClick();
    EXPECT_THAT(clicked, IsEmpty());
    EXPECT_THAT(Messages(), IsEmpty());
}

// The mouse.

TEST_F(NavigatorTest, MouseOverTheListsDarkensTheEffectsFrame) {
    for (Control* list : {static_cast<Control*>(&form.Dir5), static_cast<Control*>(&form.File5)}) {
        form.FrameRGBFX2.BackColor = 0xFF8080;
        list->MouseMove(MouseArgs{});
        EXPECT_EQ(form.FrameRGBFX2.BackColor(), 0) << list->Name();
    }
}

TEST_F(NavigatorTest, FileListTellsWhatAClickOpensTheFileFor) {
    form.File5.MouseMove(MouseArgs{});
    EXPECT_EQ(form.File5.ToolTipText(), "Click to preview image file");
    form.ckGradPic(0).Value = kChecked;
    form.File5.MouseMove(MouseArgs{});
    EXPECT_EQ(form.File5.ToolTipText(), "Click to open for gradient image to gradate");
    EXPECT_EQ(form.Dir5.ToolTipText(), "Corvane Materials Library Support Directories");
}

} // namespace
} // namespace mirelle::test
