#include "desktop/binding/RowsModel.h"

#include "forms/ListRows.h"

namespace mirelle {
namespace {

int Count(const ListRows& rows) {
    return static_cast<int>(rows.Read().size());
}

} // namespace

RowsModel::RowsModel(const ListRows& rows, QObject* parent)
    : QAbstractListModel(parent), rows_(rows), shown_(Count(rows)), changes_(rows.Changes()) {}

void RowsModel::Follow() {
    if (changes_ == rows_.Changes()) return;
    beginResetModel();
    shown_ = Count(rows_);
    changes_ = rows_.Changes();
    endResetModel();
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shown_;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (role != Qt::DisplayRole || row >= rows_.Read().size()) return {};
    return QString::fromStdString(rows_.Read()[row]);
}

} // namespace mirelle
