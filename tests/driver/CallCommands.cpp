// Runs routines that no control reaches, as their callers would.
#include "bridge/UncalledSends.h"
#include "codecs/modGDIPlus.h"
#include "forms/PictureBox.h"
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

// `call SaveImageGDIPlus HOLDER FILE`, between the start and the stop that its caller puts around it.
std::string SaveImage(Session& session, Words words) {
    const Reference holder = ReferenceIn(words[0]);
    auto* box = dynamic_cast<PictureBox*>(&session.ControlOf(holder));
    if (!box) throw UsageError(JsonString(words[0]) + " is no picture box");
    const Picture picture = box->Picture().IsEmpty() ? box->Image() : box->Picture();
    const NamedFiles::Naming naming(session.Files(), words[1]);
    ImageEncoders& encoders = session.MainForm().ports.encoders;
    const std::int32_t token = StartGDIPlus(encoders);
    const bool saved = SaveImageGDIPlus(encoders, picture, words[1]);
    StopGDIPlus(encoders, token);
    return JsonBool(saved);
}

// A routine is run like a command: its name, then its arguments.
constexpr std::array kRoutines = {
    Command{"ApplyMaterialToLayerFaces", "", 0, 0, ApplyMaterial},
    Command{"SaveImageGDIPlus", "HOLDER FILE", 2, 2, SaveImage},
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
