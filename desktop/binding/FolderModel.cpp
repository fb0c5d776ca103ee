#include "desktop/binding/FolderModel.h"

#include "forms/FileLists.h"

namespace mirelle {

std::vector<std::string> PathsDownTo(const std::string& path, char separator) {
    std::vector<std::string> paths;
    for (std::size_t at = path.find(separator); at != std::string::npos; at = path.find(separator, at + 1)) {
        // The root keeps its separator, as "/" and "C:\" do.
        const std::size_t length = paths.empty() ? at + 1 : at;
        if (length < path.size()) paths.push_back(path.substr(0, length));
    }
    paths.push_back(path);
    return paths;
}

std::string FolderName(const std::string& path, char separator) {
    const std::size_t last = path.rfind(separator);
    return last == std::string::npos || last + 1 == path.size() ? path : path.substr(last + 1);
}

FolderModel::FolderModel(const DirListBox& folders, char separator, QObject* parent)
    : QAbstractListModel(parent), folders_(folders), separator_(separator) {
    Reload();
}

void FolderModel::Reload() {
    beginResetModel();
    above_.clear();
    for (const std::string& path : PathsDownTo(folders_.Path(), separator_))
        above_.push_back({FolderName(path, separator_), path});
    present_ = static_cast<int>(above_.size()) - 1;
    inside_ = folders_.ListCount();
    endResetModel();
}

std::string FolderModel::PathOf(int row) const {
    if (row < 0) return {};
    if (row <= present_) return above_[static_cast<std::size_t>(row)].path;
    return folders_.List(ListRow(row));
}

int FolderModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : present_ + 1 + inside_;
}

QVariant FolderModel::data(const QModelIndex& index, int role) const {
    const int row = index.row();
    if (role == kDepthRole) return row <= present_ ? row : present_ + 1;
    if (role == kOpenRole) return row <= present_;
    if (role == Qt::ToolTipRole) return QString::fromStdString(PathOf(row));
    if (role != Qt::DisplayRole) return {};
    return QString::fromStdString(FolderName(PathOf(row), separator_));
}

} // namespace mirelle
