#include "desktop/system/QtScreen.h"

#include "desktop/binding/DevicePixels.h"
#include "desktop/system/StackingHint.h"

#include <QGuiApplication>
#include <QScreen>

namespace mirelle {
namespace {

ScreenSize InDevicePixels(QSize logical, qreal scale) {
    const QSize size = ToDevice(logical, scale);
    return {size.width(), size.height()};
}

const QScreen* ScreenOf(const QWidget* window) {
    const QScreen* screen = window ? window->screen() : nullptr;
    return screen ? screen : QGuiApplication::primaryScreen();
}

} // namespace

void QtScreen::SetWindow(QWidget* window) {
    window_ = window;
    if (window) KeepAbove(*window, topmost_);
}

ScreenSize QtScreen::Size() const {
    const QScreen* screen = ScreenOf(window_);
    return screen ? InDevicePixels(screen->size(), screen->devicePixelRatio()) : ScreenSize{};
}

ScreenSize QtScreen::MaximisedClientSize() const {
    const QScreen* screen = ScreenOf(window_);
    if (!screen) return {};
    QSize size = screen->availableSize();
    if (window_) {
        const QSize frame = window_->frameGeometry().size() - window_->size();
        // A maximised window keeps its title bar; most window managers drop the side frames.
        size -= QSize(0, frame.height());
    }
    return InDevicePixels(size, screen->devicePixelRatio());
}

bool QtScreen::SetTopMost(bool topmost) {
    topmost_ = topmost;
    return !window_ || KeepAbove(*window_, topmost);
}

} // namespace mirelle
