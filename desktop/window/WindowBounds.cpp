#include "desktop/window/WindowBounds.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace mirelle {
namespace {

constexpr QSize kFrame{2, 32}; // about what a window's frame takes, before it is known
constexpr int kHandle = 24;    // as much of the upper edge can be taken hold of

} // namespace

QRect KeptInside(QRect window, const QRect& area) {
    window.setSize(window.size().boundedTo(area.size()));
    window.moveLeft(std::clamp(window.left(), area.left(), area.right() + 1 - window.width()));
    window.moveTop(std::clamp(window.top(), area.top(), area.bottom() + 1 - window.height()));
    return window;
}

bool IsWithinReach(const QRect& window, const QList<QRect>& areas) {
    const QRect handle(window.left(), window.top(), window.width(), kHandle);
    return std::ranges::any_of(areas, [&](const QRect& area) {
        const QRect seen = area & handle;
        return seen.width() >= kHandle && seen.height() >= kHandle / 2;
    });
}

WindowBounds::WindowBounds(QWidget& window) : QObject(&window), window_(window) {
    for (QScreen* screen : QGuiApplication::screens())
        Watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &WindowBounds::Watch);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &WindowBounds::BringBack, Qt::QueuedConnection);
}

QSize WindowBounds::StartSize(const QWidget& window, QSize usual) {
    const QScreen* screen = window.screen();
    return screen ? usual.boundedTo(screen->availableSize() - kFrame) : usual;
}

void WindowBounds::FollowScreens() {
    connect(window_.windowHandle(), &QWindow::screenChanged, this, &WindowBounds::ScreenChanged);
}

void WindowBounds::Watch(QScreen* screen) {
    connect(screen, &QScreen::availableGeometryChanged, this, &WindowBounds::BringBack, Qt::QueuedConnection);
}

void WindowBounds::BringBack() {
    if (!window_.isVisible() || window_.windowState() != Qt::WindowNoState) return;
    QList<QRect> areas;
    for (const QScreen* screen : QGuiApplication::screens())
        areas.append(screen->availableGeometry());
    const QRect frame = window_.frameGeometry();
    if (IsWithinReach(frame, areas) || !window_.screen()) return;
    const QRect place = KeptInside(frame, window_.screen()->availableGeometry());
    window_.resize(place.size() - (frame.size() - window_.size()));
    window_.move(place.topLeft());
}

} // namespace mirelle
