// Commands for the life of the program and its windows.
#include "tests/driver/Commands.h"
#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"
#include "tests/driver/LineReader.h"

#include <array>
#include <optional>

namespace mirelle::driver {
namespace {

std::string Start(Session& session, Words) {
    session.Start();
    return {};
}

std::string ShowSplash(Session& session, Words) {
    session.ShowSplash();
    return {};
}

std::string Activate(Session& session, Words) {
    session.MainForm().Activate();
    return {};
}

struct StateName {
    const char* name;
    int state;
};
constexpr std::array kStates = {
    StateName{"normal", kWindowNormal},
    StateName{"maximized", kWindowMaximized},
    StateName{"minimized", kWindowMinimized},
};

int StateIn(const std::string& word) {
    for (const StateName& row : kStates) {
        if (word == row.name) return row.state;
    }
    throw UsageError("window normal|maximized|minimized [W H]");
}

// No screen is larger.
constexpr int kGreatestClientSize = 16384;

std::string Window(Session& session, Words words) {
    FrmPicX& form = session.MainForm();
    const int state = StateIn(words[0]);
    if (words.size() == 2) throw UsageError("window normal|maximized|minimized [W H]");
    const ScreenSize size = words.size() == 3 ? ScreenSize{WholeNumberIn(words[1], 0, kGreatestClientSize),
                                                           WholeNumberIn(words[2], 0, kGreatestClientSize)}
                                              : form.ClientSizeIn(state);
    form.UserWindow(state, size);
    return {};
}

std::string Close(Session& session, Words words) {
    Form* const form = session.FindForm(words.empty() ? Reference{"Form"} : ReferenceIn(words[0]));
    if (!form) throw UsageError(JsonString(words[0]) + " is no window");
    form->UserClose();
    return {};
}

std::string Quit(Session&, Words) {
    throw SessionEnded{};
}

constexpr std::array kCommands = {
    Command{"start", "", 0, 0, Start},
    Command{"splash", "", 0, 0, ShowSplash},
    Command{"activate", "", 0, 0, Activate},
    Command{"window", "normal|maximized|minimized [W H]", 1, 3, Window},
    Command{"close", "[FORM]", 0, 1, Close},
    Command{"quit", "", 0, 0, Quit},
};

} // namespace

std::span<const Command> WindowCommands() {
    return kCommands;
}

} // namespace mirelle::driver
