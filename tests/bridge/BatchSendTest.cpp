#include "tests/bridge/SentTexts.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class BatchSendTest : public ::testing::Test {
protected:
    using Texts = std::vector<std::string>;

    Texts Sent() { return TakeSent(program.desktop.console); }
    // The call that carries the material's lines.
    static std::string Material(const std::string& name, const std::string& path) {
        return "SendKeys material = materials.add \"" + name + "\"\rmaterial.texture = \"" + path + "\"\r";
    }
    std::string OnlyMessage() {
        return program.desktop.dialogs.messages.size() == 1 ? program.desktop.dialogs.messages[0].text : "";
    }

    TestProgram program;
    FrmPicX& form = program.form;
    const std::string activate = "AppActivate Ruby Console";
    const std::string shell = "CreateObject WScript.Shell";
    const std::string preamble = "SendKeys " + kPreambleText;
};

TEST_F(BatchSendTest, EveryFileOfTheListGoesWithAPauseBehindIt) {
    program.files.AddFile("C:\\Mat\\a.jpg");
    program.files.AddFile("C:\\Mat\\b.jpg.jpg");
    form.File5.SetPath("C:\\Mat");
    int clicks = 0;
    form.File5.Click.Connect([&] {
        ++clicks;
        form.CurrentImagePath = "C:\\Mat\\" + form.File5.FileName();
    });
    form.Command10.UserClick();
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(Sent(), (Texts{activate, shell, preamble, Material("a", "C:\\\\Mat\\\\a.jpg"), "Pause 1", shell,
                             preamble, Material("b", "C:\\\\Mat\\\\b.jpg.jpg"), "Pause 1"}));
    EXPECT_EQ(form.textProfileName.Text(), "b");
    EXPECT_EQ(form.Label8(1).Caption(), "Sent: 0");
}

TEST_F(BatchSendTest, TheBatchSizesEachFileAheadOfItsPause) {
    program.files.AddFile("C:\\Mat\\a.jpg");
    form.File5.SetPath("C:\\Mat");
    form.ckSize.Value = kChecked;
    form.Command10.UserClick();
    const Texts sent = Sent();
    ASSERT_EQ(sent.size(), 6U);
    EXPECT_EQ(sent[4], "SendKeys material.texture.size=5\r");
    EXPECT_EQ(sent[5], "Pause 1");
}

TEST_F(BatchSendTest, AnEmptyListIsToldAndNothingIsTouched) {
    for (CommandButton* button : {&form.Command10, &form.Command13}) {
        program.desktop.dialogs.messages.clear();
        button->Click();
        EXPECT_EQ(OnlyMessage(), "Select image directory before sending materials to SketchUp");
        EXPECT_TRUE(Sent().empty());
    }
}

TEST_F(BatchSendTest, WithoutAConsoleTheMessageComesOnce) {
    program.desktop.console.present = false;
    program.files.AddFile("C:\\Mat\\a.jpg");
    program.files.AddFile("C:\\Mat\\b.jpg");
    form.File5.SetPath("C:\\Mat");
    form.List2.AddItem("C:\\Mat\\a.jpg");
    form.List2.AddItem("C:\\Mat\\b.jpg");
    for (CommandButton* button : {&form.Command10, &form.Command13}) {
        program.desktop.dialogs.messages.clear();
        button->Click();
        EXPECT_EQ(OnlyMessage(), "Make sure the Ruby Console is visible");
        EXPECT_EQ(Sent(), Texts{"AppActivate Ruby Console failed"});
    }
}

TEST_F(BatchSendTest, EveryRowOfTheSuperBatchGoesWithAPauseAheadOfItsSize) {
    form.ckSize.Value = kChecked;
    form.List2.AddItem("C:\\Mat\\a.jpg");
    form.List2.AddItem(" D:\\b.tif ");
    form.CurrentImagePath = "C:\\elsewhere.jpg";
    form.Command13.Click();
    const std::string size = "SendKeys material.texture.size=5\r";
    EXPECT_EQ(Sent(), (Texts{activate, shell, preamble, Material("a", "C:\\\\Mat\\\\a.jpg"), "Pause 1.25",
                             size, shell, preamble, Material("b", "D:\\\\b.tif"), "Pause 1.25", size}));
    EXPECT_EQ(form.Label8(1).Caption(), "Sent: 2");
    form.Command13.Click();
    EXPECT_EQ(form.Label8(1).Caption(), "Sent: 2");
}

TEST_F(BatchSendTest, SuperBatchPausesWithSizingOffToo) {
    form.List2.AddItem("C:\\a.jpg");
    form.Command13.Click();
    EXPECT_EQ(Sent(), (Texts{activate, shell, preamble, Material("a", "C:\\\\a.jpg"), "Pause 1.25"}));
}

TEST_F(BatchSendTest, SuperBatchCutsFourCharactersWhateverTheExtension) {
    form.List2.AddItem("C:\\Mat\\a.jpeg");
    form.List2.AddItem("C:\\Mat\\grün.webp");
    form.Command13.Click();
    const Texts sent = Sent();
    EXPECT_EQ(sent.at(3), Material("a.", "C:\\\\Mat\\\\a.jpeg"));
    EXPECT_EQ(sent.at(7), Material("grün.", "C:\\\\Mat\\\\grün.webp"));
}

TEST_F(BatchSendTest, ARowThatHoldsItsLastPartTwiceLosesTheFirst) {
    form.List2.AddItem("C:\\a.jpg\\a.jpg");
    form.Command13.Click();
    EXPECT_EQ(Sent().at(3), Material("a", "C:\\\\\\\\a.jpg"));
}

// Cutting four characters off three is error 5 as well, and so is told as a missing console is.
TEST_F(BatchSendTest, ANameTooShortToCutEndsTheRunThereWithTheMessageOfAMissingConsole) {
    form.List2.AddItem("C:\\ok.jpg");
    form.List2.AddItem("C:\\abc");
    form.List2.AddItem("C:\\never.jpg");
    form.Command13.Click();
    EXPECT_EQ(Sent(), (Texts{activate, shell, preamble, Material("ok", "C:\\\\ok.jpg"), "Pause 1.25"}));
    EXPECT_EQ(form.Label8(1).Caption(), "Sent: 1");
    EXPECT_EQ(OnlyMessage(), "Make sure the Ruby Console is visible");
}

TEST_F(BatchSendTest, ANameOfFourCharactersIsCutToNothingAndSent) {
    form.List2.AddItem("C:\\.jpg");
    form.Command13.Click();
    EXPECT_EQ(Sent().at(3), Material("", "C:\\\\.jpg"));
    EXPECT_EQ(form.Label8(1).Caption(), "Sent: 1");
}

TEST_F(BatchSendTest, ANetworkRowKeepsItsTwoLeadingBackslashes) {
    form.List2.AddItem("\\\\server\\share (old)\\wall + 50%.jpg");
    form.Command13.Click();
    EXPECT_EQ(Sent().at(3), Material("wall + 50%", "\\\\\\\\server\\\\share (old)\\\\wall + 50%.jpg"));
}

TEST_F(BatchSendTest, TheFiltersTextDecidesTheStemWithRegardToCase) {
    program.files.AddFile("C:\\Mat\\a.jpgb.jpg");
    program.files.AddFile("C:\\Mat\\UP.JPG");
    form.File5.SetPath("C:\\Mat");
    form.Command10.UserClick();
    const Texts sent = Sent();
    EXPECT_EQ(sent.at(3).substr(0, 40), Material("ab", "").substr(0, 40));
    EXPECT_EQ(form.textProfileName.Text(), "UP.JPG");
}

TEST_F(BatchSendTest, TheStemLosesTheFiltersTextWithoutItsStarsAndBlanks) {
    const struct {
        const char* filter;
        const char* file;
        const char* stem;
    } rows[] = {{"*.bmp", "a.bmp", "a"}, {"*.jp*", "a.jpg", "ag"}, {" *.jpg ", "a.jpg", "a"}};
    for (const auto& row : rows) {
        program.files.AddFile(std::string("C:\\Mat\\") + row.file);
        form.File5.SetPath("C:\\Mat");
        form.File5.SetPattern(row.filter);
        form.Combo5.Text = row.filter;
        form.Command10.UserClick();
        const Texts sent = Sent();
        ASSERT_EQ(sent.size(), 5U) << row.filter;
        EXPECT_EQ(sent[3], Material(row.stem, std::string("C:\\\\Mat\\\\") + row.file)) << row.filter;
    }
}

TEST_F(BatchSendTest, ANameKeepsNoBlankAheadOfItsExtension) {
    form.List2.AddItem("C:\\Mat\\a .jpg");
    form.Command13.UserClick();
    EXPECT_EQ(form.textProfileName.Text(), "a");
}

TEST_F(BatchSendTest, ALineThatCannotBeTypedEndsTheRunAndWhatWasTypedStays) {
    program.desktop.console.refusedKeys = "materials.add";
    form.List2.AddItem("C:\\Mat\\a.jpg");
    form.List2.AddItem("C:\\Mat\\b.jpg");
    form.Command13.UserClick();
    EXPECT_EQ(Sent(), (Texts{activate, shell, preamble}));
    EXPECT_EQ(OnlyMessage(), "Make sure the Ruby Console is visible");
}

TEST_F(BatchSendTest, EscapeShortensOnePauseAndTheNextFileGoesOut) {
    form.List2.AddItem("C:\\a.jpg");
    form.List2.AddItem("C:\\b.jpg");
    const double before = program.desktop.time.seconds;
    program.desktop.time.duringPause.push_back([&] { program.desktop.keyboard.escapePressed = true; });
    form.Command13.Click();
    EXPECT_EQ(Sent().size(), 9U);
    EXPECT_LT(program.desktop.time.seconds - before, 2.0);
    EXPECT_GT(program.desktop.time.seconds - before, 1.25);
}

TEST_F(BatchSendTest, ASecondClickInsideAPauseSendsNested) {
    form.List2.AddItem("C:\\a.jpg");
    program.desktop.time.duringPause.push_back([&] { form.Command1x.UserClick(); });
    form.Command13.Click();
    EXPECT_EQ(Sent(), (Texts{activate, shell, preamble, Material("a", "C:\\\\a.jpg"), "Pause 1.25", activate,
                             shell, "SendKeys " + kFaceText}));
}

TEST_F(BatchSendTest, ASuperBatchListClearedInAPauseEndsTheRunSilently) {
    form.List2.AddItem("C:\\a.jpg");
    form.List2.AddItem("C:\\b.jpg");
    program.desktop.time.duringPause.push_back([&] { form.Command15.UserClick(); });
    form.Command13.Click();
    EXPECT_EQ(Sent().back(), "Pause 1.25");
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

TEST_F(BatchSendTest, AListThatShrinksInAPauseEndsTheRunSilently) {
    program.files.AddFile("C:\\Mat\\a.jpg");
    program.files.AddFile("C:\\Mat\\b.jpg");
    form.File5.SetPath("C:\\Mat");
    program.desktop.time.duringPause.push_back([&] { form.File5.SetPattern("*.bmp"); });
    form.Command10.Click();
    EXPECT_EQ(Sent().back(), "Pause 1");
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

} // namespace
} // namespace mirelle::test
