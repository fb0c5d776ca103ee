// The window on the screens that there are.
#include "desktop/window/WindowBounds.h"
#include "tests/desktop/window/OpenedWindow.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

namespace mirelle::test {
namespace {

constexpr QRect kScreen(0, 0, 1920, 1080);

TEST(WindowBounds, AWindowInsideStaysWhereItIs) {
    EXPECT_EQ(KeptInside({100, 50, 1280, 800}, kScreen), QRect(100, 50, 1280, 800));
}

TEST(WindowBounds, AWindowBeyondAnEdgeIsMovedBackByAsMuch) {
    EXPECT_EQ(KeptInside({1000, 900, 1280, 800}, kScreen), QRect(640, 280, 1280, 800));
    EXPECT_EQ(KeptInside({-40, -10, 1280, 800}, kScreen), QRect(0, 0, 1280, 800));
}

TEST(WindowBounds, AWindowLargerThanTheScreenTakesTheScreensSize) {
    EXPECT_EQ(KeptInside({100, 100, 2500, 1400}, QRect(1920, 200, 1366, 768)), QRect(1920, 200, 1366, 768));
}

TEST(WindowBounds, AWindowIsWithinReachByItsUpperEdgeOnAnyScreen) {
    const QList<QRect> screens = {kScreen, QRect(1920, 0, 1366, 768)};
    EXPECT_TRUE(IsWithinReach({0, 0, 1280, 800}, screens));
    EXPECT_TRUE(IsWithinReach({3200, 700, 1280, 800}, screens));
    EXPECT_TRUE(IsWithinReach({-1200, 10, 1280, 800}, screens));
    EXPECT_FALSE(IsWithinReach({3280, 700, 1280, 800}, screens));
    EXPECT_FALSE(IsWithinReach({100, -200, 1280, 800}, screens));
    EXPECT_FALSE(IsWithinReach({4000, 100, 1280, 800}, screens));
}

TEST(WindowBounds, TheStartSizeIsTheUsualOneOrWhatTheScreenHasRoomFor) {
    QWidget window;
    const QSize screen = window.screen()->availableSize();
    EXPECT_EQ(WindowBounds::StartSize(window, {300, 200}), QSize(300, 200));
    const QSize large = WindowBounds::StartSize(window, screen * 2);
    EXPECT_LE(large.width(), screen.width());
    EXPECT_LT(large.height(), screen.height()); // the title needs room too
}

// With two screens, as the test is also run: the second one has a scale factor of its own.
TEST(WindowBounds, AWindowThatComesToAnotherScreenTellsTheFormItsPixelsThere) {
    if (QGuiApplication::screens().size() < 2) GTEST_SKIP() << "one screen";
    OpenedWindow opened;
    QScreen* const other = QGuiApplication::screens().at(1);
    const qreal before = opened.window->devicePixelRatioF();
    ASSERT_NE(other->devicePixelRatio(), before);
    opened.window->windowHandle()->setScreen(other);
    opened.window->move(other->geometry().topLeft());
    OpenedWindow::Settle();
    EXPECT_EQ(opened.window->devicePixelRatioF(), other->devicePixelRatio());
    EXPECT_EQ(opened.form.ClientWidth(), qRound(opened.window->width() * other->devicePixelRatio()));
}

} // namespace
} // namespace mirelle::test
