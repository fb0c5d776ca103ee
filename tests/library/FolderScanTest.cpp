#include "library/FolderScan.h"

#include "tests/library/LibraryProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

struct ScanRow {
    const char* name;
    std::vector<std::string> numbers; // of the files, in their order
    const char* shown;                // what TextLoops shows, "before" where it is left alone
};

class HighestNumberTest : public ::testing::TestWithParam<ScanRow> {};

TEST_P(HighestNumberTest, IsShownInTheCounterBox) {
    LibraryProgram program;
    program.form.ckIncrement.Value = kChecked;
    program.form.TextLoops.Text.SetQuietly("before");
    for (const std::string& number : GetParam().numbers)
        program.form.ListHigh.AddItem(number);
    ShowHighestNumber(program.form);
    EXPECT_EQ(program.form.TextLoops.Text(), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Folders, HighestNumberTest,
    ::testing::Values(
        ScanRow{"Ascending", {"3", "12"}, "12"}, ScanRow{"Descending", {"12", "3"}, "12"},
        ScanRow{"EmptyFolder", {}, "before"}, ScanRow{"NothingAboveZero", {"0", "0", "-4"}, "before"},
        ScanRow{"LastNumberShown", {"19999"}, "19999"}, ScanRow{"FirstNumberNotShown", {"20000"}, "before"},
        ScanRow{"LargestInteger", {"32767"}, "before"},
        ScanRow{"LargeNumberHidesSmallerOnesBehindIt", {"5", "25000", "300"}, "5"},
        ScanRow{"LargeNumberFirst", {"25000", "5"}, "before"},
        // A number beyond 16 bits fails alone: the maximum before it is shown, and later ones count.
        ScanRow{"BeyondSixteenBits", {"32768"}, "0"}, ScanRow{"BeyondSixteenBitsGoesOn", {"99999", "7"}, "7"},
        ScanRow{"BeyondSixteenBitsKeepsTheMaximum", {"7", "99999"}, "7"},
        ScanRow{"BeyondSixteenBitsBehindALargeOne", {"7", "20000", "99999", "19999"}, "7"},
        ScanRow{"RoundsATieToTheEvenNumber", {"2.5"}, "2"}, ScanRow{"RoundsUp", {"2.6"}, "3"},
        ScanRow{"JustBelowTheEdgeOfSixteenBits", {"32767.4", "40"}, "before"},
        ScanRow{"JustAboveTheEdgeOfSixteenBits", {"32767.5", "40"}, "40"}, ScanRow{"BelowHalf", {"0.4"}, "0"},
        ScanRow{"NumberBeyondAllRange", {"4", "1E999", "6"}, "6"},
        ScanRow{"HugeNumber", {"1E+20", "8"}, "8"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(HighestNumber, IsNotShownWhileNamesAreNotIncremented) {
    LibraryProgram program;
    program.form.ckIncrement.Value = kUnchecked;
    program.form.TextLoops.Text = "4";
    program.form.ListHigh.AddItem("12");
    ShowHighestNumber(program.form);
    EXPECT_EQ(program.form.TextLoops.Text(), "4");
}

TEST(HighestNumber, WritesTheBoxAtEachNewMaximum) {
    LibraryProgram program;
    program.form.ckIncrement.Value = kChecked;
    std::vector<std::string> shown;
    program.form.TextLoops.Change.Connect([&] { shown.push_back(program.form.TextLoops.Text); });
    for (const char* number : {"3", "2", "12", "20001", "13"})
        program.form.ListHigh.AddItem(number);
    ShowHighestNumber(program.form);
    EXPECT_EQ(shown, (std::vector<std::string>{"3", "12"}));
    EXPECT_EQ(program.form.IncrementCounter.Number(), 12);
}

TEST(FileNumbers, AreNotedAsTextsInTheOrderOfTheFiles) {
    LibraryProgram program;
    for (const char* name : {"Art_0012.jpg", "wood.jpg", "Art_1e999.jpg", "Art_4b.jpg", "Art_1e20.jpg"})
        NoteFileNumber(program.form, name);
    EXPECT_EQ(program.form.ListHigh.Rows(), (std::vector<std::string>{"12", "0", "4", "1E+20"}));
}

} // namespace
} // namespace mirelle::test
