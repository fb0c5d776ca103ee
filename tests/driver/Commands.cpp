#include "tests/driver/Commands.h"

#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"

#include <algorithm>
#include <iterator>

namespace mirelle::driver {

std::span<const Command> AllCommands() {
    static const std::vector<Command> kAll = [] {
        std::vector<Command> all;
        for (const auto table : {CallCommands, ControlCommands, DesktopCommands, JpegCommands,
                                 PictureCommands, TimeCommands, WindowCommands})
            std::ranges::copy(table(), std::back_inserter(all));
        return all;
    }();
    return kAll;
}

const Command& CommandIn(std::span<const Command> table, Words words) {
    const auto found = std::ranges::find(table, words.front(), &Command::name);
    if (found == table.end()) throw UsageError("nothing goes by the name " + JsonString(words.front()));
    const std::size_t count = words.size() - 1;
    if (count < found->least || count > found->most) {
        throw UsageError(std::string(found->name) + " " + found->arguments);
    }
    return *found;
}

const Command& CommandOf(Words words) {
    return CommandIn(AllCommands(), words);
}

std::string Run(Session& session, Words words) {
    return CommandOf(words).run(session, words.subspan(1));
}

} // namespace mirelle::driver
