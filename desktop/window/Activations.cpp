#include "desktop/window/Activations.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace mirelle {

Activations::Activations(QWidget& window) : window_(window) {
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive) away_ = true;
    });
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &Activations::FollowFocusWindow);
}

void Activations::FollowFocusWindow(QWindow* focused) {
    if (!focused) return;
    if (focused == window_.windowHandle()) {
        if (std::exchange(away_, false)) emit Activated();
        return;
    }
    const bool passing = focused->modality() != Qt::NonModal || focused->type() == Qt::Popup ||
                         focused->type() == Qt::ToolTip || focused->type() == Qt::Dialog;
    if (!passing) away_ = true;
}

} // namespace mirelle
