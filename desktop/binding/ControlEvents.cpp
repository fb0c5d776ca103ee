#include "desktop/binding/ControlEvents.h"

#include "desktop/binding/DevicePixels.h"
#include "desktop/binding/HandlerGuard.h"

#include <QMouseEvent>
#include <QWidget>

#include <utility>

namespace mirelle {

int ButtonNumber(Qt::MouseButtons buttons) {
    if (buttons & Qt::LeftButton) return 1;
    return buttons & Qt::RightButton ? 2 : 0;
}

int ShiftNumber(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0) +
           (modifiers & Qt::AltModifier ? 4 : 0);
}

ControlEvents::ControlEvents(Control& control, QWidget& widget, Dialogs& dialogs, Take take)
    : QObject(&widget), control_(control), widget_(widget), dialogs_(dialogs), take_(take) {
    widget.setMouseTracking(true);
    widget.installEventFilter(this);
}

bool ControlEvents::eventFilter(QObject* watched, QEvent* event) {
    if (!widget_.isEnabled()) return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        pressed_ = mouse.button() == Qt::LeftButton;
        Run([&] { control_.MouseDown(Args(mouse, ButtonNumber(mouse.button()))); });
        break;
    }
    case QEvent::MouseMove: {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        Run([&] { control_.MouseMove(Args(mouse, ButtonNumber(mouse.buttons()))); });
        break;
    }
    case QEvent::MouseButtonRelease:
        Release(static_cast<const QMouseEvent&>(*event));
        break;
    case QEvent::MouseButtonDblClick: {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        pressed_ = false;
        if (take_ == Take::Mouse)
            Run([&] { control_.MouseDown(Args(mouse, ButtonNumber(mouse.button()))); });
        else if (mouse.button() == Qt::LeftButton)
            Run([&] { control_.UserDblClick(); });
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ControlEvents::Run(const std::function<void()>& action) {
    RunGuarded(dialogs_, action);
}

MouseArgs ControlEvents::Args(const QMouseEvent& event, int button) const {
    const QPoint pixel = DevicePixelAt(widget_, event);
    return {button, ShiftNumber(event.modifiers()), static_cast<float>(pixel.x()),
            static_cast<float>(pixel.y())};
}

void ControlEvents::Release(const QMouseEvent& event) {
    const bool clicked = std::exchange(pressed_, false) && event.button() == Qt::LeftButton &&
                         widget_.rect().contains(event.position().toPoint());
    Run([&] { control_.MouseUp(Args(event, ButtonNumber(event.button()))); });
    if (clicked && take_ == Take::FullClick) Run([&] { control_.UserClick(); });
}

} // namespace mirelle
