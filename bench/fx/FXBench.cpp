// How long each effect takes on a 3840 x 2160 picture of noise, beside a copy of the same bytes from one
// buffer to another.
//
// Effect and copy take turns, and the shortest time of each counts: `ratio` is the one divided by the other,
// `target` what it should not pass. Each result is compared with the plain form's afterwards, on a strip of
// the picture.
//
//     cmake --preset bench && cmake --build build/bench --target fx_bench && build/bench/bench/fx/fx_bench
#include "bench/Measuring.h"
#include "fx/Contrast.h"
#include "fx/KernelTable.h"
#include "fx/PointFX.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace mirelle {
namespace {

constexpr int kWidth = 3840;
constexpr int kHeight = 2160;
constexpr int kStripHeight = 48;

constexpr double kNearCopy = 1.3;
constexpr double kArithmetic = 2.0;
constexpr double kNeighbours = 3.0;

// An effect from a source to a destination of the same size.
using Effect = std::function<void(const Bitmap& source, Bitmap& destination)>;

struct Case {
    std::string name;
    double target;
    Effect fast;
    Effect plain;
};

void Measure(benchmark::State& state, const Case& measured) {
    static const Bitmap source = Noise(kWidth, kHeight);
    static Bitmap destination(kWidth, kHeight);
    measured.fast(source, destination); // what is made once is made here
    double shortest = std::numeric_limits<double>::max();
    double shortestCopy = std::numeric_limits<double>::max();
    for (auto _ : state) {
        shortestCopy =
            std::min(shortestCopy, Seconds([] {
                         std::memcpy(destination.Pixels().data(), source.Pixels().data(), source.ByteCount());
                     }));
        const double seconds = Seconds([&] { measured.fast(source, destination); });
        shortest = std::min(shortest, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["least_ms"] = shortest * 1e3;
    state.counters["copy_ms"] = shortestCopy * 1e3;
    state.counters["ratio"] = shortest / shortestCopy;
    state.counters["target"] = measured.target;

    const Bitmap strip = Noise(kWidth, kStripHeight);
    Bitmap fast(kWidth, kStripHeight);
    Bitmap plain(kWidth, kStripHeight);
    measured.fast(strip, fast);
    measured.plain(strip, plain);
    if (fast != plain) state.SkipWithError("the result differs from the plain form's");
}

double TargetOf(Kernel kernel) {
    for (const Kernel slow : {&KernelSet::FXGlow, &KernelSet::FXBlur, &KernelSet::FXBlurMore,
                              &KernelSet::FXBlurMoreVert, &KernelSet::FXFlatten, &KernelSet::FXFlatten2,
                              &KernelSet::FXEmboss, &KernelSet::FXSilk, &KernelSet::FXPixelated}) {
        if (kernel == slow) return kNeighbours;
    }
    for (const Kernel middling : {&KernelSet::FXVivid, &KernelSet::FXNegateMore, &KernelSet::FXNeonNegate}) {
        if (kernel == middling) return kArithmetic;
    }
    return kNearCopy;
}

Case KernelCase(const KernelButton& button) {
    const auto effect = [button](const KernelSet& set) {
        return [button, &set](const Bitmap& source, Bitmap& destination) {
            (set.*button.kernel)({source.Pixels(), destination.Pixels(), source.Width(), source.Height()},
                                 button.arguments);
        };
    };
    const std::string_view name = button.toolTip.empty() ? button.control : button.toolTip;
    return {std::string(name), TargetOf(button.kernel), effect(kFastKernels), effect(kPlainKernels)};
}

// The point effects work on frames; only the effect itself is timed, from frames that are filled once.
Case PointCase(const std::string& name, double target, PointEffect effect, const PointArguments& arguments) {
    struct Frames {
        PixelFrame source;
        PixelFrame destination;
    };
    const auto run = [effect, arguments](const PointSet& set) {
        const auto frames = std::make_shared<std::map<int, Frames>>();
        return [effect, arguments, frames, &set](const Bitmap& source, Bitmap& destination) {
            auto [place, isNew] = frames->try_emplace(source.Height());
            Frames& sized = place->second;
            if (isNew) {
                sized.source.SizeFor(source.Width(), source.Height());
                GetBitmapBits(source, sized.source);
                sized.destination.SizeFor(source.Width(), source.Height());
            }
            (set.*effect)(sized.source, sized.destination, arguments);
            if (source.Height() == kStripHeight) SetBitmapBits(destination, sized.destination);
        };
    };
    return {name, target, run(kFastPoints), run(kPlainPoints)};
}

Case ContrastCase(const std::string& percent) {
    const auto effect = [percent](FXForm form) {
        return [percent, form](const Bitmap& source, Bitmap& destination) {
            Contrast(Variant(percent), form).Apply(source.Pixels(), destination.Pixels());
        };
    };
    return {"Contrast " + percent, kArithmetic, effect(FXForm::Fast), effect(FXForm::Plain)};
}

void RegisterAll() {
    std::vector<Case> cases;
    for (const KernelButton& button : kKernelButtons)
        cases.push_back(KernelCase(button));
    cases.push_back(KernelCase(kBlurVertical));
    for (const PointButton& button : kPointButtons) {
        const double target = button.effect == &PointSet::GreyScale ? kArithmetic : kNearCopy;
        cases.push_back(PointCase(std::string(button.toolTip), target, button.effect, button.arguments));
    }
    cases.push_back(PointCase("Sliders", kArithmetic, &PointSet::ShiftColors, {.shifts = {10, -20, 30}}));
    cases.push_back(PointCase("Revert's copy", kNearCopy, &PointSet::Copy, {}));
    for (const char* percent : {"30", "50", "-75", "12.5", "99.6", "640"})
        cases.push_back(ContrastCase(percent));
    for (const Case& measured : cases) {
        benchmark::RegisterBenchmark(measured.name.c_str(),
                                     [measured](benchmark::State& state) { Measure(state, measured); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
}

} // namespace
} // namespace mirelle

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
#if defined(__VERSION__)
    benchmark::AddCustomContext("compiler", __VERSION__);
#endif
    mirelle::RegisterAll();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
