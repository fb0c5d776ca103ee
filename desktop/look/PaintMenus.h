// Menus, tool tips and the heads of tables.
#pragma once

class QPainter;
class QSize;
class QStyleOption;
class QStyleOptionHeader;
class QStyleOptionMenuItem;

namespace mirelle::look {

void PaintMenuPanel(QPainter& painter, const QStyleOption& option);
void PaintMenuItem(QPainter& painter, const QStyleOptionMenuItem& option);
// `contents` is the size of the item's text.
QSize MenuItemSize(const QStyleOptionMenuItem& option, const QSize& contents);

void PaintTip(QPainter& painter, const QStyleOption& option);
void PaintHeaderGround(QPainter& painter, const QStyleOptionHeader& option);
void PaintSortArrow(QPainter& painter, const QStyleOptionHeader& option);

} // namespace mirelle::look
