// Lists of rows, files and folders.
#include "desktop/binding/Binder.h"
#include "desktop/binding/FolderModel.h"
#include "desktop/binding/RowsView.h"
#include "tests/support/TestProgram.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QSignalSpy>
#include <QTest>

namespace mirelle::test {
namespace {

using testing::ElementsAre;

void Settle() {
    QCoreApplication::processEvents();
}

struct ListsTest : testing::Test {
    ListsTest() {
        for (const char* name : {"a.jpg", "b.jpg", "c.jpg"})
            program.files.AddFile(std::string("C:\\Pictures\\") + name);
        program.files.AddFolder("C:\\Pictures\\One");
        program.files.AddFolder("C:\\Pictures\\Two");
        window.resize(200, 300);
        view = new RowsView(&window);
        view->resize(200, 300);
        window.show();
    }

    void ClickRow(int row, Qt::KeyboardModifiers held = {}) {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, held,
                          view->visualRect(view->model()->index(row, 0)).center());
    }

    TestProgram program;
    FrmPicX& form = program.form;
    Binder binder{form};
    QWidget window;
    RowsView* view;
};

TEST_F(ListsTest, AClickOnAFileChoosesItAlsoASecondTime) {
    form.File5.SetPath("C:\\Pictures");
    binder.Files(form.File5, *view);
    std::vector<std::string> clicked;
    form.File5.Click.Connect([&] { clicked.push_back(form.File5.FileName()); });
    ClickRow(1);
    ClickRow(1);
    EXPECT_THAT(clicked, ElementsAre("b.jpg", "b.jpg"));
}

TEST_F(ListsTest, TheKeyboardChoosesTheRowThatItMovesTo) {
    form.File5.SetPath("C:\\Pictures");
    binder.Files(form.File5, *view);
    form.File5.SetListIndex(0);
    Settle();
    std::vector<std::string> clicked;
    form.File5.Click.Connect([&] { clicked.push_back(form.File5.FileName()); });
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Down);
    EXPECT_THAT(clicked, ElementsAre("b.jpg", "c.jpg")) << "at the end nothing is chosen anew";
}

TEST_F(ListsTest, ARowThatTheProgramSelectsShowsWithoutAClickOfItsOwn) {
    form.File5.SetPath("C:\\Pictures");
    binder.Files(form.File5, *view);
    int clicks = 0;
    form.File5.Click.Connect([&] { ++clicks; });
    form.File5.Selected(2) = true;
    Settle();
    EXPECT_EQ(view->currentIndex().row(), 2);
    EXPECT_EQ(clicks, 1);
    form.File5.Selected(2) = false;
    Settle();
    EXPECT_FALSE(view->currentIndex().isValid());
}

TEST_F(ListsTest, TheTipOfARowThatIsCutBeginsWithItsWholeText) {
    const std::string path = "C:\\Pictures\\" + std::string(80, 'm') + "\\a.jpg";
    form.List2.AddItem(path);
    form.List2.AddItem("C:\\b.jpg");
    binder.List(form.List2, *view);
    const auto tipOf = [&](int row) {
        return view->TipAt(view->visualRect(view->model()->index(row, 0)).center()).toStdString();
    };
    EXPECT_EQ(tipOf(0), path + "\nSuperBatch List: Double-click item to remove it from list");
    EXPECT_EQ(tipOf(1), "");
    EXPECT_EQ(view->textElideMode(), Qt::ElideMiddle);
    EXPECT_EQ(view->TipAt({100, 290}).toStdString(), "") << "no row is there";
}

TEST_F(ListsTest, AHundredThousandNamesAreReadWhereTheyStand) {
    for (int file = 0; file < 100'000; ++file)
        program.files.AddFile("C:\\Many\\" + std::to_string(file) + ".jpg");
    binder.Files(form.File5, *view);
    form.File5.SetPath("C:\\Many");
    EXPECT_NO_FATAL_FAILURE(view->model()->index(0, 0).data()) << "the list has changed, the view not yet";
    Settle();
    EXPECT_EQ(view->model()->rowCount(), 100'000);
    EXPECT_EQ(view->model()->index(99'999, 0).data().toString(), "99999.jpg");
}

TEST_F(ListsTest, RowsThatAreGoneReadAsEmptyUntilTheListShowsAnew) {
    form.File5.SetPath("C:\\Pictures");
    binder.Files(form.File5, *view);
    form.File5.SetPattern("*.bmp");
    EXPECT_EQ(view->model()->index(2, 0).data().toString(), "");
    Settle();
    EXPECT_EQ(view->model()->rowCount(), 0);
}

TEST_F(ListsTest, RowsAreReadAgainWhereTheyChangedAndOnlyThere) {
    for (const char* row : {"C:\\a.jpg", "C:\\b.jpg"})
        form.List2.AddItem(row);
    binder.List(form.List2, *view);
    const QSignalSpy readings(view->model(), &QAbstractItemModel::modelReset);
    form.List2.SetListIndex(1);
    Settle();
    EXPECT_EQ(readings.count(), 0) << "another row is the current one, and that is all";
    form.List2.SetList(0, "C:\\c.jpg");
    Settle();
    EXPECT_EQ(readings.count(), 1);
    EXPECT_EQ(view->model()->index(0, 0).data().toString(), "C:\\c.jpg");
    EXPECT_EQ(view->currentIndex().row(), 1);
}

TEST_F(ListsTest, AClickWithCtrlLeavesTheCurrentRowSelected) {
    form.File5.SetPath("C:\\Pictures");
    binder.Files(form.File5, *view);
    form.File5.SetListIndex(1);
    Settle();
    ClickRow(1, Qt::ControlModifier);
    Settle();
    EXPECT_EQ(form.File5.ListIndex(), 1);
    EXPECT_TRUE(view->selectionModel()->isSelected(view->model()->index(1, 0)));
}

TEST_F(ListsTest, AListBoxChoosesAndRemovesByDoubleClick) {
    form.List2.AddItem("C:\\Pictures\\a.jpg");
    form.List2.AddItem("C:\\Pictures\\b.jpg");
    binder.List(form.List2, *view);
    ClickRow(1);
    EXPECT_EQ(form.List2.ListIndex(), 1);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {},
                       view->visualRect(view->model()->index(1, 0)).center());
    EXPECT_EQ(form.List2.ListCount(), 1);
    Settle();
    EXPECT_EQ(view->model()->rowCount(), 1);
}

TEST_F(ListsTest, FoldersShowTheWayDownAndWhatIsInside) {
    form.Dir5.SetPath("C:\\Pictures");
    binder.Folders(form.Dir5, *view);
    std::vector<std::string> rows;
    for (int row = 0; row < view->model()->rowCount(); ++row)
        rows.push_back(view->model()->index(row, 0).data().toString().toStdString());
    EXPECT_THAT(rows, ElementsAre("C:\\", "Pictures", "One", "Two"));
    EXPECT_EQ(view->currentIndex().row(), 1) << "the present folder";
}

TEST_F(ListsTest, AClickOnAFolderSelectsItAndADoubleClickGoesThere) {
    form.Dir5.SetPath("C:\\Pictures");
    binder.Folders(form.Dir5, *view);
    int clicks = 0;
    form.Dir5.Click.Connect([&] { ++clicks; });
    ClickRow(3);
    EXPECT_EQ(form.Dir5.ListIndex(), 1);
    EXPECT_EQ(form.Dir5.Path(), "C:\\Pictures");
    EXPECT_EQ(clicks, 1);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {},
                       view->visualRect(view->model()->index(3, 0)).center());
    EXPECT_EQ(form.Dir5.Path(), "C:\\Pictures\\Two");
    Settle();
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {},
                       view->visualRect(view->model()->index(0, 0)).center());
    EXPECT_EQ(form.Dir5.Path(), "C:\\") << "the way up too";
}

TEST_F(ListsTest, ReturnGoesIntoTheFolder) {
    form.Dir5.SetPath("C:\\Pictures");
    binder.Folders(form.Dir5, *view);
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(form.Dir5.Path(), "C:\\Pictures\\One");
}

// A mounted folder may bear a name that is no text in the widget's eyes.
class MountedFileSystem : public MemoryFileSystem {
public:
    std::vector<std::string> Drives() const override { return {"/", "/media/st\xFFick"}; }
};

TEST(DriveList, ChoosesTheDriveByItsNameAsItStandsOnTheDisk) {
    MountedFileSystem files;
    ScriptedLoader loader;
    ScriptedEncoders encoders;
    ScriptedDesktop desktop;
    Sampler sampler(desktop.PortsOver(files, loader, encoders));
    Binder binder(sampler.form);
    QComboBox box;
    binder.Drives(sampler.form.Drive5, box);
    ASSERT_EQ(box.count(), 2);
    emit box.activated(1);
    EXPECT_EQ(sampler.form.Drive5.Drive(), "/media/st\xFFick");
}

TEST(FolderPaths, AreToldFromTheRootDown) {
    EXPECT_THAT(PathsDownTo("/home/me/Art", '/'), ElementsAre("/", "/home", "/home/me", "/home/me/Art"));
    EXPECT_THAT(PathsDownTo("/", '/'), ElementsAre("/"));
    EXPECT_THAT(PathsDownTo("C:\\A", '\\'), ElementsAre("C:\\", "C:\\A"));
    EXPECT_EQ(FolderName("/home/me", '/'), "me");
    EXPECT_EQ(FolderName("/", '/'), "/");
}

} // namespace
} // namespace mirelle::test
