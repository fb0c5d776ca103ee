// A click on a JPEG file of 24 megapixels, which fills every holder and paints the canvas, beside one plain
// decoding of the file.
#include "bench/peers/LibJpegTurbo.h"
#include "bench/Photograph.h"
#include "bench/Rows.h"
#include "bench/window/WindowedProgram.h"
#include "desktop/files/NativeFileSystem.h"

#include <memory>

namespace mirelle::bench {
namespace {

constexpr int kFileWidth = 6000;
constexpr int kFileHeight = 4000;
constexpr int kQuality = 90;
constexpr double kTimesTheDecoding = 1.15;

struct Scene : WindowedProgram {
    Scene() {
        Home().MakeFile("Support/Materials/photograph.jpg",
                        PlainJpegFile(MakePhotograph(kFileWidth, kFileHeight), kQuality));
        form.File5.Refresh();
        PaintAll();
    }
    std::string File() const { return Library() + "/photograph.jpg"; }
};

double Click(Scene& scene) {
    return Seconds([&] {
        scene.form.File5.SetListIndex(0);
        PaintAll();
    });
}

// From the file to pixels in new memory, as the click has them.
void Decode(const Scene& scene) {
    const NativeFileSystem files(scene.Home().Path(), {});
    const std::vector<std::uint8_t> file = files.ReadFile(scene.File());
    const std::size_t bytes = std::size_t{4} * kFileWidth * kFileHeight;
    const auto pixels = std::make_unique_for_overwrite<std::uint8_t[]>(bytes);
    DecodeByLibJpeg(file, {pixels.get(), bytes});
    Keep(pixels.get());
}

Contest Prepare(bool gradientShown) {
    const auto scene = std::make_shared<Scene>();
    scene->form.FrameGradFX.Visible = gradientShown;
    PaintAll();
    return {.ours = [scene] { return Click(*scene); },
            .peers = {{"one decoding by libjpeg-turbo", gradientShown ? 0 : kTimesTheDecoding,
                       Timed([scene] { Decode(*scene); })}},
            .fault =
                [scene] {
                    const bool loaded = scene->form.PicImage.Picture().Width() == kFileWidth;
                    return loaded ? "" : "the picture was not loaded";
                }};
}

} // namespace

Group PhotographRows() {
    return {"A click on a JPEG file of 24 megapixels",
            {{"up to the painted canvas", [] { return Prepare(false); }, Cores::All},
             {"the same with the gradient's panel open", [] { return Prepare(true); }, Cores::All}}};
}

} // namespace mirelle::bench
