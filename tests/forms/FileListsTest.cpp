// The drive, folder and file lists over files in memory.
#include "forms/FileLists.h"

#include "tests/forms/TestForm.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/MemoryFileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle {
namespace {

using test::ErrorOf;
using test::MemoryFileSystem;
using testing::ElementsAre;
using testing::IsEmpty;

struct FileListsTest : testing::Test, test::TestForm {
    MemoryFileSystem files;
    std::vector<std::string> events;

    void SetUp() override {
        for (const char* name : {"Zoo.jpg", "art_2.JPG", "Art_1.jpg", "b.jpeg", "b.bmp", "note.txt", "noend"})
            files.AddFile(std::string("C:\\Mats\\") + name);
        files.AddFile("C:\\Mats\\hidden.jpg", {}, MemoryFileSystem::Attribute::Hidden);
        files.AddFolder("C:\\Mats\\sub.jpg");
        files.AddFolder("C:\\Mats\\Art");
        files.AddFolder("D:\\");
    }
    void Note(Event<>& event, const std::string& name) {
        event.Connect([this, name] { events.push_back(name); });
    }
};

TEST_F(FileListsTest, AFileListHoldsMatchingFilesByNameWithoutRegardToCase) {
    FileListBox list(form, "File1", files);
    list.SetPath("C:\\Mats");
    EXPECT_THAT(list.Rows(), ElementsAre("Art_1.jpg", "art_2.JPG", "Zoo.jpg"));
    list.SetPattern("*.BMP;*.jpeg");
    EXPECT_THAT(list.Rows(), ElementsAre("b.bmp", "b.jpeg"));
    list.SetPattern("*.*");
    EXPECT_EQ(list.ListCount(), 7);
    list.SetPattern("");
    EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(FileListsTest, AFileListStartsInTheProgramsFolder) {
    files.AddFile("C:\\Mirelle\\start.jpg");
    const FileListBox list(form, "File1", files);
    EXPECT_EQ(list.Path(), "C:\\Mirelle");
    EXPECT_EQ(list.Pattern(), "*.jpg");
    EXPECT_THAT(list.Rows(), ElementsAre("start.jpg"));
}

TEST_F(FileListsTest, AnotherPathOrPatternListsAnewWithNothingSelected) {
    FileListBox list(form, "File1", files);
    list.SetPath("C:\\Mats");
    list.Selected(1) = true;
    EXPECT_EQ(list.FileName(), "art_2.JPG");
    list.SetPattern("*.jpg;*.bmp");
    EXPECT_EQ(list.ListIndex(), kNoRow);
    EXPECT_EQ(list.FileName(), "");
    list.Selected(1) = true;
    list.SetPath("C:\\");
    EXPECT_EQ(list.ListIndex(), kNoRow);
}

TEST_F(FileListsTest, WhatIsThereAlreadyKeepsTheListAndTheSelection) {
    FileListBox list(form, "File1", files);
    list.SetPath("C:\\Mats");
    list.Selected(1) = true;
    files.AddFile("C:\\Mats\\a.jpg");
    list.SetPath("c:\\mats\\");
    list.SetPattern("*.jpg");
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.ListCount(), 3);
    list.Refresh();
    EXPECT_EQ(list.ListIndex(), kNoRow);
    EXPECT_EQ(list.ListCount(), 4);
}

TEST_F(FileListsTest, AFolderThatIsNotThereIsError76AndChangesNothing) {
    FileListBox list(form, "File1", files);
    list.SetPath("C:\\Mats");
    list.Selected(1) = true;
    EXPECT_EQ(ErrorOf([&] { list.SetPath("C:\\None"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(list.Path(), "C:\\Mats");
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.ListCount(), 3);
}

struct Selecting : FileListsTest {
    FileListBox list{form, "File1", files};
    int clicks = 0;

    void SetUp() override {
        FileListsTest::SetUp();
        list.SetPath("C:\\Mats");
        list.Click.Connect([this] { ++clicks; });
    }
};

TEST_F(Selecting, TrueRunsTheClickAlsoOnTheSelectedRow) {
    list.Selected(0) = true;
    list.Selected(0) = true;
    EXPECT_EQ(clicks, 2);
    EXPECT_TRUE(list.Selected(0));
    EXPECT_FALSE(list.Selected(1));
    list.Selected(1) = true;
    EXPECT_EQ(clicks, 3);
    EXPECT_FALSE(list.Selected(0));
}

TEST_F(Selecting, TheRowsOwnClickDoesNotRunItAgain) {
    list.Click.Connect([this] { list.Selected(list.ListIndex()) = true; });
    list.Selected(0) = true;
    EXPECT_EQ(clicks, 1);
    list.Selected(0) = true;
    EXPECT_EQ(clicks, 2);
}

TEST_F(Selecting, AnotherRowsClickRunsFromInsideAClick) {
    list.Click.Connect([this] {
        if (list.ListIndex() == 0) list.Selected(1) = true;
    });
    list.Selected(0) = true;
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(Selecting, AnErrorInTheClickReachesTheCallerAndTheNextClickRuns) {
    bool fail = true;
    list.Click.Connect([&] {
        if (fail) throw RunTimeError(ErrorNumber::Overflow);
    });
    EXPECT_EQ(ErrorOf([&] { list.Selected(0) = true; }), ErrorNumber::Overflow);
    EXPECT_TRUE(list.Selected(0));
    fail = false;
    list.Selected(0) = true;
    EXPECT_EQ(clicks, 2);
}

TEST_F(Selecting, FalseOnlyDeselects) {
    list.Selected(1) = true;
    list.Selected(0) = false; // another row than the selected one
    EXPECT_EQ(list.ListIndex(), 1);
    list.Selected(1) = false;
    EXPECT_EQ(list.ListIndex(), kNoRow);
    EXPECT_EQ(list.FileName(), "");
    EXPECT_EQ(clicks, 1);
}

TEST_F(Selecting, ARowThatDoesNotExistIsError381) {
    for (const int row : {3, -1}) {
        EXPECT_EQ(ErrorOf([&] { list.Selected(row) = true; }), ErrorNumber::InvalidPropertyArrayIndex);
        EXPECT_EQ(ErrorOf([&] { list.Selected(row) = false; }), ErrorNumber::InvalidPropertyArrayIndex);
        EXPECT_FALSE(list.Selected(row));
    }
    EXPECT_EQ(clicks, 0);
}

TEST_F(Selecting, ByIndexRunsTheClickAndRefusesMissingRows) {
    list.SetListIndex(2);
    list.SetListIndex(2);
    EXPECT_EQ(clicks, 2);
    list.SetListIndex(kNoRow);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(ErrorOf([&] { list.SetListIndex(3); }), ErrorNumber::InvalidPropertyValue);
}

TEST_F(Selecting, AUsersClickIsOneOnTheCurrentRow) {
    list.UserClick();
    EXPECT_EQ(clicks, 0);
    list.Selected(0) = true;
    list.UserClick();
    EXPECT_EQ(clicks, 2);
    list.Enabled = false;
    list.UserClick();
    EXPECT_EQ(clicks, 2);
}

TEST_F(FileListsTest, AFolderListHoldsTheFoldersByName) {
    DirListBox list(form, "Dir1", files);
    EXPECT_EQ(list.Path(), "C:\\Mirelle");
    Note(list.Change, "Change");
    list.SetPath("c:\\mats\\");
    EXPECT_EQ(list.Path(), "C:\\Mats");
    EXPECT_THAT(list.Rows(), ElementsAre("C:\\Mats\\Art", "C:\\Mats\\sub.jpg"));
    EXPECT_THAT(events, ElementsAre("Change"));
    list.SetPath("C:\\Mats");
    EXPECT_THAT(events, ElementsAre("Change"));
    list.SetPath("C:\\");
    EXPECT_THAT(list.Rows(), ElementsAre("C:\\Mats", "C:\\Mirelle"));
}

TEST_F(FileListsTest, AFolderListStaysWhereItIsAtError76) {
    DirListBox list(form, "Dir1", files);
    list.SetPath("C:\\Mats");
    list.SetListIndex(0);
    Note(list.Change, "Change");
    EXPECT_EQ(ErrorOf([&] { list.SetPath("Z:"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(list.Path(), "C:\\Mats");
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(FileListsTest, ARowOfAFolderListIsASelectionOnly) {
    DirListBox list(form, "Dir1", files);
    list.SetPath("C:\\Mats");
    Note(list.Change, "Change");
    Note(list.Click, "Click");
    list.SetListIndex(1);
    EXPECT_EQ(list.Path(), "C:\\Mats");
    list.SetListIndex(kNoRow);
    list.UserClick(); // on the folder itself
    EXPECT_THAT(events, ElementsAre("Click", "Click"));
}

TEST_F(FileListsTest, AFolderListFollowsTheDiskAndKeepsItsRow) {
    DirListBox list(form, "Dir1", files);
    list.SetPath("C:\\Mats");
    list.SetListIndex(1);
    Note(list.Change, "Change");
    Note(list.Click, "Click");
    int told = 0;
    list.Watch([&] { ++told; });
    list.FollowDisk();
    EXPECT_EQ(told, 0) << "nothing has changed";
    files.AddFolder("C:\\Mats\\Bio");
    list.FollowDisk();
    EXPECT_THAT(list.Rows(), ElementsAre("C:\\Mats\\Art", "C:\\Mats\\Bio", "C:\\Mats\\sub.jpg"));
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(told, 1);
    files.RemoveFolder("C:\\Mats\\sub.jpg");
    list.FollowDisk();
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.ListIndex(), kNoRow);
    files.RemoveFolder("C:\\Mats");
    list.FollowDisk();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.Path(), "C:\\Mats");
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(FileListsTest, ADriveListOffersTheDrivesAndTakesAnyText) {
    DriveListBox list(form, "Drive1", files);
    EXPECT_THAT(list.Rows(), ElementsAre("c:", "d:"));
    EXPECT_EQ(list.Drive(), "c:");
    Note(list.Change, "Change");
    list.Drive = "d:";
    list.Drive = "d:";
    list.Drive = "x:";
    EXPECT_THAT(events, ElementsAre("Change", "Change"));
}

TEST_F(FileListsTest, ADriveListBeginsWithTheDriveThatTheProgramLiesOn) {
    MemoryFileSystem other("D:\\Mirelle");
    other.AddFolder("C:\\Mats");
    ASSERT_THAT(other.Drives(), ElementsAre("c:", "d:"));
    EXPECT_EQ(DriveListBox(form, "Drive1", other).Drive(), "d:");
}

struct PatternRow {
    const char* pattern;
    const char* name;
    bool matches;
};

class Patterns : public testing::TestWithParam<PatternRow> {};

TEST_P(Patterns, MatchAsOnWindows) {
    EXPECT_EQ(MatchesPattern(GetParam().name, GetParam().pattern), GetParam().matches)
        << GetParam().pattern << " on " << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    FileListsTest, Patterns,
    testing::Values(PatternRow{"*.jpg", "a.jpg", true}, PatternRow{"*.jpg", "A.JPG", true},
                    PatternRow{"*.JPG", "a.jpg", true}, PatternRow{"*.jpg", "a.jpeg", false},
                    PatternRow{"*.jpg", "a.jpg.bmp", false}, PatternRow{"*.jpg", ".jpg", true},
                    PatternRow{"*.jpg", "jpg", false}, PatternRow{"*.*", "noend", true},
                    PatternRow{"*", "a.b", true}, PatternRow{"a?c.bmp", "abc.bmp", true},
                    PatternRow{"a?c.bmp", "ac.bmp", false}, PatternRow{"?.jpg", "\u00fc.jpg", true},
                    PatternRow{"\u00dc*.jpg", "\u00fcber.jpg", true}, PatternRow{"*a*b*", "xxaxxbxx", true},
                    PatternRow{"*a*b*", "xxbxxaxx", false}, PatternRow{"*.jpg;*.bmp", "a.bmp", true},
                    PatternRow{"*.jpg; *.bmp", "a.bmp", true}, PatternRow{"*.jpg;*.bmp", "a.gif", false},
                    PatternRow{"a.jpg", "a.jpg", true}, PatternRow{"a.jpg", "aa.jpg", false},
                    PatternRow{"", "a.jpg", false}, PatternRow{"*.gif)", "a.gif", false},
                    PatternRow{"**?", "", false}));

TEST(PatternMatching, IsQuickAlsoWithManyStars) {
    const std::string name(5000, 'a');
    EXPECT_FALSE(MatchesPattern(name, "*a*a*a*a*a*a*a*a*a*a*a*a*b"));
}

} // namespace
} // namespace mirelle
