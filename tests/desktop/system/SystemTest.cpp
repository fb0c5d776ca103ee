// Filters of open dialogs, the program's folder, the clock and the pump, and which ports a platform gets.
#include "desktop/system/FileFilter.h"
#include "desktop/system/HomeFolder.h"
#include "desktop/system/QtEventPump.h"
#include "desktop/system/RealDesktop.h"
#include "desktop/system/WindowKeyboard.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTime>
#include <QTimer>
#include <QWidget>

namespace mirelle::test {
namespace {

TEST(FileFilter, BecomesOneEntryForEachPair) {
    EXPECT_EQ(
        NameFilters("JPG Files (*.jpeg;*.jpg)|*.jpeg;*.jpg|Bmp Files (*.bmp)|*.bmp|Gif Files (*.gif)|*.gif)"),
        QStringList({"JPG Files (*.jpeg *.jpg)", "Bmp Files (*.bmp)", "Gif Files (*.gif))"}));
    EXPECT_EQ(NameFilters(""), QStringList());
    EXPECT_EQ(NameFilters("All|*.*|Odd"), QStringList({"All (*.*)"}));
}

TEST(HomeFolder, IsTheOneNamedOrTheProgramsOwn) {
    EXPECT_EQ(HomeFolder({"mirelle", "--home", "/tmp/there/"}), "/tmp/there");
    EXPECT_EQ(HomeFolder({"mirelle"}), QCoreApplication::applicationDirPath().toStdString());
    EXPECT_EQ(HomeFolder({"mirelle", "--home"}), QCoreApplication::applicationDirPath().toStdString());
}

TEST(HomeFolder, OfAProgramStartedByALinkIsTheLinksFolder) {
    const QTemporaryDir folder;
    const QString link = folder.filePath("mirelle");
    ASSERT_TRUE(QFile::link(QCoreApplication::applicationFilePath(), link));
    EXPECT_EQ(HomeFolder({link}), folder.path().toStdString());
    EXPECT_EQ(HomeFolder({QCoreApplication::applicationFilePath()}),
              QCoreApplication::applicationDirPath().toStdString());
}

TEST(EventPump, TellsTheSecondsSinceMidnight) {
    QtEventPump pump;
    const double before = QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
    const double told = pump.Timer();
    const double after = QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
    if (after < before) GTEST_SKIP() << "midnight passed";
    EXPECT_GE(told, before);
    EXPECT_LE(told, after);
}

TEST(EventPump, TellsTheDayOfTheCalendar) {
    QtEventPump pump;
    const QDate before = QDate::currentDate();
    const CalendarDate today = pump.Date();
    if (QDate::currentDate() != before) GTEST_SKIP() << "midnight passed";
    EXPECT_EQ(QDate(today.year, today.month, today.day), before);
}

TEST(EventPump, RunsWhatWaits) {
    QtEventPump pump;
    for (const PumpSite site : {PumpSite::Handler, PumpSite::Pause, PumpSite::Pass}) {
        bool ran = false;
        QTimer::singleShot(0, qApp, [&] { ran = true; });
        pump.DoEvents(site);
        EXPECT_TRUE(ran);
    }
}

TEST(EventPump, TellsThatAPauseIsUnderWayUntilTheLastOneEnds) {
    QtEventPump pump;
    std::vector<double> pauses;
    QObject::connect(&pump, &QtEventPump::Pausing, qApp, [&](double now) { pauses.push_back(now); });
    pump.PauseBegins(1);
    pump.PauseBegins(1.25);
    pump.PauseEnds();
    EXPECT_EQ(pauses, std::vector<double>({1}));
    pump.PauseEnds();
    EXPECT_EQ(pauses, std::vector<double>({1, 0}));
}

TEST(WindowKeyboard, TellsEscapeOnce) {
    WindowKeyboard keyboard(qApp);
    QWidget widget;
    EXPECT_FALSE(keyboard.EscapeWentDown());
    QTest::keyClick(&widget, Qt::Key_A);
    EXPECT_FALSE(keyboard.EscapeWentDown());
    QTest::keyClick(&widget, Qt::Key_Escape);
    EXPECT_TRUE(keyboard.EscapeWentDown());
    EXPECT_FALSE(keyboard.EscapeWentDown());
}

// Another display that could be reached all the same is not the one that the user looks at.
TEST(RealDesktop, WithoutWindowsOnXHasNoConsoleAndHearsEscapeInItsOwnWindows) {
    if (QGuiApplication::platformName() == "xcb") GTEST_SKIP() << "windows on X";
    const QTemporaryDir home;
    RealDesktop desktop(home.path().toStdString());
    EXPECT_THROW(desktop.ThePorts().console.AppActivate("Ruby Console"), RunTimeError);
    QWidget widget;
    QTest::keyClick(&widget, Qt::Key_Escape);
    EXPECT_TRUE(desktop.ThePorts().keyboard.EscapeWentDown());
    EXPECT_FALSE(desktop.ThePorts().keyboard.EscapeWentDown());
}

} // namespace
} // namespace mirelle::test
