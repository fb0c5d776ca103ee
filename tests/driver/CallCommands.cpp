// Runs routines that no control reaches, as their callers would.
#include "bridge/UncalledSends.h"
#include "tests/driver/Commands.h"
#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"

#include <array>

namespace mirelle::driver {
namespace {

std::string ApplyMaterial(Session& session, Words) {
    ApplyMaterialToLayerFaces(session.MainForm());
    return {};
}

std::string SendAfterSave(Session& session, Words) {
    SendMaterialAfterSave(session.MainForm());
    return {};
}

// A routine is run like a command: its name, then its arguments.
constexpr std::array kRoutines = {
    Command{"ApplyMaterialToLayerFaces", "", 0, 0, ApplyMaterial},
    Command{"SendMaterialAfterSave", "", 0, 0, SendAfterSave},
};

std::string Call(Session& session, Words words) {
    return CommandIn(kRoutines, words).run(session, words.subspan(1));
}

constexpr std::array kCommands = {
    Command{"call", "ROUTINE ARGUMENTS", 1, kAnyNumber, Call},
};

} // namespace

std::span<const Command> CallCommands() {
    return kCommands;
}

} // namespace mirelle::driver
