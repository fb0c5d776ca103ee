#include "desktop/window/BatchNote.h"

#include "desktop/look/ProgressLine.h"
#include "tests/desktop/window/OpenedWindow.h"

#include <gmock/gmock.h>

namespace mirelle::test {
namespace {

using testing::ElementsAre;

class BatchNoteTest : public testing::Test {
protected:
    BatchNoteTest() {
        for (const char* file : {"a.jpg", "b.jpg", "c.jpg"})
            opened.program.files.AddFile(std::string("C:\\Mat\\") + file);
        form.File5.SetPath("C:\\Mat");
        form.List2.AddItem("C:\\Mat\\b.jpg");
        form.List2.AddItem("D:\\wall.tif");
    }

    // In each of the next pauses, what the window tells then; `more` runs in it too.
    void LookInPauses(
        int pauses, double seconds, const std::function<void()>& more = [] {}) {
        for (int i = 0; i < pauses; ++i) {
            opened.program.desktop.time.duringPause.push_back([this, seconds, more] {
                opened.window->ShowPause(seconds);
                told.push_back(note->Text().toStdString());
                shares.push_back(line->Share());
                more();
                opened.window->ShowPause(0);
            });
        }
    }

    OpenedWindow opened;
    FrmPicX& form = opened.form;
    BatchNote* note = opened.window->findChild<BatchNote*>();
    look::ProgressLine* line = opened.window->findChild<look::ProgressLine*>();
    std::vector<std::string> told;
    std::vector<double> shares;
};

TEST_F(BatchNoteTest, TellsWhichFileOfAFolderIsGoing) {
    LookInPauses(3, 1);
    form.Command10.UserClick();
    EXPECT_THAT(told, ElementsAre("Sent a.jpg, 1 of 3", "Sent b.jpg, 2 of 3", "Sent c.jpg, 3 of 3"));
    EXPECT_THAT(shares, ElementsAre(1 / 3.0, 2 / 3.0, 1.0));
    EXPECT_TRUE(note->Text().isEmpty());
    EXPECT_FALSE(line->IsShowing());
}

TEST_F(BatchNoteTest, TellsWhichRowOfTheSuperBatchListIsGoing) {
    for (int run = 0; run < 2; ++run) {
        told.clear();
        LookInPauses(2, 1.25);
        form.Command13.Click();
        EXPECT_THAT(told, ElementsAre("Sent b.jpg, 1 of 2", "Sent wall.tif, 2 of 2"));
        EXPECT_TRUE(note->Text().isEmpty());
    }
}

TEST_F(BatchNoteTest, GoesOnWithTheOuterBatchAfterOneInsideItsPause) {
    LookInPauses(1, 1, [this] { form.Command13.Click(); });
    LookInPauses(1, 1);
    opened.program.desktop.time.duringPause.insert(opened.program.desktop.time.duringPause.begin() + 1, 2,
                                                   [] {}); // the pauses inside
    form.Command10.UserClick();
    EXPECT_THAT(told, ElementsAre("Sent a.jpg, 1 of 3", "Sent b.jpg, 2 of 3"));
}

TEST_F(BatchNoteTest, ABatchThatFindsNoConsoleTellsNothing) {
    opened.program.desktop.console.present = false;
    form.Command10.UserClick();
    EXPECT_TRUE(note->Text().isEmpty());
}

TEST_F(BatchNoteTest, OtherPausesAreNoBatch) {
    opened.window->ShowPause(3);
    EXPECT_TRUE(note->Text().isEmpty());
    EXPECT_TRUE(line->IsBusy());
    opened.window->ShowPause(0);
    EXPECT_FALSE(line->IsShowing());
}

} // namespace
} // namespace mirelle::test
