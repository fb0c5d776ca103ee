// The library panel under the user's hands: keys in the file list, paths that are too long, folders that come
// and go on a real disk.
#include "desktop/binding/RowsView.h"
#include "desktop/canvas/SamplingCanvas.h"
#include "desktop/files/NativeFileSystem.h"
#include "desktop/look/ElidedLabel.h"
#include "tests/desktop/Pixels.h"
#include "tests/desktop/window/OpenedWindow.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <QTest>

namespace mirelle::test {
namespace {

using testing::ElementsAre;

const std::string kMaterials = "C:\\Mirelle\\Support\\Materials";

class LibraryKeysTest : public testing::Test {
protected:
    LibraryKeysTest() {
        for (const char* name : {"Brick_1.jpg", "Brick_2.jpg", "Oak_1.jpg", "Wall_1.jpg", "Wood_1.jpg"}) {
            const std::string path = kMaterials + "\\Art\\" + name;
            opened.program.files.AddFile(path);
            opened.program.loader.pictures[path] = ChartPicture(300, 200, ++mark);
        }
        form.cmdMatDirs(0).UserClick();
        form.File5.SetListIndex(0);
        opened.Settle();
        form.File5.Click.Connect([this] { clicked.push_back(form.File5.FileName()); });
        list.setFocus();
    }
    void Press(Qt::Key key) {
        QTest::keyClick(&list, key);
        opened.Settle();
    }

    OpenedWindow opened;
    FrmPicX& form = opened.form;
    RowsView& list = *opened.window->findChild<RowsView*>("File5");
    std::vector<std::string> clicked;
    std::uint8_t mark = 0;
};

TEST_F(LibraryKeysTest, ArrowsMoveTheRowAndOpenItsFile) {
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Press(Qt::Key_Up);
    Press(Qt::Key_End);
    Press(Qt::Key_Home);
    EXPECT_THAT(clicked, ElementsAre("Brick_2.jpg", "Oak_1.jpg", "Brick_2.jpg", "Wood_1.jpg", "Brick_1.jpg"));
    EXPECT_EQ(form.textProfileName.Text(), "Brick_1");
    Press(Qt::Key_Down);
    EXPECT_EQ(Differing(Painted(opened.window->Canvas()), {0, 0}, ChartPicture(300, 200, 2).Pixels()), 0);
}

TEST_F(LibraryKeysTest, ALetterJumpsToTheNextNameThatBeginsWithIt) {
    Press(Qt::Key_O);
    EXPECT_THAT(clicked, ElementsAre("Oak_1.jpg"));
    EXPECT_EQ(form.textProfileName.Text(), "Oak_1");
    EXPECT_EQ(list.currentIndex().row(), 2);
}

TEST_F(LibraryKeysTest, LettersTypedTogetherJumpToTheNameThatTheyBegin) {
    QTest::keyClicks(&list, "wo");
    opened.Settle();
    EXPECT_EQ(form.File5.FileName(), "Wood_1.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "Wood_1");
}

TEST_F(LibraryKeysTest, ALetterThatNoNameBeginsWithOpensNothing) {
    Press(Qt::Key_Q);
    EXPECT_TRUE(clicked.empty());
    EXPECT_EQ(form.File5.FileName(), "Brick_1.jpg");
}

TEST(LibraryPaths, ThatAreTooLongAreCutInTheMiddleAndToldWholeByTheTip) {
    OpenedWindow opened;
    auto* path = opened.window->findChild<look::ElidedLabel*>("lblPubPath");
    const std::string folder = kMaterials + "\\" + std::string(150, 'm');
    opened.program.files.AddFile(folder + "\\end.jpg");
    opened.form.Dir5.SetPath(folder);
    opened.form.File5.SetListIndex(0);
    opened.Settle();
    const QString whole = QString::fromStdString(folder + "\\end.jpg");
    EXPECT_EQ(path->Text(), whole);
    const QString shown = path->ShownText();
    EXPECT_LT(shown.size(), whole.size());
    EXPECT_TRUE(shown.startsWith("C:\\"));
    EXPECT_TRUE(shown.endsWith(".jpg"));
    EXPECT_TRUE(path->Tip().startsWith(whole + '\n')) << path->Tip().toStdString();
}

TEST(LibraryPaths, ShortOnesShowWholeAndTheTipIsTheLabelsOwn) {
    OpenedWindow opened({1600, 900});
    auto* path = opened.window->findChild<look::ElidedLabel*>("lblPubPath");
    opened.form.lblPubPath.Caption = "C:\\a.jpg";
    opened.Settle();
    EXPECT_EQ(path->ShownText(), "C:\\a.jpg");
    EXPECT_EQ(path->Tip(), "Current path and file name; double-click to copy path to clipboard");
}

// The window over a library on a real disk.
class FoldersOnDiskTest : public testing::Test {
protected:
    FoldersOnDiskTest() {
        folder.MakeFolder("Support/Materials/Art");
        folder.MakeFolder("Support/Materials/Metal");
        form.Load();
        window.Start();
        QCoreApplication::processEvents();
    }
    std::string Place(const std::string& name) const { return folder / ("Support/Materials/" + name); }
    std::vector<std::string> Shown() const {
        const auto* list = window.findChild<RowsView*>("Dir5");
        std::vector<std::string> names;
        for (int row = 0; row < list->model()->rowCount(); ++row)
            names.push_back(list->model()->index(row, 0).data().toString().toStdString());
        return names;
    }
    bool Shows(const std::string& name) const { return testing::Value(Shown(), testing::Contains(name)); }

    TemporaryFolder folder;
    NativeFileSystem files{folder.Path(), folder / "komp.txt"};
    ScriptedLoader loader;
    ScriptedEncoders encoders;
    ScriptedDesktop desktop;
    Sampler sampler{desktop.PortsOver(files, loader, encoders)};
    FrmPicX& form = sampler.form;
    MainWindow window{form};
};

TEST_F(FoldersOnDiskTest, AFolderThatAppearsComesIntoTheList) {
    EXPECT_FALSE(Shows("Concrete"));
    folder.MakeFolder("Support/Materials/Concrete");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Shows("Concrete"); }));
}

TEST_F(FoldersOnDiskTest, AFolderThatGoesLeavesTheListAndTheRowStaysWithItsFolder) {
    form.Dir5.SetListIndex(1);
    QCoreApplication::processEvents();
    int clicks = 0;
    form.Dir5.Click.Connect([&] { ++clicks; });
    std::filesystem::remove(Place("Art"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Shows("Art"); }));
    EXPECT_EQ(form.Dir5.List(form.Dir5.ListIndex()), Place("Metal"));
    EXPECT_EQ(clicks, 0);
}

TEST_F(FoldersOnDiskTest, TheFolderShownMayGoAndTheProgramStaysWhereItIs) {
    form.cmdMatDirs(0).UserClick();
    QCoreApplication::processEvents();
    folder.MakeFolder("Support/Materials/Art/Deep");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Shows("Deep"); }));
    std::filesystem::remove_all(Place("Art"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Shows("Deep"); }));
    form.cmdRefreshFile.UserClick();
    EXPECT_EQ(form.File5.ListCount(), 0);
    EXPECT_TRUE(desktop.dialogs.messages.empty());
    form.cmdBackDir.UserClick();
    EXPECT_EQ(form.Dir5.Path() + '/', Place(""));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Shows("Metal") && !Shows("Art"); }));
}

TEST_F(FoldersOnDiskTest, FoldersInAFolderThatIsShownLaterAreFollowedToo) {
    form.cmdMatDirs(3).UserClick();
    QCoreApplication::processEvents();
    folder.MakeFolder("Support/Materials/Metal/Rust");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Shows("Rust"); }));
}

} // namespace
} // namespace mirelle::test
