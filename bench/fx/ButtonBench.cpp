// How long a click on an effect's button takes in the program, from the click to the new canvas picture,
// beside the kernel alone, on a 3840 x 2160 picture of noise; and how long a pass of a smudger keeps the
// window waiting on a 1920 x 1080 one.
//
// Click and kernel take turns, and the shortest time of each counts: `ratio` is the one divided by the other,
// `target` what it should not pass.
//
//     cmake --preset bench && cmake --build build/bench --target fx_button_bench &&
//     build/bench/bench/fx/fx_button_bench
#include "bench/Measuring.h"
#include "fx/KernelTable.h"
#include "tests/support/TestProgram.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <limits>
#include <string>

namespace mirelle::test {
namespace {

constexpr double kTimesTheKernel = 2;
constexpr double kMostMilliseconds = 50;

void Paste(TestProgram& program, const Picture& picture) {
    program.desktop.clipboard.bitmap = picture;
    program.form.Command5.UserClick();
}

void ClickButton(benchmark::State& state, const KernelButton& button) {
    const Picture picture(Noise(3840, 2160));
    TestProgram program;
    Paste(program, picture);
    Control& control = *program.form.Find(std::string(button.control));
    Bitmap destination(picture.Width(), picture.Height());
    double shortest = std::numeric_limits<double>::max();
    double shortestKernel = std::numeric_limits<double>::max();
    for (auto _ : state) {
        shortestKernel =
            std::min(shortestKernel, Seconds([&] {
                         (ChosenKernels().*button.kernel)({picture.Pixels().Pixels(), destination.Pixels(),
                                                           picture.Width(), picture.Height()},
                                                          button.arguments);
                     }));
        const double seconds = Seconds([&] { control.UserClick(); });
        shortest = std::min(shortest, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["least_ms"] = shortest * 1e3;
    state.counters["kernel_ms"] = shortestKernel * 1e3;
    state.counters["ratio"] = shortest / shortestKernel;
    state.counters["target"] = kTimesTheKernel;
    if (program.form.PicImage.Picture().Pixels() != destination)
        state.SkipWithError("the canvas is not what the kernel gives");
}

// The longest pass: what a user's event waits for at most.
void Smudge(benchmark::State& state, CommandButton FrmPicX::*button) {
    TestProgram program;
    Paste(program, Picture(Noise(1920, 1080)));
    double longest = 0;
    for (auto _ : state) {
        auto last = std::chrono::steady_clock::now();
        for (int pass = 1; pass <= kSmudgerPasses; ++pass) {
            program.desktop.time.duringPass.emplace(pass, [&] {
                const auto now = std::chrono::steady_clock::now();
                longest = std::max(longest, std::chrono::duration<double>(now - last).count());
                last = now;
            });
        }
        (program.form.*button).UserClick();
    }
    state.counters["longest_ms"] = longest * 1e3;
    state.counters["target"] = kMostMilliseconds;
}

void RegisterAll() {
    for (const KernelButton& button : kKernelButtons) {
        benchmark::RegisterBenchmark(std::string(button.toolTip).c_str(),
                                     [&button](benchmark::State& state) { ClickButton(state, button); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
    for (const auto& [name, button] : {std::pair{"Smudger across", &FrmPicX::cmdPointalism},
                                       std::pair{"Smudger down", &FrmPicX::cmdPointalismVert}}) {
        benchmark::RegisterBenchmark(name, [button = button](benchmark::State& state) {
            Smudge(state, button);
        })->Unit(benchmark::kMillisecond);
    }
}

} // namespace
} // namespace mirelle::test

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
#if defined(__VERSION__)
    benchmark::AddCustomContext("compiler", __VERSION__);
#endif
    mirelle::test::RegisterAll();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
