// Commands for the clock, and for what is to happen later.
#include "forms/Controls.h"
#include "forms/RunTimeError.h"
#include "tests/driver/Commands.h"
#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"
#include "tests/driver/LineReader.h"
#include "tests/driver/Values.h"

#include <array>
#include <iostream>
#include <limits>

namespace mirelle::driver {
namespace {

constexpr int kSecondsPerDay = 86400;

std::string Time(Session& session, Words words) {
    const double seconds = NumberIn(words[0]);
    if (seconds < 0 || seconds >= kSecondsPerDay) throw UsageError("a day has the seconds 0 to 86400");
    session.desktop.time.seconds = seconds;
    return {};
}

std::string Advance(Session& session, Words words) {
    const int milliseconds = WholeNumberIn(words[0], 0, std::numeric_limits<int>::max());
    session.desktop.time.Advance(milliseconds);
    for (Form* form : session.Forms()) {
        for (Control* control : form->Controls()) {
            if (auto* timer = dynamic_cast<TimerControl*>(control)) timer->Advance(milliseconds);
        }
    }
    return {};
}

// An event that something pumps: what goes wrong in it is its own affair and not that of the handler that
// pumps, so it is told on the error stream. The end of the program or the session is everybody's.
void RunAsEvent(Session& session, const std::vector<std::string>& words) {
    try {
        Run(session, words);
    } catch (const UsageError& error) {
        ++session.usageErrors;
        std::cerr << "during: error usage " << error.what() << std::endl;
    } catch (const CommandError& error) {
        std::cerr << "during: error " << error.what() << std::endl;
    } catch (const RunTimeError& error) {
        std::cerr << "during: error run-time " << static_cast<int>(error.Number()) << ' '
                  << error.Description() << std::endl;
    }
}

std::string During(Session& session, Words words) {
    const bool inPass = words[0] == "pass";
    if (!inPass && words[0] != "pause") throw UsageError("during pause|pass N COMMAND");
    const std::size_t wordsAhead = inPass ? 2 : 1;
    if (words.size() <= wordsAhead) throw UsageError("during pause|pass N COMMAND");
    const Words command = words.subspan(wordsAhead);
    CommandOf(command); // is it one?
    auto event = [&session, kept = std::vector<std::string>(command.begin(), command.end())] {
        RunAsEvent(session, kept);
    };
    auto& time = session.desktop.time;
    if (inPass) {
        time.duringPass.emplace(WholeNumberIn(words[1], 1, std::numeric_limits<int>::max()),
                                std::move(event));
    } else {
        time.duringPause.push_back(std::move(event));
    }
    return {};
}

constexpr std::array kCommands = {
    Command{"time", "SECONDS", 1, 1, Time},
    Command{"advance", "MILLISECONDS", 1, 1, Advance},
    Command{"during", "pause|pass N COMMAND", 2, kAnyNumber, During},
};

} // namespace

std::span<const Command> TimeCommands() {
    return kCommands;
}

} // namespace mirelle::driver
