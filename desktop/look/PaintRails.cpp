#include "desktop/look/PaintRails.h"

#include <algorithm>

#include <QStyleOption>

#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

bool IsLevel(const QStyleOptionSlider& option) {
    return option.orientation == Qt::Horizontal;
}

// A piece of the rail, from `from` on for `length`, over the whole breadth.
QRect Piece(const QStyleOptionSlider& option, int from, int length) {
    const QRect box = option.rect;
    return IsLevel(option) ? QRect(box.x() + from, box.y(), length, box.height())
                           : QRect(box.x(), box.y() + from, box.width(), length);
}

int RailLength(const QStyleOptionSlider& option) {
    return IsLevel(option) ? option.rect.width() : option.rect.height();
}

int ScrollHandleLength(const QStyleOptionSlider& option) {
    const int rail = RailLength(option);
    const qint64 range = qint64(option.maximum) - option.minimum;
    if (range <= 0) return rail;
    const qint64 length = qint64(rail) * option.pageStep / (range + option.pageStep);
    return std::clamp(static_cast<int>(length), std::min(kScrollHandleShortest, rail), rail);
}

int Place(const QStyleOptionSlider& option, int value, int span) {
    return QStyle::sliderPositionFromValue(option.minimum, option.maximum, value, span, option.upsideDown);
}

// A bar of `thickness` in the middle of the breadth of `rect`.
QRectF Thinned(const QStyleOptionSlider& option, const QRectF& rect, double thickness) {
    const double spare = (IsLevel(option) ? rect.height() : rect.width()) - thickness;
    return IsLevel(option) ? rect.adjusted(0, spare / 2, 0, -spare / 2)
                           : rect.adjusted(spare / 2, 0, -spare / 2, 0);
}

bool IsTouched(const QStyleOptionSlider& option, QStyle::SubControl part, QStyle::StateFlag how) {
    return (option.activeSubControls & part) && (option.state & how);
}

QRgb ScrollHandleColour(const QStyleOptionSlider& option) {
    if (IsTouched(option, QStyle::SC_ScrollBarSlider, QStyle::State_Sunken)) return kTextQuiet;
    return option.state & QStyle::State_MouseOver ? kScrollHandleHovered : kScrollHandleColour;
}

// The middle of the handle for a value, along the rail.
double HandleMiddle(const QStyleOptionSlider& option, int value) {
    return Place(option, value, RailLength(option) - kSliderHandle) + kSliderHandle / 2.0;
}

void PaintGroove(Surface& surface, const QStyleOptionSlider& option) {
    const bool enabled = option.state & QStyle::State_Enabled;
    const int rail = RailLength(option);
    const QRectF groove = Thinned(option, Piece(option, 0, rail), kSliderGroove);
    surface.Fill(groove, kSliderGroove / 2.0, QColor(kCardEdge));

    const int zero = std::clamp(0, option.minimum, std::max(option.minimum, option.maximum));
    const double from = HandleMiddle(option, zero);
    const double to = HandleMiddle(option, option.sliderPosition);
    QRectF filled = Piece(option, 0, rail);
    if (IsLevel(option)) {
        filled.setLeft(option.rect.x() + std::min(from, to));
        filled.setRight(option.rect.x() + std::max(from, to));
    } else {
        filled.setTop(option.rect.y() + std::min(from, to));
        filled.setBottom(option.rect.y() + std::max(from, to));
    }
    surface.Fill(Thinned(option, filled, kSliderGroove), kSliderGroove / 2.0,
                 QColor(enabled ? kAccent : kFieldEdge));
}

} // namespace

QRect ScrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part) {
    const int rail = RailLength(option);
    const int handle = ScrollHandleLength(option);
    const int start = Place(option, option.sliderPosition, rail - handle);
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return option.rect;
    case QStyle::SC_ScrollBarSlider:
        return Piece(option, start, handle);
    case QStyle::SC_ScrollBarSubPage:
        return Piece(option, 0, start);
    case QStyle::SC_ScrollBarAddPage:
        return Piece(option, start + handle, rail - start - handle);
    default:
        return {};
    }
}

void PaintScrollBar(QPainter& painter, const QStyleOptionSlider& option) {
    if (option.maximum <= option.minimum) return; // all is in view
    const QRectF handle = Thinned(option, ScrollBarPart(option, QStyle::SC_ScrollBarSlider), kScrollHandle);
    Surface surface(painter);
    const bool enabled = option.state & QStyle::State_Enabled;
    surface.Fill(handle, kScrollHandle / 2.0, QColor(enabled ? ScrollHandleColour(option) : kControl));
    if (ShowsFocus(option)) surface.FocusRing(option.rect, kScrollBar / 2.0, QColor(kCard));
}

QRect SliderPart(const QStyleOptionSlider& option, QStyle::SubControl part) {
    if (part == QStyle::SC_SliderGroove) return option.rect;
    if (part != QStyle::SC_SliderHandle) return {};
    const int start = Place(option, option.sliderPosition, RailLength(option) - kSliderHandle);
    return Thinned(option, Piece(option, start, kSliderHandle), kSliderHandle).toRect();
}

void PaintSlider(QPainter& painter, const QStyleOptionSlider& option) {
    Surface surface(painter);
    PaintGroove(surface, option);
    const QRectF handle = SliderPart(option, QStyle::SC_SliderHandle);
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool held = IsTouched(option, QStyle::SC_SliderHandle, QStyle::State_Sunken);
    const QRgb ink = !enabled                                           ? kTextOff
                     : held || (option.state & QStyle::State_MouseOver) ? kTextStrong
                                                                        : kText;
    const QPointF centre = surface.Grid().Snapped(handle).center();
    surface.Disc(centre, kSliderHandle + 2, QColor(kCard)); // parts the handle from the filled groove
    surface.Disc(centre, kSliderHandle, QColor(ink));
    if (ShowsFocus(option))
        surface.FocusRing(handle.adjusted(-2, -2, 2, 2), kSliderHandle / 2.0 + 2, QColor(kCard));
}

} // namespace mirelle::look
