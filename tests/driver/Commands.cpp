#include "tests/driver/Commands.h"

#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"

namespace mirelle::driver {

const Command& CommandOf(Words words) {
    using Table = std::span<const Command> (*)();
    for (const Table table :
         {ControlCommands, WindowCommands, DesktopCommands, PictureCommands, TimeCommands}) {
        for (const Command& command : table()) {
            if (words.front() != command.name) continue;
            const std::size_t count = words.size() - 1;
            if (count < command.least || count > command.most) {
                throw UsageError(std::string(command.name) + " " + command.arguments);
            }
            return command;
        }
    }
    throw UsageError("there is no command " + JsonString(words.front()));
}

std::string Run(Session& session, Words words) {
    return CommandOf(words).run(session, words.subspan(1));
}

} // namespace mirelle::driver
