// The exchange: a line in, an answer out.
#pragma once

#include "tests/driver/Session.h"

#include <optional>
#include <string>
#include <string_view>

namespace mirelle::driver {

class Conversation {
public:
    explicit Conversation(Session& session) : session_(session) {}

    // The answer to a line, without its end; nothing for a line that gets none.
    std::optional<std::string> Answer(std::string_view line);
    // Whether the program or the session has ended: no further line is to be answered.
    bool Ended() const { return ended_; }
    // 2 after a usage error, else 0.
    int ExitStatus() const { return session_.usageErrors > 0 ? 2 : 0; }

private:
    Session& session_;
    bool ended_ = false;
};

} // namespace mirelle::driver
