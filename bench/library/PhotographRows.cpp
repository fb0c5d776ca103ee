// A click on a JPEG file of 24 megapixels, which fills every holder and paints the canvas, beside one plain
// decoding of the file. Both decode into memory in the same state: that of the first click is fresh from the
// system, that of every later one the program has kept, and so has its peer.
#include "bench/peers/LibJpegTurbo.h"
#include "bench/Photograph.h"
#include "bench/Rows.h"
#include "bench/SameColours.h"
#include "bench/Target.h"
#include "bench/window/WindowedProgram.h"
#include "desktop/files/NativeFileSystem.h"

#include <memory>

namespace mirelle::bench {
namespace {

constexpr int kFileWidth = 6000;
constexpr int kFileHeight = 4000;
constexpr std::size_t kFileBytes = std::size_t{4} * kFileWidth * kFileHeight;
constexpr int kQuality = 90;
constexpr double kTimesTheDecoding = 1.15;
// The first fills the empty holders, the second is decoded while they hold the first; from then on the
// program has a block of memory to spare.
constexpr int kClicksBeforeALaterOne = 2;

struct Scene : WindowedProgram {
    explicit Scene(Memory state) : memory(state), target(kFileBytes, state) {
        Home().MakeFile("Support/Materials/photograph.jpg",
                        PlainJpegFile(MakePhotograph(kFileWidth, kFileHeight), kQuality));
        form.File5.Refresh();
        PaintAll();
    }
    std::string File() const { return Library() + "/photograph.jpg"; }

    Memory memory;
    Target target;
};

void ClickAndPaint(Scene& scene) {
    scene.form.File5.SetListIndex(0);
    PaintAll();
}

double Click(Scene& scene) {
    if (scene.memory == Memory::Fresh) GiveMemoryBack();
    return Seconds([&] { ClickAndPaint(scene); });
}

// From the file to pixels.
void Decode(const Scene& scene, std::span<std::uint8_t> pixels) {
    const NativeFileSystem files(scene.Home().Path(), {});
    DecodeByLibJpeg(files.ReadFile(scene.File()), pixels);
    Keep(pixels.data());
}

double Decode(Scene& scene) {
    scene.target.Ready();
    return Seconds([&] { Decode(scene, scene.target.Bytes()); });
}

// With the gradient's panel open the canvas shows the gradient.
std::string FaultOf(const Scene& scene, bool gradientShown) {
    Bitmap decoded(kFileWidth, kFileHeight);
    Decode(scene, {reinterpret_cast<std::uint8_t*>(decoded.Pixels().data()), decoded.ByteCount()});
    const FrmPicX& form = scene.form;
    for (const PictureBox* box : {&form.Picture1, &form.Pic1, &form.Picture4, &form.picSmall}) {
        if (!SameColours(box->Picture().Pixels(), decoded)) return "a holder lacks the photograph";
    }
    const bool onCanvas = SameColours(form.PicImage.Picture().Pixels(), decoded) &&
                          SameColours(form.Picture().Pixels(), decoded);
    return onCanvas || gradientShown ? "" : "the canvas lacks the photograph";
}

Contest Prepare(Memory memory, double aim, bool gradientShown = false) {
    const auto scene = std::make_shared<Scene>(memory);
    scene->form.FrameGradFX.Visible = gradientShown;
    PaintAll();
    for (int click = 0; click < kClicksBeforeALaterOne; ++click)
        ClickAndPaint(*scene);
    return {
        .ours = [scene] { return Click(*scene); },
        .peers = {{"one decoding by libjpeg-turbo", aim, [scene] { return Decode(*scene); }}},
        .fault = [=] { return FaultOf(*scene, gradientShown); },
    };
}

} // namespace

Group PhotographRows() {
    Group group{"A click on a JPEG file of 24 megapixels", {}};
    AddOnAllCoresAndOne(group, "the first one, to the painted canvas",
                        [](Cores) { return Prepare(Memory::Fresh, kTimesTheDecoding); });
    AddOnAllCoresAndOne(group, "each later one",
                        [](Cores) { return Prepare(Memory::Kept, kTimesTheDecoding); });
    AddOnAllCoresAndOne(group, "with the gradient's panel open",
                        [](Cores) { return Prepare(Memory::Kept, 0, true); });
    return group;
}

} // namespace mirelle::bench
