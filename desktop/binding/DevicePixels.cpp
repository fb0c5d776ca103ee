#include "desktop/binding/DevicePixels.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include <cmath>

namespace mirelle {
namespace {

// Positions come as device pixels divided by the scale factor; the least doubt of that division must not move
// one to the pixel before.
constexpr qreal kDoubt = 1.0 / 128;

int Floor(qreal value) {
    return static_cast<int>(std::floor(value));
}
int Ceil(qreal value) {
    return static_cast<int>(std::ceil(value));
}

QPointF CornerInWindow(const QWidget& widget) {
    return QPointF(widget.mapTo(widget.window(), QPoint(0, 0))) * widget.devicePixelRatioF();
}

QPoint FirstPixel(const QPointF& corner) {
    return {Floor(corner.x() + 0.5), Floor(corner.y() + 0.5)};
}

QPoint PixelFrom(QPoint first, const QPointF& inWindow) {
    return QPoint(Floor(inWindow.x() + kDoubt), Floor(inWindow.y() + kDoubt)) - first;
}

} // namespace

QSize ToDevice(QSize logical, qreal scale) {
    return {Floor(logical.width() * scale + kDoubt), Floor(logical.height() * scale + kDoubt)};
}

QSize DeviceSize(const QWidget& widget) {
    return ToDevice(widget.size(), widget.devicePixelRatioF());
}

QSize LogicalSizeFor(QSize device, qreal scale) {
    return {Ceil(device.width() / scale - kDoubt), Ceil(device.height() / scale - kDoubt)};
}

QPoint DevicePixelAt(const QWidget& widget, const QPointF& position) {
    const QPointF corner = CornerInWindow(widget);
    return PixelFrom(FirstPixel(corner), corner + position * widget.devicePixelRatioF());
}

QPoint DevicePixelAt(const QWidget& widget, const QMouseEvent& event) {
    const QPointF inWindow = event.scenePosition() * widget.devicePixelRatioF();
    return PixelFrom(FirstPixel(CornerInWindow(widget)), inWindow);
}

QPointF LogicalPosition(const QWidget& widget, QPoint pixel) {
    const QPointF corner = CornerInWindow(widget);
    return (QPointF(FirstPixel(corner) + pixel) - corner) / widget.devicePixelRatioF();
}

QRect LogicalRectAround(const QWidget& widget, const QRect& pixels) {
    const QPointF from = LogicalPosition(widget, pixels.topLeft());
    const QPointF to = LogicalPosition(widget, pixels.topLeft() + QPoint(pixels.width(), pixels.height()));
    return QRect(QPoint(Floor(from.x()), Floor(from.y())), QPoint(Ceil(to.x()) - 1, Ceil(to.y()) - 1));
}

QRect DevicePixelsTouched(const QWidget& widget, const QRect& logical) {
    const QPointF corner = CornerInWindow(widget);
    const qreal scale = widget.devicePixelRatioF();
    const QPointF from = corner + QPointF(logical.topLeft()) * scale;
    const QPointF to = corner + QPointF(logical.right() + 1, logical.bottom() + 1) * scale;
    const QRect inWindow(QPoint(Floor(from.x()), Floor(from.y())),
                         QPoint(Ceil(to.x()) - 1, Ceil(to.y()) - 1));
    return inWindow.translated(-FirstPixel(corner));
}

void UseDevicePixels(QPainter& painter) {
    painter.setWorldTransform(QTransform());
    const QTransform toDevice = painter.deviceTransform();
    const QPoint first = FirstPixel(toDevice.map(QPointF(0, 0)));
    painter.setWorldTransform(QTransform::fromTranslate(first.x(), first.y()) * toDevice.inverted());
}

} // namespace mirelle
