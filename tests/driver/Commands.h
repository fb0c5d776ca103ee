// The driver's commands: one table, put together from the subjects' own. A command that lands with its
// subject is one row there.
#pragma once

#include "tests/driver/Session.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace mirelle::driver {

using Words = std::span<const std::string>;

constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

struct Command {
    const char* name;
    const char* arguments; // as a user is told them
    std::size_t least;     // how many words behind the name
    std::size_t most;
    // Runs it and returns the answer's value as JSON, the empty text where there is none.
    std::string (*run)(Session& session, Words arguments);
};

std::span<const Command> CallCommands();
std::span<const Command> ControlCommands();
std::span<const Command> WindowCommands();
std::span<const Command> DesktopCommands();
std::span<const Command> JpegCommands();
std::span<const Command> PictureCommands();
std::span<const Command> TimeCommands();

// All of them in one table.
std::span<const Command> AllCommands();

// The command whose name is the first word. Throws UsageError where there is none, or it does not take so
// many words. CommandIn looks in one table, CommandOf in all.
const Command& CommandIn(std::span<const Command> table, Words words);
const Command& CommandOf(Words words);
// Runs a command. Throws UsageError and CommandError, and lets run-time errors and the program's end through.
std::string Run(Session& session, Words words);

} // namespace mirelle::driver
