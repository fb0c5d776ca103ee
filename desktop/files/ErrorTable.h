// Which run-time error an error of the system is: each system has its own table.
#pragma once

#include "desktop/files/HostErrors.h"
#include "forms/RunTimeError.h"

#include <span>
#include <string>

namespace mirelle::host {

struct ErrorRow {
    int systemError;
    ErrorNumber reading;
    ErrorNumber writing;
    ErrorNumber deleting;
};

// Raises what the table says, 57 for what it does not hold. A file that is missing while it is read is 53
// only where its folder is there, else 76.
[[noreturn]] void RaiseByTable(std::span<const ErrorRow> table, int systemError, Action action,
                               const std::string& folder);

} // namespace mirelle::host
