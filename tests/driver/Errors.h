// What a command answers when it does not do its work.
#pragma once

#include <stdexcept>
#include <string>

namespace mirelle::driver {

// The command is not known, or names something that is not there: "error usage TEXT", and the driver's exit
// status will tell of it.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The command is well formed, but could not be done: "error TEXT".
class CommandError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The user of the driver ends the session. Like the program's own end it goes through every handler.
struct SessionEnded {};

} // namespace mirelle::driver
