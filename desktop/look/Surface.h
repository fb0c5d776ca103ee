// Rounded grounds, edges and rings, laid on the device's pixels: what every painter of the look draws with.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

class QStyleOption;

namespace mirelle::look {

// A painter's units beside its device's pixels. Painters are scaled and shifted here, never turned.
class DeviceGrid {
public:
    explicit DeviceGrid(const QPainter& painter);

    double Scale() const { return scale_; } // device pixels to a unit
    QPointF Snapped(QPointF point) const;   // to the nearest corner of pixels
    QRectF Snapped(const QRectF& rect) const;
    double Hairline() const;           // the width of an edge: kEdge in whole pixels, in units
    double Stroke(double width) const; // as FittedStroke, in units

private:
    QTransform toDevice_;
    double scale_;
};

// Draws on a painter and leaves it as it was found.
class Surface {
public:
    explicit Surface(QPainter& painter);
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    void Fill(const QRectF& rect, double radius, const QColor& colour);
    // A hairline along the inside of `rect`.
    void Edge(const QRectF& rect, double radius, const QColor& colour);
    // A ring that is seen on `ground`, the colour that it is drawn over.
    void FocusRing(const QRectF& rect, double radius, const QColor& ground);
    void Disc(QPointF centre, double diameter, const QColor& colour);

    QPainter& Painter() { return painter_; }
    const DeviceGrid& Grid() const { return grid_; }

private:
    void Outline(const QRectF& rect, double radius, const QColor& colour, double stroke);

    QPainter& painter_;
    DeviceGrid grid_;
};

// The ground of a control whose own colour is `rest`, in the state that `option` tells.
QColor GroundOf(const QStyleOption& option, const QColor& rest);

// Whether the focus is here and came by the keyboard, so that it has to be shown.
bool ShowsFocus(const QStyleOption& option);

} // namespace mirelle::look
