// Logical units and device pixels. Widgets are placed in logical units; pictures, crops and the form are in
// device pixels. Every conversion between the two stands here, so that all round the same way.
//
// A widget's first device pixel is the one nearest to its top-left corner; where the scale factor is a
// fraction the corner itself can lie between two pixels.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QMouseEvent;
class QPainter;
class QPointF;
class QWidget;

namespace mirelle {

// The whole device pixels that a logical size covers.
QSize DeviceSize(const QWidget& widget);
QSize ToDevice(QSize logical, qreal scale);
// The least logical size that shows so many device pixels.
QSize LogicalSizeFor(QSize device, qreal scale);

// The device pixel under a logical position in the widget, counted from the widget's first one.
QPoint DevicePixelAt(const QWidget& widget, const QPointF& position);
// The same for the mouse. An event's position in its widget is rounded to whole logical units on its way;
// only its place in the window keeps the fraction that tells the pixel.
QPoint DevicePixelAt(const QWidget& widget, const QMouseEvent& event);
// The other way: the logical position of a device pixel's top-left corner.
QPointF LogicalPosition(const QWidget& widget, QPoint pixel);
// The logical rectangle to repaint so that all of these device pixels are painted.
QRect LogicalRectAround(const QWidget& widget, const QRect& pixels);

// Lets a painter on a widget count in the widget's device pixels from its first one.
void UseDevicePixels(QPainter& painter);
// The device pixels that a logical rectangle touches.
QRect DevicePixelsTouched(const QWidget& widget, const QRect& logical);

} // namespace mirelle
