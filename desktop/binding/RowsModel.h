// The rows of a list control as a model for a view, read where they stand: a list of 100,000 names is never
// copied.
#pragma once

#include <QAbstractListModel>

namespace mirelle {

class ListRows;

class RowsModel : public QAbstractListModel {
    Q_OBJECT

public:
    // `rows` live at least as long as the model; they may change between two calls of Follow, and rows that
    // are gone then read as empty.
    RowsModel(const ListRows& rows, QObject* parent);

    // Brings the views in step with the rows, if these changed.
    void Follow();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const ListRows& rows_;
    int shown_;
    unsigned changes_;
};

} // namespace mirelle
