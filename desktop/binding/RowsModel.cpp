#include "desktop/binding/RowsModel.h"

namespace mirelle {

RowsModel::RowsModel(const Rows& rows, QObject* parent)
    : QAbstractListModel(parent), rows_(rows), shown_(static_cast<int>(rows.size())) {}

void RowsModel::Reload() {
    beginResetModel();
    shown_ = static_cast<int>(rows_.size());
    endResetModel();
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shown_;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (role != Qt::DisplayRole || row >= rows_.size()) return {};
    return QString::fromStdString(rows_[row]);
}

} // namespace mirelle
