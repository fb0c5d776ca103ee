#include "desktop/look/Surface.h"

#include <algorithm>
#include <cmath>

#include <QStyle>
#include <QStyleOption>

#include "desktop/look/Contrast.h"
#include "desktop/look/PixelFit.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

DeviceGrid::DeviceGrid(const QPainter& painter)
    : toDevice_(painter.deviceTransform()), scale_(toDevice_.m11() > 0 ? toDevice_.m11() : 1) {}

QPointF DeviceGrid::Snapped(QPointF point) const {
    const QPointF device = toDevice_.map(point);
    const QPointF whole(std::round(device.x()), std::round(device.y()));
    return point + (whole - device) / scale_;
}

QRectF DeviceGrid::Snapped(const QRectF& rect) const {
    return {Snapped(rect.topLeft()), Snapped(rect.bottomRight())};
}

double DeviceGrid::Hairline() const {
    return std::max(1.0, std::round(kEdge * scale_)) / scale_;
}

double DeviceGrid::Stroke(double width) const {
    return FittedStroke(width, scale_) / scale_;
}

Surface::Surface(QPainter& painter) : painter_(painter), grid_(painter) {
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(Qt::NoPen);
}

Surface::~Surface() {
    painter_.restore();
}

void Surface::Fill(const QRectF& rect, double radius, const QColor& colour) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour);
    painter_.drawRoundedRect(grid_.Snapped(rect), radius, radius);
}

void Surface::Outline(const QRectF& rect, double radius, const QColor& colour, double stroke) {
    const double half = stroke / 2;
    painter_.setPen(QPen(colour, stroke));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRoundedRect(grid_.Snapped(rect).adjusted(half, half, -half, -half), radius - half,
                             radius - half);
}

void Surface::Edge(const QRectF& rect, double radius, const QColor& colour) {
    Outline(rect, radius, colour, grid_.Hairline());
}

void Surface::FocusRing(const QRectF& rect, double radius, const QColor& ground) {
    Outline(rect, radius, QColor(RingOn(ground.rgb())), grid_.Stroke(kFocusRing));
}

void Surface::Disc(QPointF centre, double diameter, const QColor& colour) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour);
    painter_.drawEllipse(centre, diameter / 2, diameter / 2);
}

QColor GroundOf(const QStyleOption& option, const QColor& rest) {
    if (!(option.state & QStyle::State_Enabled)) return QColor(Unavailable(rest.rgb()));
    QRgb ground = rest.rgb();
    if (option.state & QStyle::State_On) ground = Switched(ground);
    if (option.state & QStyle::State_Sunken) return QColor(Pressed(ground));
    return QColor(option.state & QStyle::State_MouseOver ? Hovered(ground) : ground);
}

bool ShowsFocus(const QStyleOption& option) {
    return (option.state & QStyle::State_HasFocus) && (option.state & QStyle::State_KeyboardFocusChange);
}

} // namespace mirelle::look
