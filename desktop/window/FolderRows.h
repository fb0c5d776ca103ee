// Draws the rows of a folder list: each row a step further in than the folder it lies in, with a folder
// before it.
#pragma once

#include <QStyledItemDelegate>

namespace mirelle {

class FolderRows : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace mirelle
