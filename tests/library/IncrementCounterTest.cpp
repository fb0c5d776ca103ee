#include "tests/library/LibraryProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class IncrementCounterTest : public ::testing::Test {
protected:
    IncrementCounterTest() { program.Start(); }

    LibraryProgram program;
    FrmPicX& form = program.form;
};

TEST_F(IncrementCounterTest, StartsEmptyWithZeroInTheBox) {
    EXPECT_TRUE(form.IncrementCounter.IsEmpty());
    EXPECT_EQ(form.TextLoops.Text(), "0");
    EXPECT_EQ(form.ckIncrement.Value(), kChecked);
}

// The box.

TEST_F(IncrementCounterTest, TextBecomesTheCounterWhileNamesAreIncremented) {
    form.TextLoops.Text = "17";
    EXPECT_EQ(form.IncrementCounter.Number(), 17);
    form.ckIncrement.Value = kUnchecked;
    form.TextLoops.Text = "30";
    EXPECT_EQ(form.IncrementCounter.Number(), 17);
}

TEST_F(IncrementCounterTest, EmptyTextTurnsToZero) {
    form.TextLoops.Text = "5";
    form.TextLoops.Text = "";
    EXPECT_EQ(form.TextLoops.Text(), "0");
    EXPECT_EQ(form.IncrementCounter.Number(), 0);
}

TEST_F(IncrementCounterTest, NegativeNumberTurnsToZero) {
    for (const char* typed : {"-3", "-0.5", " - 7", "-3abc"}) {
        form.TextLoops.Text = "5";
        form.TextLoops.Text = typed;
        EXPECT_EQ(form.TextLoops.Text(), "0") << typed;
        EXPECT_EQ(form.IncrementCounter.Number(), 0) << typed;
    }
}

TEST_F(IncrementCounterTest, OtherTextStaysAsTypedWithItsLeadingNumber) {
    form.TextLoops.Text = "abc";
    EXPECT_EQ(form.TextLoops.Text(), "abc");
    EXPECT_EQ(form.IncrementCounter.Number(), 0);
    form.TextLoops.Text = "12abc";
    EXPECT_EQ(form.TextLoops.Text(), "12abc");
    EXPECT_EQ(form.IncrementCounter.Number(), 12);
}

TEST_F(IncrementCounterTest, NumberBeyondAllRangeLeavesTheCounter) {
    form.TextLoops.Text = "5";
    form.TextLoops.Text = "1e999";
    EXPECT_EQ(form.TextLoops.Text(), "1e999");
    EXPECT_EQ(form.IncrementCounter.Number(), 5);
}

TEST_F(IncrementCounterTest, TypingANumberLeavesTheName) {
    form.textProfileName.Text = "Art_3";
    form.TextLoops.Text = "9";
    EXPECT_EQ(form.textProfileName.Text(), "Art_3");
}

TEST_F(IncrementCounterTest, EmptyNameTakesTheWaitingPrefixAndTheNumber) {
    form.textProfileName.Text = "";
    form.MaterialPrefix = "Oak_";
    form.TextLoops.Text = " 9 ";
    EXPECT_EQ(form.textProfileName.Text(), "Oak_9");
    EXPECT_EQ(form.MaterialPrefix, "");
}

TEST_F(IncrementCounterTest, EmptyNameWithoutAPrefixTakesTheNumberAlone) {
    form.textProfileName.Text = "";
    form.ckIncrement.Value = kUnchecked;
    form.TextLoops.Text = "4";
    EXPECT_EQ(form.textProfileName.Text(), "4");
}

TEST_F(IncrementCounterTest, GivenNameLeavesThePrefixWaiting) {
    form.textProfileName.Text = "Brick";
    form.MaterialPrefix = "Oak_";
    form.TextLoops.Text = "9";
    EXPECT_EQ(form.MaterialPrefix, "Oak_");
}

// The spinner.

TEST_F(IncrementCounterTest, UpRaisesTheNumberAndRenames) {
    form.textProfileName.Text = "Art_12";
    form.TextLoops.Text = "12";
    form.UpDown4.UserUp();
    EXPECT_EQ(form.TextLoops.Text(), "13");
    EXPECT_EQ(form.IncrementCounter.Number(), 13);
    EXPECT_EQ(form.textProfileName.Text(), "Art_13");
}

TEST_F(IncrementCounterTest, DownLowersTheNumberAndRenames) {
    form.textProfileName.Text = "Art_12";
    form.TextLoops.Text = "12";
    form.UpDown4.UserDown();
    EXPECT_EQ(form.TextLoops.Text(), "11");
    EXPECT_EQ(form.textProfileName.Text(), "Art_11");
}

TEST_F(IncrementCounterTest, DownAtZeroStaysThereAndRenamesAllTheSame) {
    form.textProfileName.Text = "Art_12";
    form.TextLoops.Text = "1";
    form.UpDown4.UserDown();
    form.textProfileName.Text = "Metal_4";
    form.UpDown4.UserDown();
    EXPECT_EQ(form.TextLoops.Text(), "0");
    EXPECT_EQ(form.textProfileName.Text(), "Metal_0");
}

TEST_F(IncrementCounterTest, DownAtZeroRenamesWithTheCounterThatTheBoxDoesNotShow) {
    form.textProfileName.Text = "Art_12";
    form.IncrementCounter = Integer(8);
    form.UpDown4.UserDown();
    EXPECT_EQ(form.TextLoops.Text(), "8");
    EXPECT_EQ(form.textProfileName.Text(), "Art_8");
}

TEST_F(IncrementCounterTest, DownBeforeAnyCountRenamesWithZero) {
    form.textProfileName.Text = "Art_12";
    form.UpDown4.UserDown();
    EXPECT_EQ(form.TextLoops.Text(), "0");
    EXPECT_EQ(form.textProfileName.Text(), "Art_0");
}

TEST_F(IncrementCounterTest, RenamingKeepsOneStemAndOneSuffix) {
    for (const auto& [before, after] :
         {std::pair{"My_brick_3", "My_5"}, {"Art_", "Art_5"}, {"Brick", "Brick_5"}, {"_x", "_5"}}) {
        form.TextLoops.Text = "4";
        form.textProfileName.Text = before;
        form.UpDown4.UserUp();
        EXPECT_EQ(form.textProfileName.Text(), after) << before;
    }
}

TEST_F(IncrementCounterTest, EmptyNameIsTheNumberBeforeItIsRenamed) {
    form.TextLoops.Text = "4";
    form.textProfileName.Text = "";
    form.UpDown4.UserUp();
    EXPECT_EQ(form.textProfileName.Text(), "5_5");
}

TEST_F(IncrementCounterTest, StepOverATextThatIsNoNumberLeavesIt) {
    form.textProfileName.Text = "Art_3";
    form.TextLoops.Text = "7b";
    form.UpDown4.UserUp();
    // The counter, which took the leading number, shows itself in the renaming.
    EXPECT_EQ(form.TextLoops.Text(), "7");
    EXPECT_EQ(form.textProfileName.Text(), "Art_7");
}

TEST_F(IncrementCounterTest, StepsOverFractionsAndLeadingZeros) {
    form.textProfileName.Text = "Art";
    for (const auto& [before, after] : {std::pair{"0012", "13"}, {"2.5", "3.5"}, {"1,000", "1001"}}) {
        form.TextLoops.Text = before;
        form.UpDown4.UserUp();
        EXPECT_EQ(form.TextLoops.Text(), after);
    }
    form.TextLoops.Text = "0.5";
    form.UpDown4.UserDown();
    EXPECT_EQ(form.TextLoops.Text(), "0");
}

TEST_F(IncrementCounterTest, StepsBeyondSixteenBits) {
    form.textProfileName.Text = "Art";
    form.TextLoops.Text = "32767";
    form.UpDown4.UserUp();
    EXPECT_EQ(form.textProfileName.Text(), "Art_32768");
}

TEST_F(IncrementCounterTest, SpinnerRunByCodeWhileNamesAreNotIncrementedCountsWithoutRenaming) {
    form.ckIncrement.Value = kUnchecked;
    form.textProfileName.Text = "Art_3";
    form.TextLoops.Text = "4";
    form.UpDown4.UpClick();
    EXPECT_EQ(form.TextLoops.Text(), "5");
    EXPECT_EQ(form.IncrementCounter.Number(), 5);
    form.UpDown4.DownClick();
    EXPECT_EQ(form.TextLoops.Text(), "4");
    EXPECT_EQ(form.textProfileName.Text(), "Art_3");
}

TEST_F(IncrementCounterTest, ResetCountsFromZero) {
    form.textProfileName.Text = "Art_12";
    form.TextLoops.Text = "12";
    form.cmdResetfCnt.UserClick();
    EXPECT_EQ(form.TextLoops.Text(), "0");
    EXPECT_EQ(form.IncrementCounter.Number(), 0);
    EXPECT_EQ(form.textProfileName.Text(), "Art_12");
}

TEST_F(IncrementCounterTest, ResetClearsACounterThatTheBoxDoesNotShow) {
    form.IncrementCounter = Integer(8);
    form.cmdResetfCnt.UserClick();
    EXPECT_EQ(form.IncrementCounter.Number(), 0);
}

// The switch.

TEST_F(IncrementCounterTest, SwitchingOffDimsTheCounterAndBarsTheScan) {
    form.ckGetCount.Value = kChecked;
    form.ckIncrement.UserClick();
    EXPECT_EQ(form.TextLoops.BackColor(), 0x404040);
    EXPECT_EQ(form.TextLoops.ForeColor(), 0xFFFFFF);
    EXPECT_FALSE(form.UpDown4.Enabled());
    EXPECT_FALSE(form.TextLoops.Enabled());
    EXPECT_FALSE(form.cmdResetfCnt.Enabled());
    EXPECT_FALSE(form.ckGetCount.Enabled());
    EXPECT_EQ(form.ckGetCount.Value(), kUnchecked);
    EXPECT_EQ(form.ckGetCount.BackColor(), 0x808080);
}

TEST_F(IncrementCounterTest, SwitchingOnLightsTheCounterAndOffersTheScan) {
    form.ckIncrement.UserClick();
    form.ckIncrement.UserClick();
    EXPECT_EQ(form.TextLoops.BackColor(), 0xFF8080);
    EXPECT_EQ(form.TextLoops.ForeColor(), 0);
    EXPECT_TRUE(form.UpDown4.Enabled());
    EXPECT_TRUE(form.TextLoops.Enabled());
    EXPECT_TRUE(form.cmdResetfCnt.Enabled());
    EXPECT_TRUE(form.ckGetCount.Enabled());
    EXPECT_EQ(form.ckGetCount.Value(), kUnchecked);
    EXPECT_EQ(form.ckGetCount.BackColor(), 0x00FF00);
}

TEST_F(IncrementCounterTest, SpinnerIsDeadWhileNamesAreNotIncremented) {
    form.ckIncrement.UserClick();
    form.UpDown4.UserUp();
    EXPECT_EQ(form.TextLoops.Text(), "0");
}

// The scan.

TEST_F(IncrementCounterTest, SwitchingTheScanOnShowsTheHighestNumber) {
    program.AddFiles(kArt, {"Art_3.jpg", "Art_12.jpg"});
    form.Dir5.SetPath(kArt);
    form.Label8(46).Caption = "";
    form.ckGetCount.UserClick();
    EXPECT_EQ(form.TextLoops.Text(), "12");
    EXPECT_EQ(form.Label8(46).Caption(), "2 Files");
}

TEST_F(IncrementCounterTest, ScanAddsToTheNumbersThatAreThere) {
    program.AddFiles(kArt, {"Art_3.jpg", "Art_12.jpg"});
    form.Dir5.SetPath(kArt);
    form.ListHigh.AddItem("40");
    form.ckGetCount.UserClick();
    EXPECT_THAT(form.ListHigh.Rows(), ElementsAre("12", "3", "40", "12", "3"));
    EXPECT_EQ(form.TextLoops.Text(), "40");
}

TEST_F(IncrementCounterTest, ScanOfAnEmptyFolderLeavesCountAndBox) {
    form.Dir5.SetPath(kArt);
    form.Label8(46).Caption = "as it was";
    form.TextLoops.Text = "6";
    form.ckGetCount.UserClick();
    EXPECT_EQ(form.Label8(46).Caption(), "as it was");
    EXPECT_EQ(form.TextLoops.Text(), "6");
}

TEST_F(IncrementCounterTest, SwitchingTheScanOffReadsNothing) {
    program.AddFiles(kArt, {"Art_3.jpg"});
    form.Dir5.SetPath(kArt);
    form.ckGetCount.UserClick();
    form.TextLoops.Text = "1";
    form.ListHigh.Clear();
    form.ckGetCount.UserClick();
    EXPECT_EQ(form.TextLoops.Text(), "1");
    EXPECT_THAT(form.ListHigh.Rows(), IsEmpty());
}

TEST_F(IncrementCounterTest, LargeNumberInTheFolderHidesSmallerOnesBehindIt) {
    program.AddFiles(kMetal, {"Metal_25000.jpg", "Metal_7.jpg"});
    form.Dir5.SetPath(kMetal);
    form.TextLoops.Text = "2";
    form.ckGetCount.UserClick();
    EXPECT_EQ(form.TextLoops.Text(), "2");
}

TEST_F(IncrementCounterTest, ButtonOfTheNumberListHasNoAction) {
    program.AddFiles(kArt, {"Art_3.jpg"});
    form.Dir5.SetPath(kArt);
    form.cmdListHigh.UserClick();
    EXPECT_THAT(form.ListHigh.Rows(), ElementsAre("3"));
    EXPECT_EQ(form.TextLoops.Text(), "0");
}

} // namespace
} // namespace mirelle::test
