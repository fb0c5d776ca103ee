#include "desktop/window/FolderRows.h"

#include "desktop/binding/FolderModel.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Tokens.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace mirelle {
namespace {

constexpr int kStep = 6;
constexpr int kMostSteps = 4; // deep folders stay readable in a narrow list
constexpr int kFolder = 14;

} // namespace

void FolderRows::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QString name = row.text;
    row.text.clear();
    QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, option.widget);

    const bool open = index.data(FolderModel::kOpenRole).toBool();
    const int depth = index.data(FolderModel::kDepthRole).toInt();
    // What lies inside the present folder stands a step further in than it, however deep that is.
    const int steps = open ? std::min(depth, kMostSteps) : std::min(depth - 1, kMostSteps) + 1;
    const int left = option.rect.left() + look::kSpaceSmall + kStep * steps;
    const QRect folder(left, option.rect.center().y() - kFolder / 2 + 1, kFolder, kFolder);
    const QColor ink = QColor::fromRgb(open ? look::kAccentText : look::kTextQuiet);
    look::PaintFitted(*painter, look::IconDrawing(u"folder"), folder, ink);

    const QRect room = option.rect.adjusted(folder.right() + look::kSpaceSmall - option.rect.left(), 0,
                                            -look::kSpaceSmall, 0);
    painter->setPen(QColor::fromRgb(look::kText));
    painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(name, Qt::ElideRight, room.width()));
}

} // namespace mirelle
