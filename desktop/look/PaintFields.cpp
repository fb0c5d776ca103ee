#include "desktop/look/PaintFields.h"

#include <QAbstractSpinBox>
#include <QStyle>
#include <QStyleOption>

#include "desktop/look/Icons.h"
#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

bool IsEnabled(const QStyleOption& option) {
    return option.state & QStyle::State_Enabled;
}

// Text boxes show the focus however it came: the cursor blinks there.
void PaintFieldEdge(Surface& surface, const QStyleOption& option) {
    const QColor base = option.palette.color(QPalette::Base);
    if (option.state & QStyle::State_HasFocus) return surface.FocusRing(option.rect, kControlRadius, base);
    const bool hovered = IsEnabled(option) && (option.state & QStyle::State_MouseOver);
    const QRgb edge = !IsEnabled(option) ? kControl : hovered ? kMarkEdge : kFieldEdge;
    surface.Edge(option.rect, kControlRadius, QColor(edge));
}

QRect Mirrored(const QStyleOption& option, const QRect& rect) {
    return QStyle::visualRect(option.direction, option.rect, rect);
}

// The half of a spin box's arrow column that is touched, as an own ground.
void PaintSpinHalf(QPainter& painter, const QStyleOptionSpinBox& option, const QRect& half,
                   QStyle::SubControl control, QAbstractSpinBox::StepEnabledFlag step,
                   const char16_t* arrow) {
    QStyleOptionSpinBox part = option;
    const bool possible = option.stepEnabled & step;
    const bool touched = option.activeSubControls == control;
    part.state.setFlag(QStyle::State_Enabled, possible && IsEnabled(option));
    part.state.setFlag(QStyle::State_MouseOver, touched && (option.state & QStyle::State_MouseOver));
    part.state.setFlag(QStyle::State_Sunken, touched && (option.state & QStyle::State_Sunken));
    Surface(painter).Fill(half, kTickRadius, GroundOf(part, option.palette.color(QPalette::Button)));
    PaintArrow(painter, half, arrow, part);
}

} // namespace

void PaintArrow(QPainter& painter, const QRect& rect, const char16_t* name, const QStyleOption& option) {
    const QRgb ink = !IsEnabled(option)                       ? kTextOff
                     : option.state & QStyle::State_MouseOver ? kTextStrong
                                                              : kTextQuiet;
    const QRectF place(
        QPointF(rect.x() + (rect.width() - kIcon) / 2.0, rect.y() + (rect.height() - kIcon) / 2.0),
        QSizeF(kIcon, kIcon));
    PaintFitted(painter, IconDrawing(name), place, QColor(ink));
}

void PaintField(QPainter& painter, const QStyleOption& option) {
    const QColor base = option.palette.color(QPalette::Base);
    const bool dull = !IsEnabled(option) || (option.state & QStyle::State_ReadOnly);
    Surface surface(painter);
    surface.Fill(option.rect, kControlRadius, dull ? QColor(Unavailable(base.rgb())) : base);
    PaintFieldEdge(surface, option);
}

QRect ComboArrow(const QStyleOptionComboBox& option) {
    const QRect box = option.rect;
    return Mirrored(option,
                    {box.right() + 1 - kArrowWidth - kSpaceSmall / 2, box.y(), kArrowWidth, box.height()});
}

QRect ComboText(const QStyleOptionComboBox& option) {
    const QRect box = option.rect;
    const int inset = option.editable ? kFieldInset : kSpace;
    return Mirrored(option, {box.x() + inset, box.y() + 2,
                             box.width() - inset - kArrowWidth - kSpaceSmall / 2, box.height() - 4});
}

void PaintComboBox(QPainter& painter, const QStyleOptionComboBox& option) {
    if (option.editable) {
        PaintField(painter, option);
    } else {
        QStyleOption plain = option;
        plain.state.setFlag(QStyle::State_On, false); // an open list is no switched-on button
        const QColor ground = GroundOf(plain, option.palette.color(QPalette::Button));
        Surface surface(painter);
        surface.Fill(option.rect, kControlRadius, ground);
        if (ShowsFocus(option)) surface.FocusRing(option.rect, kControlRadius, ground);
    }
    PaintArrow(painter, ComboArrow(option), u"spin-down", option);
}

QRect SpinArrowUp(const QStyleOptionSpinBox& option) {
    const QRect box = option.rect.adjusted(2, 2, -2, -2);
    const int width = option.frame ? kArrowWidth - 4 : box.width();
    return Mirrored(option, {box.right() + 1 - width, box.y(), width, box.height() / 2});
}

QRect SpinArrowDown(const QStyleOptionSpinBox& option) {
    const QRect up = SpinArrowUp(option);
    const int bottom = option.rect.bottom() - 1;
    return {up.x(), bottom - up.height(), up.width(), up.height()};
}

QRect SpinText(const QStyleOptionSpinBox& option) {
    return Mirrored(option, option.rect.adjusted(kFieldInset, 2, -kArrowWidth, -2));
}

void PaintSpinBox(QPainter& painter, const QStyleOptionSpinBox& option) {
    if (option.frame) PaintField(painter, option);
    PaintSpinHalf(painter, option, SpinArrowUp(option), QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled,
                  u"spin-up");
    PaintSpinHalf(painter, option, SpinArrowDown(option), QStyle::SC_SpinBoxDown,
                  QAbstractSpinBox::StepDownEnabled, u"spin-down");
}

void PaintRow(QPainter& painter, const QStyleOptionViewItem& option) {
    if (option.backgroundBrush.style() != Qt::NoBrush) painter.fillRect(option.rect, option.backgroundBrush);
    const bool selected = option.state & QStyle::State_Selected;
    const bool hovered = IsEnabled(option) && (option.state & QStyle::State_MouseOver);
    if (!selected && !hovered) return;
    const QColor base = option.palette.color(QPalette::Base);
    const QColor ground = selected ? option.palette.color(QPalette::Highlight) : QColor(Hovered(base.rgb()));
    Surface(painter).Fill(option.rect, kTickRadius, ground);
}

} // namespace mirelle::look
