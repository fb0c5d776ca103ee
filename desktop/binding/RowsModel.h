// The rows of a list control as a model for a view, read where they stand: a list of 100,000 names is never
// copied.
#pragma once

#include <QAbstractListModel>

#include <functional>
#include <string>
#include <vector>

namespace mirelle {

class RowsModel : public QAbstractListModel {
    Q_OBJECT

public:
    using Rows = std::vector<std::string>;

    // `rows` gives the same vector for as long as the model lives; its contents may change between two calls
    // of Reload, and rows that are gone then read as empty.
    RowsModel(const Rows& rows, QObject* parent);

    // The rows changed.
    void Reload();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const Rows& rows_;
    int shown_ = 0;
};

} // namespace mirelle
