// A folder list as a directory list shows it: the folders that lead to the present one, the present one, and
// the folders in it, each a step further in.
#pragma once

#include <QAbstractListModel>

#include <string>
#include <vector>

namespace mirelle {

class DirListBox;

class FolderModel : public QAbstractListModel {
    Q_OBJECT

public:
    // Qt::UserRole gives the depth, Qt::UserRole + 1 whether the row is the present folder or leads to it.
    static constexpr int kDepthRole = Qt::UserRole;
    static constexpr int kOpenRole = Qt::UserRole + 1;

    FolderModel(const DirListBox& folders, char separator, QObject* parent);

    void Reload();

    // The row of the present folder.
    int PresentRow() const { return present_; }
    // The folder list's row of a row, or -1 for the folders above.
    int ListRow(int row) const { return row > present_ ? row - present_ - 1 : -1; }
    std::string PathOf(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    struct Row {
        std::string name;
        std::string path;
    };

    const DirListBox& folders_;
    char separator_;
    std::vector<Row> above_; // from the root to the present folder
    int present_ = 0;
    int inside_ = 0;
};

// The paths from the root down to `path`, which is the last one.
std::vector<std::string> PathsDownTo(const std::string& path, char separator);
// The last piece of a path; a root is its own name.
std::string FolderName(const std::string& path, char separator);

} // namespace mirelle
