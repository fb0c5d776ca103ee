// Which run-time error a failed call of the system is.
#pragma once

#include <string>

namespace mirelle::host {

enum class Action { Read, Write, Delete };

// Raises the run-time error for the value that a system call left in errno while it did `action` to `path`.
[[noreturn]] void RaiseSystemError(int systemError, Action action, const std::string& path);

} // namespace mirelle::host
