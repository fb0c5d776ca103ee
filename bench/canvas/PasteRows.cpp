// From a picture on the clipboard to the painted canvas, with all holders filled, beside one copy of the
// picture into new memory and one paint of it in a window of the same size.
#include "bench/canvas/Grab.h"
#include "bench/Rows.h"
#include "bench/window/PlainPaint.h"
#include "bench/window/WindowedProgram.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include <QClipboard>
#include <QGuiApplication>

namespace mirelle::bench {
namespace {

constexpr double kTimesCopyAndPaint = 1.5;

struct Scene {
    QImage grab = MakeGrab();
    WindowedProgram program;
    PlainPaint plain{grab};
};

// A new grab each time: nothing is kept of the one before.
double Paste(Scene& scene) {
    QGuiApplication::clipboard()->setImage(scene.grab);
    PaintAll();
    return Seconds([&] {
        scene.program.form.Command5.UserClick();
        PaintAll();
    });
}

void CopyAndPaint(Scene& scene) {
    const auto bytes = std::make_unique_for_overwrite<std::uint8_t[]>(kPictureBytes);
    std::memcpy(bytes.get(), scene.grab.constBits(), kPictureBytes);
    Keep(bytes.get());
    scene.plain.Paint();
}

// The fourth bytes of a picture count for nothing.
bool SameColours(const Bitmap& a, const Bitmap& b) {
    return std::ranges::equal(a.Pixels(), b.Pixels(), {}, ColorOf, ColorOf);
}

std::string FaultOf(const FrmPicX& form) {
    for (const PictureBox* box :
         {&form.PicImage, &form.Picture1, &form.Picture3, &form.Pic1, &form.picSmall}) {
        if (!SameColours(box->Picture().Pixels(), Photograph())) return "a holder lacks the grab";
    }
    return "";
}

Contest Prepare() {
    const auto scene = std::make_shared<Scene>();
    return {.ours = [scene] { return Paste(*scene); },
            .peers = {{"one copy of the picture and one paint", kTimesCopyAndPaint,
                       Timed([scene] { CopyAndPaint(*scene); })}},
            .fault = [scene] { return FaultOf(scene->program.form); }};
}

} // namespace

Group PasteRows() {
    return {"Paste", {{"from clipboard data to the painted canvas", Prepare, Cores::All}}};
}

} // namespace mirelle::bench
