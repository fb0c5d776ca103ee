// The mouse in tests, by device pixels of a widget: events take the whole way through the window, as real
// ones do.
#pragma once

#include "desktop/binding/DevicePixels.h"

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace mirelle::test {

class Mouse {
public:
    explicit Mouse(QWidget& widget) : widget_(widget) {}

    void Press(QPoint pixel, Qt::MouseButton button = Qt::LeftButton) {
        held_ |= button;
        Send(QEvent::MouseButtonPress, pixel, button);
    }
    void Move(QPoint pixel) { Send(QEvent::MouseMove, pixel, Qt::NoButton); }
    void Release(QPoint pixel, Qt::MouseButton button = Qt::LeftButton) {
        held_ &= ~Qt::MouseButtons(button);
        Send(QEvent::MouseButtonRelease, pixel, button);
    }
    void Drag(QPoint from, QPoint to) {
        Press(from);
        Move(to);
        Release(to);
    }

private:
    void Send(QEvent::Type type, QPoint pixel, Qt::MouseButton button) {
        // The middle of the pixel, so that no rounding on the way can help or harm.
        const qreal scale = widget_.devicePixelRatioF();
        const QPointF inWidget = LogicalPosition(widget_, pixel) + QPointF(0.5, 0.5) / scale;
        const QPointF local = widget_.mapTo(widget_.window(), inWidget);
        QWindow* window = widget_.window()->windowHandle();
        qt_handleMouseEvent(window, local, window->mapToGlobal(local), held_, button, type, Qt::NoModifier,
                            ++QTest::lastMouseTimestamp);
        QCoreApplication::processEvents();
    }

    QWidget& widget_;
    Qt::MouseButtons held_;
};

} // namespace mirelle::test
