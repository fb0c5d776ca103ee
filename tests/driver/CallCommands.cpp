// Runs routines that no control reaches, as their callers would.
#include "bridge/UncalledSends.h"
#include "canvas/OpenAnyImage.h"
#include "codecs/clsTiff.h"
#include "codecs/modGDIPlus.h"
#include "gradient/FormGradient.h"
#include "gradient/HexRGB.h"
#include "tests/driver/Commands.h"
#include "tests/driver/Errors.h"
#include "tests/driver/Holders.h"
#include "tests/driver/Values.h"

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

std::string PaintGradient(Session& session, Words words) {
    const auto color = [words](std::size_t word) { return Read<std::int16_t>(words[word]); };
    const GradientColors colors{color(1), color(2), color(3), color(4), color(5), color(6)};
    const bool across = session.MainForm().ckFormDirection.Value == kChecked;
    WithHolder(session, ReferenceIn(words[0]), [&](auto& holder) {
        if constexpr (requires { holder.Paint(); }) {
            ResumeNext([&] { PaintFormGradient(holder.Paint(), colors, across); });
        } else {
            throw UsageError(JsonString(words[0]) + " has no surface");
        }
    });
    return {};
}

std::string Hex(Session&, Words words) {
    return JsonString(
        HexRGB(Read<std::int16_t>(words[0]), Read<std::int16_t>(words[1]), Read<std::int16_t>(words[2])));
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

std::string LoadTiff(Session& session, Words words) {
    FrmPicX& form = session.MainForm();
    const NamedFiles::Naming naming(session.Files(), words[0]);
    clsTiff tiff(form.picSmall, form.ports.files);
    tiff.LoadTIFF(words[0]);
    return "{\"width\":" + Json(tiff.ImageWidth()) + ",\"height\":" + Json(tiff.ImageHeight()) +
           ",\"bitsPerPixel\":" + Json(tiff.BitsPerPixel()) + ",\"compression\":" + Json(tiff.Compression()) +
           "}";
}

std::string OpenAny(Session& session, Words) {
    OpenAnyImage(session.MainForm());
    return {};
}

std::string OpenByExtension(Session& session, Words words) {
    const NamedFiles::Naming naming(session.Files(), words[0]);
    OpenFileByExtension(session.MainForm(), words[0]);
    return {};
}

std::string SwapLong(Session&, Words words) {
    int number = Read<int>(words[0]);
    clsTiff::SwapBytesLong(number);
    return Json(number);
}

// A routine is run like a command: its name, then its arguments.
constexpr std::array kRoutines = {
    Command{"ApplyMaterialToLayerFaces", "", 0, 0, ApplyMaterial},
    Command{"FormGradient", "HOLDER R1 G1 B1 R2 G2 B2", 7, 7, PaintGradient},
    Command{"HexRGB", "R G B", 3, 3, Hex},
    Command{"LoadTIFF", "FILE", 1, 1, LoadTiff},
    Command{"OpenAnyImage", "", 0, 0, OpenAny},
    Command{"OpenFileByExtension", "FILE", 1, 1, OpenByExtension},
    Command{"SaveImageGDIPlus", "HOLDER FILE", 2, 2, SaveImage},
    Command{"SendMaterialAfterSave", "", 0, 0, SendAfterSave},
    Command{"SwapBytesLong", "N", 1, 1, SwapLong},
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
