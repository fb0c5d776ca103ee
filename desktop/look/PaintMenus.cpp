#include "desktop/look/PaintMenus.h"

#include <algorithm>

#include <QStyle>
#include <QStyleOption>

#include "desktop/look/PaintButtons.h"
#include "desktop/look/PaintFields.h"
#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

// Room for a tick or an icon before the text.
constexpr int kMenuMark = kIcon + kSpace;

void PaintSeparator(QPainter& painter, const QRect& rect) {
    Surface surface(painter);
    const QRectF line(rect.x() + kSpace, rect.center().y(), rect.width() - 2 * kSpace,
                      surface.Grid().Hairline());
    surface.Fill(line, 0, QColor(kFieldEdge));
}

void PaintMark(QPainter& painter, const QStyleOptionMenuItem& option, const QRect& place) {
    const bool enabled = option.state & QStyle::State_Enabled;
    if (option.checkType != QStyleOptionMenuItem::NotCheckable) {
        QStyleOption mark;
        mark.rect = place;
        mark.palette = option.palette;
        mark.state = QStyle::State_None;
        mark.state.setFlag(QStyle::State_Enabled, enabled);
        mark.state.setFlag(QStyle::State_On, option.checked);
        return option.checkType == QStyleOptionMenuItem::Exclusive ? PaintRadio(painter, mark)
                                                                   : PaintTick(painter, mark);
    }
    option.icon.paint(&painter, place, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);
}

} // namespace

void PaintMenuPanel(QPainter& painter, const QStyleOption& option) {
    painter.fillRect(option.rect, QColor(kCard));
    Surface(painter).Edge(option.rect, 0, QColor(kFieldEdge));
}

QSize MenuItemSize(const QStyleOptionMenuItem& option, const QSize& contents) {
    if (option.menuItemType == QStyleOptionMenuItem::Separator) return {contents.width(), kSpace + 1};
    const int shortcut = option.text.contains(u'\t') ? kSpaceLarge * 2 : 0;
    const int mark = option.menuHasCheckableItems || option.maxIconWidth > 0 ? kMenuMark : 0;
    return {contents.width() + mark + shortcut + 2 * kSpaceLarge,
            std::max(contents.height() + kSpace, kControlHeight)};
}

void PaintMenuItem(QPainter& painter, const QStyleOptionMenuItem& option) {
    if (option.menuItemType == QStyleOptionMenuItem::Separator) return PaintSeparator(painter, option.rect);
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool selected = enabled && (option.state & QStyle::State_Selected);
    if (selected) Surface(painter).Fill(option.rect, kTickRadius, QColor(kSelection));

    QRect text = option.rect.adjusted(kSpaceLarge, 0, -kSpaceLarge, 0);
    if (option.menuHasCheckableItems || option.maxIconWidth > 0) {
        PaintMark(painter, option,
                  {text.x() - kSpaceSmall, text.y() + (text.height() - kIcon) / 2, kIcon, kIcon});
        text.setLeft(text.left() + kMenuMark - kSpaceSmall);
    }
    painter.save();
    painter.setFont(option.font);
    painter.setPen(QColor(!enabled ? kTextOff : selected ? kTextStrong : kText));
    const qsizetype tab = option.text.indexOf(u'\t');
    constexpr int flags = Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic;
    painter.drawText(text, flags | Qt::AlignLeft, tab < 0 ? option.text : option.text.left(tab));
    if (tab >= 0) {
        painter.setPen(QColor(!enabled ? kTextOff : selected ? kTextStrong : kTextQuiet));
        painter.drawText(text, flags | Qt::AlignRight, option.text.mid(tab + 1));
    }
    painter.restore();
    if (option.menuItemType != QStyleOptionMenuItem::SubMenu) return;
    const QRect arrow(option.rect.right() - kArrowWidth, option.rect.y(), kArrowWidth, option.rect.height());
    PaintArrow(painter, arrow, u"chevron-right", option);
}

void PaintTip(QPainter& painter, const QStyleOption& option) {
    painter.fillRect(option.rect, option.palette.color(QPalette::ToolTipBase));
    Surface(painter).Edge(option.rect, 0, QColor(kFieldEdge));
}

void PaintHeaderGround(QPainter& painter, const QStyleOptionHeader& option) {
    painter.fillRect(option.rect, GroundOf(option, QColor(kCard)));
    Surface surface(painter);
    const double line = surface.Grid().Hairline();
    surface.Fill(QRectF(option.rect.x(), option.rect.bottom() + 1 - line, option.rect.width(), line), 0,
                 QColor(kFieldEdge));
}

void PaintSortArrow(QPainter& painter, const QStyleOptionHeader& option) {
    if (option.sortIndicator == QStyleOptionHeader::None) return;
    const bool up = option.sortIndicator == QStyleOptionHeader::SortUp;
    PaintArrow(painter, option.rect, up ? u"spin-up" : u"spin-down", option);
}

} // namespace mirelle::look
