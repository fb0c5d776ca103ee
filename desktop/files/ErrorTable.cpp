#include "desktop/files/ErrorTable.h"

#include "desktop/files/HostFiles.h"

#include <algorithm>

namespace mirelle::host {
namespace {

ErrorNumber NumberOf(const ErrorRow& row, Action action) {
    switch (action) {
    case Action::Read:
        return row.reading;
    case Action::Write:
        return row.writing;
    case Action::Delete:
        return row.deleting;
    }
    return ErrorNumber::DeviceIOError;
}

} // namespace

void RaiseByTable(std::span<const ErrorRow> table, int systemError, Action action,
                  const std::string& folder) {
    const auto row = std::ranges::find(table, systemError, &ErrorRow::systemError);
    const ErrorNumber number = row == table.end() ? ErrorNumber::DeviceIOError : NumberOf(*row, action);
    const bool lacksFolder =
        action == Action::Read && number == ErrorNumber::FileNotFound && !IsFolder(folder);
    throw RunTimeError(lacksFolder ? ErrorNumber::PathNotFound : number);
}

} // namespace mirelle::host
