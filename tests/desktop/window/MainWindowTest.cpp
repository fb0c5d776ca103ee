// What the form says of its window, and what the window tells the form.
#include "desktop/canvas/SamplingCanvas.h"
#include "desktop/look/ProgressLine.h"
#include "tests/desktop/Mouse.h"
#include "tests/desktop/Pixels.h"
#include "tests/desktop/window/OpenedWindow.h"

#include <gmock/gmock.h>

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>

namespace mirelle::test {
namespace {

TEST(MainWindow, TellsTheFormItsClientSizeInDevicePixels) {
    OpenedWindow opened({1100, 720});
    const QSize size = DeviceSize(opened.window->Canvas());
    EXPECT_EQ(opened.form.ClientWidth(), size.width());
    EXPECT_EQ(opened.form.ClientHeight(), size.height());
    EXPECT_EQ(size.width(), qRound(1100 * opened.window->devicePixelRatioF()));
}

TEST(MainWindow, StartsWithTheLibraryListedAndItsFirstFileOpen) {
    OpenedWindow opened;
    EXPECT_EQ(opened.form.File5.FileName(), "Art_3.jpg");
    EXPECT_EQ(Differing(Painted(opened.window->Canvas()), {0, 0}, Chart(400, 300)), 0);
}

TEST(MainWindow, PanelsAreOpaqueOverTheCanvas) {
    OpenedWindow opened;
    const QWidget* panel = opened.Find("Frame5");
    const QImage painted = opened.window->grab().toImage();
    const qreal scale = opened.window->devicePixelRatioF();
    const QPoint beside(panel->x() + 4, panel->geometry().center().y()); // no control is there
    const QPoint inPanel((QPointF(beside) * scale).toPoint());
    EXPECT_EQ(painted.pixelColor(inPanel), QColor(0x2b, 0x2b, 0x2b));
}

TEST(MainWindow, ShowsTheFormsCaption) {
    OpenedWindow opened;
    opened.form.Caption = "X: 1 Y: 2";
    opened.Settle();
    EXPECT_EQ(opened.window->windowTitle(), "X: 1 Y: 2");
}

TEST(MainWindow, FollowsTheWindowStateThatTheProgramSets) {
    OpenedWindow opened;
    opened.form.cmdFullScreen.UserClick();
    opened.Settle();
    EXPECT_TRUE(opened.window->isMaximized());
    EXPECT_EQ(opened.form.WindowState, kWindowMaximized);
    opened.form.cmdFullScreen.UserClick();
    opened.Settle();
    EXPECT_FALSE(opened.window->isMaximized());
    EXPECT_EQ(opened.form.WindowState, kWindowNormal);
}

TEST(MainWindow, TellsTheFormWhenTheUserMaximises) {
    OpenedWindow opened;
    int resized = 0;
    opened.form.Resize.Connect([&] { ++resized; });
    opened.window->showMaximized();
    opened.Settle();
    EXPECT_EQ(opened.form.WindowState, kWindowMaximized);
    EXPECT_GE(resized, 1);
}

TEST(MainWindow, HidesAndShowsPanelsWithTheirFrames) {
    OpenedWindow opened;
    opened.form.cmdHideFrame(1).UserClick();
    opened.Settle();
    for (const char* panel : {"Frame4", "Frame5", "Frame6"})
        EXPECT_FALSE(opened.Find(panel)->isVisible()) << panel;
    EXPECT_TRUE(opened.Find("FrShowFrames(0)")->isVisible());
    opened.form.cmdShowFrames.UserClick();
    opened.Settle();
    for (const char* panel : {"Frame4", "Frame5", "Frame6"})
        EXPECT_TRUE(opened.Find(panel)->isVisible()) << panel;
    EXPECT_FALSE(opened.Find("FrShowFrames(0)")->isVisible());
}

TEST(MainWindow, ClosingIsTheFormsAffair) {
    struct Closable : MainWindow {
        using MainWindow::closeEvent;
        using MainWindow::MainWindow;
    };
    TestProgram program;
    Closable window(program.form);
    QCloseEvent close;
    EXPECT_THROW(window.closeEvent(&close), ProgramEnded);
}

TEST(MainWindow, ShowsTheHourglassAndTheProgressLineAtOnce) {
    OpenedWindow opened;
    auto* line = opened.window->findChild<look::ProgressLine*>();
    opened.form.MousePointer = kPointerHourglass;
    ASSERT_TRUE(QGuiApplication::overrideCursor());
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_TRUE(line->IsBusy());
    opened.form.MousePointer = kPointerDefault;
    EXPECT_FALSE(QGuiApplication::overrideCursor());
    EXPECT_FALSE(line->IsShowing());
    opened.window->ShowPause(3);
    EXPECT_TRUE(line->IsBusy());
    opened.window->ShowPause(0);
    EXPECT_FALSE(line->IsShowing());
}

TEST(MainWindow, KeysRunTheClicksOfTheirButtonsUnlessATextFieldHasTheFocus) {
    OpenedWindow opened;
    opened.window->activateWindow();
    opened.Settle();
    std::vector<std::string> clicked;
    for (CommandButton* button : {&opened.form.Command5, &opened.form.cmdRefreshFile, &opened.form.Command12})
        button->Click.Connect([&clicked, button] { clicked.push_back(button->Name()); });
    opened.window->Canvas().setFocus();
    opened.Settle();
    QTest::keyClick(&opened.window->Canvas(), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&opened.window->Canvas(), Qt::Key_F5);
    QTest::keyClick(&opened.window->Canvas(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(clicked, testing::ElementsAre("Command5", "cmdRefreshFile", "Command12"));
    clicked.clear();
    auto* field = opened.window->findChild<QLineEdit*>("TextLoops");
    field->setFocus();
    opened.Settle();
    QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_F5);
    EXPECT_THAT(clicked, testing::IsEmpty());
}

TEST(MainWindow, DeleteRemovesTheRowOfTheSuperBatchList) {
    OpenedWindow opened;
    opened.form.Command14.UserClick();
    opened.form.List2.AddItem("C:\\a.jpg");
    opened.form.List2.AddItem("C:\\b.jpg");
    opened.form.List2.SetListIndex(0);
    opened.Settle();
    QWidget* list = opened.Find("List2");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    ASSERT_EQ(opened.form.List2.ListCount(), 1);
    EXPECT_EQ(opened.form.List2.List(0), "C:\\b.jpg");
}

TEST(MainWindow, TheFloatingPanelComesToLieWhereItIsDropped) {
    OpenedWindow opened;
    opened.form.cmdHideFrame(1).UserClick();
    opened.Settle();
    QWidget* panel = opened.Find("FrShowFrames(0)");
    const QPoint start = panel->mapTo(opened.window.get(), QPoint(3, 3));
    const qreal scale = opened.window->devicePixelRatioF();
    Mouse mouse(opened.window->Canvas());
    mouse.Press((QPointF(start) * scale).toPoint());
    EXPECT_EQ(opened.form.MousePointer, kPointerSizeAll);
    mouse.Move({300, 200});
    mouse.Move({400, 250});
    mouse.Release({400, 250});
    opened.Settle();
    EXPECT_EQ(opened.form.FrShowFrames(0).Left, 400);
    EXPECT_EQ(opened.form.FrShowFrames(0).Top, 250);
    EXPECT_NEAR(panel->x(), 400 / scale, 1);
    EXPECT_NEAR(panel->y(), 250 / scale, 1);
}

TEST(MainWindow, ABlankMaterialImageLeavesTheGroundOfTheLook) {
    OpenedWindow opened;
    opened.form.picSmall.Picture = Picture();
    opened.Settle();
    QWidget* view = opened.Find("picSmall");
    EXPECT_EQ(Painted(*view).pixelColor(5, 5), QColor(0x40, 0x40, 0x40));
    opened.form.picSmall.Paint(); // a painted box shows what it holds, be it of the same grey
    opened.form.picSmall.Refresh();
    opened.Settle();
    EXPECT_EQ(Painted(*view).pixelColor(5, 5), QColor(0xC0, 0xC0, 0xC0));
}

TEST(MainWindow, ListsShowWholeRows) {
    OpenedWindow opened;
    for (int number = 4; number < 60; ++number)
        opened.program.files.AddFile("C:\\Mirelle\\Support\\Materials\\Art_" + std::to_string(number) +
                                     ".jpg");
    opened.form.cmdRefreshFile.UserClick();
    for (const int height : {680, 700, 733, 800}) {
        opened.window->resize(1100, height);
        opened.Settle();
        for (const char* name : {"File5", "Dir5"}) {
            const auto* list = qobject_cast<QListView*>(opened.Find(name));
            EXPECT_EQ(list->viewport()->height() % list->sizeHintForRow(0), 0) << name << " at " << height;
            const QRect current = list->visualRect(list->currentIndex());
            EXPECT_TRUE(list->viewport()->rect().contains(current)) << name << " at " << height;
        }
    }
}

TEST(MainWindow, TheSuperBatchPanelKeepsTheKeyboardFromWhatItCovers) {
    OpenedWindow opened;
    EXPECT_TRUE(opened.Find("ckKeep")->isVisible());
    const QRect names = opened.Find("Frame3")->geometry();
    opened.form.Command14.UserClick();
    opened.Settle();
    EXPECT_FALSE(opened.Find("ckKeep")->isVisible());
    EXPECT_EQ(opened.Find("Frame3")->geometry(), names) << "what is not covered stays at its place";
    opened.form.Command14.UserClick();
    opened.Settle();
    EXPECT_TRUE(opened.Find("ckKeep")->isVisible());
}

} // namespace
} // namespace mirelle::test
