// A screen grab of 3840 x 2160 pixels on its way: pasted into all holders, cropped, dragged over.
//
//     cmake --preset bench && cmake --build build/bench --target canvas_bench
//     QT_QPA_PLATFORM=offscreen build/bench/bench/canvas/canvas_bench
//
// Paste: `two_copies_ms` is the time of two copies of the picture's bytes, taken in turns with it, `ratio`
// the paste over that (aim: at most 1); `memory_ratio` is what the program's memory grew by at the first
// paste, in pictures of 33 MB (aim: at most 3, with the one that the clipboard itself holds). MouseMove: one
// move while a crop is drawn; the same figure for every size of the picture shows that nothing grows with it.
#include "bench/Measuring.h"
#include "desktop/system/QtClipboard.h"
#include "tests/support/TestPictures.h"
#include "tests/support/TestProgram.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <fstream>
#include <memory>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include <unistd.h>

namespace mirelle::test {
namespace {

constexpr int kWidth = 3840;
constexpr int kHeight = 2160;
constexpr std::size_t kPictureBytes = std::size_t{4} * kWidth * kHeight;
constexpr int kLeftButton = 1;

double Median(std::vector<double> times) {
    std::ranges::sort(times);
    return times.empty() ? 0 : times[times.size() / 2];
}

// What of the program's memory lies in the machine's, in bytes.
std::size_t MemoryInUse() {
    std::ifstream table("/proc/self/statm");
    std::size_t size = 0;
    std::size_t resident = 0;
    table >> size >> resident;
    return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

// The program over the machine's clipboard.
struct Program {
    MemoryFileSystem files;
    ScriptedLoader loader;
    ScriptedEncoders encoders;
    ScriptedDesktop desktop;
    QtClipboard clipboard;
    Sampler sampler{PortsWithClipboard()};
    FrmPicX& form = sampler.form;

    Program() {
        form.Load();
        form.Activate();
    }

private:
    Ports PortsWithClipboard() {
        const Ports scripted = desktop.PortsOver(files, loader, encoders);
        return {clipboard,         scripted.dialogs, scripted.files,    scripted.loader,
                scripted.encoders, scripted.pump,    scripted.keyboard, scripted.console,
                scripted.viewer,   scripted.screen,  scripted.process};
    }
};

// As another program puts a grab there: rows of 32-bit pixels.
QImage Grab() {
    static const Bitmap pixels = SmoothBitmap(kWidth, kHeight);
    return QImage(reinterpret_cast<const uchar*>(pixels.Pixels().data()), kWidth, kHeight,
                  QImage::Format_RGB32)
        .copy();
}

// Two copies of a picture's bytes into memory that is new, as a paste's is.
void CopyTwice(const QImage& grab) {
    for (int copy = 0; copy < 2; ++copy) {
        const auto bytes = std::make_unique_for_overwrite<std::uint8_t[]>(kPictureBytes);
        std::memcpy(bytes.get(), grab.constBits(), kPictureBytes);
        benchmark::DoNotOptimize(bytes.get());
    }
}

// What the program's memory grows by, and the clipboard's own picture, in pictures.
double MemoryOfAPaste(Program& program, const QImage& grab) {
    QGuiApplication::clipboard()->setImage(grab);
    const std::size_t before = MemoryInUse();
    program.form.Command5.UserClick();
    const std::size_t after = std::max(before, MemoryInUse());
    return static_cast<double>(after - before + kPictureBytes) / static_cast<double>(kPictureBytes);
}

void Paste(benchmark::State& state) {
    const QImage grab = Grab();
    Program program;
    FrmPicX& form = program.form;
    // Once, before anything was given back: later pastes find memory that the program holds already.
    static const double memoryRatio = MemoryOfAPaste(program, grab);
    std::vector<double> pastes;
    std::vector<double> copies;
    for (auto _ : state) {
        QGuiApplication::clipboard()->setImage(grab); // a new grab: nothing is kept of the one before
        copies.push_back(Seconds([&] { CopyTwice(grab); }));
        pastes.push_back(Seconds([&] { form.Command5.UserClick(); }));
        state.SetIterationTime(pastes.back());
    }
    state.counters["two_copies_ms"] = Median(copies) * 1e3;
    state.counters["ratio"] = Median(pastes) / Median(copies);
    state.counters["memory_ratio"] = memoryRatio;
    for (const PictureBox* box :
         {&form.PicImage, &form.Picture1, &form.Picture3, &form.Pic1, &form.picSmall}) {
        const Picture& pasted = box->Picture();
        const bool whole = pasted.Width() == kWidth && pasted.Height() == kHeight &&
                           std::memcmp(pasted.Pixels().Pixels().data(),
                                       form.Picture().Pixels().Pixels().data(), kPictureBytes) == 0;
        if (!whole) state.SkipWithError("a holder lacks the grab");
    }
}
BENCHMARK(Paste)->Unit(benchmark::kMillisecond)->UseManualTime();

void Crop(benchmark::State& state) {
    Program program;
    FrmPicX& form = program.form;
    const Picture canvas{SmoothBitmap(kWidth, kHeight)};
    form.PicImage.Picture = canvas;
    for (auto _ : state) {
        form.MouseDown({kLeftButton, 0, 100, 200});
        form.MouseMove({kLeftButton, 0, 1100, 1200});
        form.MouseUp({kLeftButton, 0, 1100, 1200});
    }
    const Picture cropped = form.picSmall.Image();
    if (cropped.Width() != 1000 || cropped.Pixels().At(999, 999) != canvas.Pixels().At(1099, 1199))
        state.SkipWithError("the crop is not the area");
}
BENCHMARK(Crop)->Unit(benchmark::kMicrosecond);

void MouseMove(benchmark::State& state) {
    Program program;
    FrmPicX& form = program.form;
    const auto width = static_cast<int>(state.range(0));
    form.PicImage.Picture = Picture(Bitmap(width, width * kHeight / kWidth));
    form.Picture = form.PicImage.Picture;
    form.MouseDown({kLeftButton, 0, 10, 10});
    float x = 0;
    for (auto _ : state) {
        x = x < 1000 ? x + 1 : 20;
        form.MouseMove({kLeftButton, 0, x, 300});
    }
    if (form.Shape1.Height != 290) state.SkipWithError("the rectangle did not follow");
}
BENCHMARK(MouseMove)->Unit(benchmark::kNanosecond)->ArgName("width")->Arg(480)->Arg(kWidth);

} // namespace
} // namespace mirelle::test

int main(int count, char** arguments) {
    const QGuiApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
