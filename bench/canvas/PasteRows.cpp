// From a picture on the clipboard to the painted canvas, with all holders filled, beside one copy of the
// picture and one paint of it in a window of the same size. Both copy into memory in the same state: that of
// the first paste is fresh from the system, that of every later one the program has kept, and so has its
// peer.
#include "bench/canvas/Grab.h"
#include "bench/Rows.h"
#include "bench/SameColours.h"
#include "bench/Target.h"
#include "bench/window/PlainPaint.h"
#include "bench/window/WindowedProgram.h"

#include <cstring>
#include <memory>

#include <QClipboard>
#include <QGuiApplication>

namespace mirelle::bench {
namespace {

constexpr double kTimesCopyAndPaint = 1.5;

// The first fills the empty holders, the second is copied while they hold the first; from then on the program
// has a block of memory to spare.
constexpr int kPastesBeforeALaterOne = 2;

struct Scene {
    explicit Scene(Memory state) : memory(state), target(kPictureBytes, state) {}

    Memory memory;
    Target target;
    QImage grab = MakeGrab();
    WindowedProgram program;
    PlainPaint plain{grab};
};

// The clipboard tells of a new picture: nothing is kept of the one before.
void GrabAnew(const Scene& scene) {
    QGuiApplication::clipboard()->setImage(scene.grab);
    PaintAll();
}

void PasteAndPaint(Scene& scene) {
    scene.program.form.Command5.UserClick();
    PaintAll();
}

double Paste(Scene& scene) {
    GrabAnew(scene);
    if (scene.memory == Memory::Fresh) GiveMemoryBack();
    return Seconds([&] { PasteAndPaint(scene); });
}

double CopyAndPaint(Scene& scene) {
    scene.target.Ready();
    return Seconds([&] {
        const std::span<std::uint8_t> copy = scene.target.Bytes();
        std::memcpy(copy.data(), scene.grab.constBits(), kPictureBytes);
        Keep(copy.data());
        scene.plain.Paint();
    });
}

std::string FaultOf(const FrmPicX& form) {
    for (const PictureBox* box :
         {&form.PicImage, &form.Picture1, &form.Picture3, &form.Pic1, &form.picSmall}) {
        if (!SameColours(box->Picture().Pixels(), Photograph())) return "a holder lacks the grab";
    }
    return "";
}

Contest Prepare(Memory memory) {
    const auto scene = std::make_shared<Scene>(memory);
    for (int paste = 0; paste < kPastesBeforeALaterOne; ++paste) {
        GrabAnew(*scene);
        PasteAndPaint(*scene);
    }
    return {.ours = [scene] { return Paste(*scene); },
            .peers = {{"one copy of the picture and one paint", kTimesCopyAndPaint,
                       [scene] { return CopyAndPaint(*scene); }}},
            .fault = [scene] { return FaultOf(scene->program.form); }};
}

} // namespace

Group PasteRows() {
    Group group{"From clipboard data to the painted canvas", {}};
    AddOnAllCoresAndOne(group, "the first paste", [](Cores) { return Prepare(Memory::Fresh); });
    AddOnAllCoresAndOne(group, "each later paste", [](Cores) { return Prepare(Memory::Kept); });
    return group;
}

} // namespace mirelle::bench
