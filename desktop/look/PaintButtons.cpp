#include "desktop/look/PaintButtons.h"

#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>

#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

bool IsEnabled(const QStyleOption& option) {
    return option.state & QStyle::State_Enabled;
}

// A square or disc shows the accent once it is on, its palette's base before.
struct MarkColours {
    QColor ground;
    QColor edge;
    QColor mark;
};

MarkColours ColoursOfMark(const QStyleOption& option) {
    const bool on = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const QColor base = option.palette.color(QPalette::Base);
    if (!IsEnabled(option)) return {QColor(Unavailable(base.rgb())), QColor(kControl), QColor(kTextOff)};
    QStyleOption plain = option;
    plain.state &= ~QStyle::State_On; // the accent is not mixed into itself
    if (on) {
        // A pressed accent stays light enough for its dark mark.
        const bool pressed = option.state & QStyle::State_Sunken;
        const QColor ground = pressed ? QColor(kAccentPressed) : GroundOf(plain, QColor(kAccent));
        return {ground, ground, QColor(kTextOnAccent)};
    }
    return {GroundOf(plain, base), QColor(kMarkEdge), {}};
}

QRectF CentredSquare(const QRect& rect, double side) {
    return QRectF(QPointF(rect.x() + (rect.width() - side) / 2.0, rect.y() + (rect.height() - side) / 2.0),
                  QSizeF(side, side));
}

} // namespace

void PaintPushButtonGround(QPainter& painter, const QStyleOptionButton& option) {
    const bool isDefault = option.features & QStyleOptionButton::DefaultButton;
    const bool isFlat = option.features & QStyleOptionButton::Flat;
    constexpr auto touched = QStyle::State_MouseOver | QStyle::State_Sunken | QStyle::State_On;
    const bool shown = !isFlat || (option.state & touched);
    const QColor rest = isDefault ? QColor(kSelection) : option.palette.color(QPalette::Button);
    const QColor ground = shown ? GroundOf(option, rest) : QColor(kCard);
    Surface surface(painter);
    if (shown) surface.Fill(option.rect, kControlRadius, ground);
    if (ShowsFocus(option)) surface.FocusRing(option.rect, kControlRadius, ground);
}

void PaintToolButtonGround(QPainter& painter, const QStyleOptionToolButton& option) {
    constexpr auto touched = QStyle::State_MouseOver | QStyle::State_Sunken | QStyle::State_On;
    const bool raised = option.state & QStyle::State_AutoRaise;
    const bool shown = !raised || (IsEnabled(option) && (option.state & touched));
    const QColor ground = shown ? GroundOf(option, option.palette.color(QPalette::Button)) : QColor(kCard);
    Surface surface(painter);
    if (shown) surface.Fill(option.rect, kControlRadius, ground);
    if (ShowsFocus(option)) surface.FocusRing(option.rect, kControlRadius, ground);
}

void PaintToolButtonIcon(QPainter& painter, const QStyleOptionToolButton& option) {
    const bool hovered = option.state & QStyle::State_MouseOver;
    const QIcon::Mode mode = !IsEnabled(option) ? QIcon::Disabled : hovered ? QIcon::Active : QIcon::Normal;
    const QIcon::State state = option.state & QStyle::State_On ? QIcon::On : QIcon::Off;
    const QRect place = QStyle::alignedRect(option.direction, Qt::AlignCenter, option.iconSize, option.rect);
    option.icon.paint(&painter, place, Qt::AlignCenter, mode, state);
}

void PaintTick(QPainter& painter, const QStyleOption& option) {
    const MarkColours colours = ColoursOfMark(option);
    const QRectF box = CentredSquare(option.rect, kTick);
    Surface surface(painter);
    surface.Fill(box, kTickRadius, colours.ground);
    surface.Edge(box, kTickRadius, colours.edge);

    QPainterPath mark;
    if (option.state & QStyle::State_On) {
        mark.moveTo(4, 8.25);
        mark.lineTo(6.75, 11);
        mark.lineTo(12, 5.25);
    } else if (option.state & QStyle::State_NoChange) {
        mark.moveTo(4.5, 8);
        mark.lineTo(11.5, 8);
    }
    const QPen pen(colours.mark, kTickStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.translate(surface.Grid().Snapped(box.topLeft()));
    painter.strokePath(mark, pen);
}

void PaintRadio(QPainter& painter, const QStyleOption& option) {
    const MarkColours colours = ColoursOfMark(option);
    const QRectF box = CentredSquare(option.rect, kTick);
    Surface surface(painter);
    surface.Fill(box, kTick / 2.0, colours.ground);
    surface.Edge(box, kTick / 2.0, colours.edge);
    if (!(option.state & QStyle::State_On)) return;
    surface.Disc(surface.Grid().Snapped(box).center(), kRadioDot, colours.mark);
}

} // namespace mirelle::look
