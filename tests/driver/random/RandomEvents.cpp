// random_events [--sessions N] [--events N] [--seed S] [--replay FILE]
//
// A user who does anything in any order, over real files. Each session is a process of its own on a disk of
// its own: it does its events, holds the invariants after each, looks for memory that grows, and ends as a
// program ends. A session that crashes, hangs or breaks an invariant ends the run with status 1; its seed is
// told and the shortest list of events that was found to fail in the same way. --replay does the events of a
// file, one a line.
#include "tests/driver/random/RandomWorld.h"
#include "tests/driver/random/ShortestList.h"
#include "tests/support/HeapInUse.h"
#include "tests/support/TemporaryFolder.h"

#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace mirelle::driver;
using mirelle::test::HeapInUse;
using mirelle::test::TemporaryFolder;

constexpr int kFailedStatus = 3;
constexpr unsigned kHangSeconds = 120; // for one event
constexpr int kShorteningAttempts = 400;
// Recorded commands are forgotten so often, and memory is measured then.
constexpr int kEventsBetweenLooks = 250;
// What the holders' pictures and the lists may differ by from one look to another.
constexpr std::size_t kGrowthAllowed = std::size_t{24} << 20;
// A crop of a typed size may be large, and goes with the next; what leaked is still there so many looks
// later.
constexpr int kLooksInARow = 4;

struct Options {
    int sessions = 4;
    int events = 500;
    unsigned seed = 1;
    std::string replay;
};

// Runs in the child process. What it does is in the log before it is done.
class ChildSession {
public:
    ChildSession(const std::string& folder) : world_(folder + "/disk"), log_(folder + "/events") {}

    // What went wrong, as the parent will compare it; nothing where all is well.
    std::optional<std::string> Random(unsigned seed, int events) {
        RandomUser user(seed, world_.Reach());
        for (int i = 0; i < events; ++i) {
            if (auto failure = Do(user.Next(world_.Form()))) return failure;
            if (i % kEventsBetweenLooks == kEventsBetweenLooks - 1)
                if (auto failure = LookAtMemory()) return failure;
        }
        return LookAtFiles();
    }
    std::optional<std::string> List(const EventList& events) {
        for (const std::string& event : events)
            if (auto failure = Do(event)) return failure;
        return LookAtFiles();
    }

private:
    std::optional<std::string> Do(const std::string& event) {
        log_ << event << std::endl;
        ::alarm(kHangSeconds);
        return world_.Do(event);
    }
    std::optional<std::string> LookAtFiles() const {
        const auto stray = world_.StrayFile();
        return stray ? std::optional("touched outside of the library: " + *stray) : std::nullopt;
    }
    // Compared with the most of the first looks: by then every holder was used.
    std::optional<std::string> LookAtMemory() {
        world_.Forget();
        const std::size_t inUse = HeapInUse();
        if (++looks_ <= 3) {
            atFirst_ = std::max(atFirst_, inUse);
        } else {
            aboveInARow_ = inUse > atFirst_ + kGrowthAllowed ? aboveInARow_ + 1 : 0;
        }
        if (aboveInARow_ == kLooksInARow) return "memory grows";
        return {};
    }

    RandomWorld world_;
    std::ofstream log_;
    int looks_ = 0;
    std::size_t atFirst_ = 0;
    int aboveInARow_ = 0;
};

struct Outcome {
    std::string failure; // empty where all is well
    EventList events;    // what was done
};

EventList LinesOf(const std::string& path) {
    EventList lines;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

std::string FailureOf(int status, const std::string& folder) {
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        return signal == SIGALRM ? "an event does not end" : std::string("signal ") + ::strsignal(signal);
    }
    if (WEXITSTATUS(status) == 0) return {};
    if (WEXITSTATUS(status) != kFailedStatus) return "exit status " + std::to_string(WEXITSTATUS(status));
    const EventList told = LinesOf(folder + "/failure");
    return told.empty() ? "no reason told" : told.front();
}

// Does a session in a process of its own; `work` gives what went wrong. Afterwards the file beside its disk
// is what it was.
template <class Work>
Outcome InChild(const Work& work) {
    const TemporaryFolder folder;
    std::filesystem::create_directories(folder / "disk");
    folder.MakeFile("outside", "not to be touched");
    std::cout.flush();
    const pid_t child = ::fork();
    if (child == 0) {
        std::optional<std::string> failure;
        {
            ChildSession session(folder.Path());
            failure = work(session);
        }
        if (failure) std::ofstream(folder / "failure") << *failure << '\n';
        std::exit(failure ? kFailedStatus : 0); // leaks are looked for here
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child) throw std::runtime_error("no process");
    Outcome outcome{FailureOf(status, folder.Path()), LinesOf(folder / "events")};
    if (outcome.failure.empty() && folder.ContentOf("outside") != "not to be touched")
        outcome.failure = "a file outside of the disk was touched";
    return outcome;
}

void Tell(const Outcome& outcome) {
    std::cout << "fails: " << outcome.failure << "\nLooking for the shortest list of events ..." << std::endl;
    const auto fails = [&](const EventList& events) {
        return InChild([&](ChildSession& session) { return session.List(events); }).failure ==
               outcome.failure;
    };
    const EventList shortest = ShortestFailing(outcome.events, fails, kShorteningAttempts);
    std::cout << (fails(shortest) ? "These events fail in the same way:\n"
                                  : "Done again they do not fail; all events of the session:\n");
    for (const std::string& event : shortest)
        std::cout << "    " << event << '\n';
}

template <class Number>
bool Read(const char* text, Number& number) {
    const char* const end = text + std::strlen(text);
    const auto result = std::from_chars(text, end, number);
    return result.ec == std::errc() && result.ptr == end && number >= 0;
}

bool Read(int count, char** arguments, Options& options) {
    for (int i = 1; i < count; i += 2) {
        if (i + 1 == count) return false;
        const std::string name = arguments[i];
        const char* const value = arguments[i + 1];
        const bool known = name == "--sessions" ? Read(value, options.sessions)
                           : name == "--events" ? Read(value, options.events)
                           : name == "--seed"   ? Read(value, options.seed)
                                                : name == "--replay";
        if (!known) return false;
        if (name == "--replay") options.replay = value;
    }
    return true;
}

int Replay(const std::string& path) {
    const EventList events = LinesOf(path);
    const Outcome outcome = InChild([&](ChildSession& session) { return session.List(events); });
    std::cout << (outcome.failure.empty() ? "all is well" : "fails: " + outcome.failure) << " after "
              << outcome.events.size() << " events\n";
    return outcome.failure.empty() ? 0 : 1;
}

} // namespace

int main(int count, char** arguments) {
    Options options;
    if (!Read(count, arguments, options)) {
        std::cerr << "random_events [--sessions N] [--events N] [--seed S] [--replay FILE]\n";
        return 2;
    }
    if (!options.replay.empty()) return Replay(options.replay);
    for (int i = 0; i < options.sessions; ++i) {
        const unsigned seed = options.seed + static_cast<unsigned>(i);
        const Outcome outcome =
            InChild([&](ChildSession& session) { return session.Random(seed, options.events); });
        if (outcome.failure.empty()) continue;
        std::cout << "seed " << seed << ", event " << outcome.events.size() << ' ';
        Tell(outcome);
        return 1;
    }
    std::cout << options.sessions << " sessions of " << options.events << " events, seeds " << options.seed
              << " and on: all is well\n";
}
