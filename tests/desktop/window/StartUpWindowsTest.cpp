// The splash and the manual's form as windows.
#include "desktop/window/ManualWindow.h"
#include "desktop/window/SplashWindow.h"
#include "tests/desktop/Mouse.h"
#include "tests/desktop/window/OpenedWindow.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <set>

namespace mirelle::test {
namespace {

// What has been painted since.
class PaintedWidgets : public QObject {
public:
    PaintedWidgets() { qApp->installEventFilter(this); }
    bool Have(const QWidget* widget) const { return painted_.contains(widget); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) painted_.insert(watched);
        return false;
    }

private:
    std::set<const QObject*> painted_;
};

struct SplashWindowTest : testing::Test {
    SplashWindowTest() {
        splash.Finished.Connect([this] { ++finished; });
        const QScreen* screen = QGuiApplication::primaryScreen();
        program.desktop.screen.size = {qRound(screen->size().width() * screen->devicePixelRatio()),
                                       qRound(screen->size().height() * screen->devicePixelRatio())};
        splash.Load();
        OpenedWindow::Settle();
    }
    QLabel* Words(const char* name) { return window.findChild<QLabel*>(name); }
    bool Ends() {
        return QTest::qWaitFor([this] { return finished > 0; }, 60000);
    }

    TestProgram program;
    Splash splash{program.desktop.screen, program.desktop.time, program.desktop.process};
    SplashWindow window{splash, program.desktop.dialogs};
    int finished = 0;
};

TEST_F(SplashWindowTest, StandsInTheMiddleOfTheScreenWithItsWords) {
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowTitle(), "About Mirelle");
    EXPECT_EQ(Words("lblVersion")->text(), "Version 1.0.0");
    EXPECT_FALSE(Words("lblDate")->text().isEmpty());
    EXPECT_EQ(Words("Label1")->text(), "Click splashscreen to view");
    const QPoint off = window.geometry().center() - window.screen()->geometry().center();
    EXPECT_LE(off.manhattanLength(), 4);
}

// Its words are made when it is there already, but nobody sees it without them.
TEST_F(SplashWindowTest, TellsThatItIsSeenOnceItIsPaintedWithAllItsWords) {
    Splash another{program.desktop.screen, program.desktop.time, program.desktop.process};
    SplashWindow fresh{another, program.desktop.dialogs};
    const PaintedWidgets painted;
    int seen = 0;
    QObject::connect(&fresh, &SplashWindow::Seen, [&] {
        ++seen;
        const QList<QLabel*> words = fresh.findChildren<QLabel*>();
        EXPECT_EQ(words.size(), 5);
        for (const QLabel* line : words)
            EXPECT_TRUE(painted.Have(line)) << line->text().toStdString();
    });
    OpenedWindow::Settle();
    EXPECT_EQ(seen, 0);
    another.Load();
    ASSERT_TRUE(QTest::qWaitFor([&] { return seen > 0; }, 60000));
    fresh.repaint();
    OpenedWindow::Settle();
    EXPECT_EQ(seen, 1);
}

TEST_F(SplashWindowTest, ItsTimerEndsItAfterElevenTicks) {
    int ticks = 0;
    splash.Timer1.Timer.Connect([&] { ++ticks; });
    ASSERT_TRUE(Ends());
    OpenedWindow::Settle();
    EXPECT_EQ(ticks, 11);
    EXPECT_EQ(finished, 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SplashWindowTest, AClickAnywhereHoldsItAndASecondLetsItGoOn) {
    QTest::mouseClick(&window, Qt::LeftButton, {}, {20, 20});
    OpenedWindow::Settle();
    EXPECT_FALSE(splash.Timer1.Enabled);
    EXPECT_EQ(Words("Label1")->text(), "Click splashscreen to proceed");
    QTest::mouseClick(Words("lblVersion")->window(), Qt::LeftButton, {}, Words("lblVersion")->pos());
    OpenedWindow::Settle();
    EXPECT_TRUE(splash.Timer1.Enabled);
    EXPECT_EQ(Words("Label1")->text(), "Click splashscreen to view");
    EXPECT_TRUE(Ends());
}

TEST_F(SplashWindowTest, AClickOnTheLabelCountsOnce) {
    QTest::mouseClick(Words("Label1"), Qt::LeftButton);
    EXPECT_FALSE(splash.Timer1.Enabled);
    QTest::mouseClick(Words("Label1"), Qt::LeftButton);
    EXPECT_TRUE(splash.Timer1.Enabled);
}

TEST_F(SplashWindowTest, TheKeyboardHoldsItToo) {
    QTest::keyClick(&window, Qt::Key_Space);
    EXPECT_FALSE(splash.Timer1.Enabled);
    QTest::keyClick(&window, Qt::Key_A);
    EXPECT_FALSE(splash.Timer1.Enabled);
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_TRUE(splash.Timer1.Enabled);
}

TEST_F(SplashWindowTest, HasRoomForItsWords) {
    for (const QLabel* words : window.findChildren<QLabel*>()) {
        EXPECT_GE(words->width(), words->sizeHint().width()) << words->text().toStdString();
        EXPECT_GE(words->height(), words->sizeHint().height()) << words->text().toStdString();
    }
}

struct ManualWindowTest : testing::Test {
    QPushButton* Button(const char* name) { return manual.findChild<QPushButton*>(name); }
    void Open() {
        QTest::mouseClick(opened.Find("cmdGetCorvane(0)"), Qt::LeftButton);
        OpenedWindow::Settle();
    }

    OpenedWindow opened;
    UserManual& form = opened.program.sampler.manual;
    ManualWindow manual{form, opened.form, *opened.window};
};

TEST_F(ManualWindowTest, ComesWhileTheMainWindowIsMinimisedAndGivesItBack) {
    EXPECT_FALSE(manual.isVisible());
    Open();
    EXPECT_TRUE(manual.isVisible());
    EXPECT_TRUE(opened.window->isMinimized());
    manual.close();
    OpenedWindow::Settle();
    EXPECT_FALSE(manual.isVisible());
    EXPECT_FALSE(opened.window->isMinimized());
    EXPECT_TRUE(opened.window->isVisible());
    Open();
    EXPECT_TRUE(manual.isVisible());
}

TEST_F(ManualWindowTest, ItsButtonsOpenTheManualWithTheSystemsViewer) {
    Open();
    EXPECT_EQ(Button("Command1(1)")->text(), "Local");
    EXPECT_EQ(Button("Command1(0)")->text(), "Web");
    EXPECT_EQ(Button("Command1(1)")->toolTip(), "View CorvaneSUNDIAL User Manual with default PDF Viewer");
    EXPECT_EQ(Button("Command1(0)")->toolTip(), "View CorvaneSUNDIAL User Manual Online");
    QTest::mouseClick(Button("Command1(1)"), Qt::LeftButton);
    QTest::mouseClick(Button("Command1(0)"), Qt::LeftButton);
    const auto& shown = opened.program.desktop.viewer.opened;
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].target, "C:\\Mirelle\\Support\\Mirelle1UserManual1.pdf");
    EXPECT_TRUE(shown[1].target.starts_with("https://"));
}

TEST_F(ManualWindowTest, TheKeyboardOpensAndCloses) {
    Open();
    Button("Command1(1)")->setFocus();
    QTest::keyClick(Button("Command1(1)"), Qt::Key_Return);
    ASSERT_EQ(opened.program.desktop.viewer.opened.size(), 1U);
    QTest::keyClick(&manual, Qt::Key_Escape);
    OpenedWindow::Settle();
    EXPECT_FALSE(manual.isVisible());
    EXPECT_EQ(opened.form.WindowState, kWindowNormal);
}

TEST_F(ManualWindowTest, HasRoomForItsWords) {
    Open();
    for (const QLabel* words : manual.findChildren<QLabel*>())
        EXPECT_GE(words->height(), words->heightForWidth(words->width())) << words->text().toStdString();
    for (const QPushButton* button : manual.findChildren<QPushButton*>())
        EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
}

} // namespace
} // namespace mirelle::test
