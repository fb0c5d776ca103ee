// How long the image gradient takes, beside one plain blend of the same two pictures over each other.
//
// Gradient and blend take turns, and the shortest time of each counts: `ratio` is the one divided by the
// other, `target` what it should not pass. The bands are drawn on a 3840 x 2160 picture; a step of the slider
// is all that a user waits for, to the new canvas picture, and `per_second` is how many of them there can be.
// Results are compared with the bands drawn one by one.
//
//     cmake --preset bench && cmake --build build/bench --target gradient_bench &&
//     build/bench/bench/gradient/gradient_bench
#include "bench/Measuring.h"
#include "forms/AlphaBlend.h"
#include "gradient/GradientBands.h"
#include "tests/support/TestProgram.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <string>

namespace mirelle::test {
namespace {

constexpr double kOnTwoPictures = 2.5;
constexpr std::uint8_t kSomeAlpha = 100;

struct Size {
    int width = 0;
    int height = 0;
};
constexpr Size kLarge{3840, 2160};
constexpr Size kScreen{1920, 1080};

void BlendWhole(Bitmap& destination, const Bitmap& source) {
    const PixelArea all{0, 0, destination.Width(), destination.Height()};
    AlphaBlend(destination, all, source, all, kSomeAlpha);
}

struct Shortest {
    double gradient = std::numeric_limits<double>::max();
    double blend = std::numeric_limits<double>::max();
};

void Tell(benchmark::State& state, const Shortest& shortest) {
    state.counters["least_ms"] = shortest.gradient * 1e3;
    state.counters["blend_ms"] = shortest.blend * 1e3;
    state.counters["ratio"] = shortest.gradient / shortest.blend;
}

// The bands alone, drawn over a picture in memory, from one slider place to another along the axis.
void DrawTheBands(benchmark::State& state, int direction, double from, double to) {
    const Bitmap source = Noise(kLarge.width, kLarge.height, 1);
    Bitmap destination = Noise(kLarge.width, kLarge.height, 2);
    const double length = direction == kHorizontal ? kLarge.width : kLarge.height;
    const BandSizes sizes{double{kLarge.width}, double{kLarge.height}, double{kLarge.width},
                          double{kLarge.height}};
    Bitmap drawn = destination;
    DrawBands(drawn, source, BandsOf(sizes, from * length, to * length, direction));
    Bitmap oneByOne = destination;
    DrawBandsPlain(oneByOne, source, BandsOf(sizes, from * length, to * length, direction));
    if (drawn != oneByOne) state.SkipWithError("the result differs from that of the bands one by one");

    Shortest shortest;
    for (auto _ : state) {
        shortest.blend = std::min(shortest.blend, Seconds([&] { BlendWhole(destination, source); }));
        const double seconds = Seconds(
            [&] { DrawBands(destination, source, BandsOf(sizes, from * length, to * length, direction)); });
        shortest.gradient = std::min(shortest.gradient, seconds);
        state.SetIterationTime(seconds);
    }
    Tell(state, shortest);
    state.counters["target"] = kOnTwoPictures;
}

// A step of the start slider, in the program.
void MoveTheSlider(benchmark::State& state, int direction, Size size) {
    TestProgram program;
    FrmPicX& form = program.form;
    for (PictureBox* box : {&form.pic1grad, &form.pic2grad, &form.picDest}) {
        box->Width = static_cast<float>(size.width) * kTwipsPerPixel;
        box->Height = static_cast<float>(size.height) * kTwipsPerPixel;
    }
    form.pic1grad.Picture = Picture(Noise(size.width, size.height, 3));
    form.pic2grad.Picture = Picture(Noise(size.width, size.height, 4));
    form.cmdGradV(direction).UserClick();
    const Bitmap source = Noise(size.width, size.height, 5);
    Bitmap destination = Noise(size.width, size.height, 6);
    Shortest shortest;
    std::int16_t place = 0;
    for (auto _ : state) {
        shortest.blend = std::min(shortest.blend, Seconds([&] { BlendWhole(destination, source); }));
        place = static_cast<std::int16_t>((place + 1) % (size.height / 2));
        const double seconds = Seconds([&] { form.hStart.UserDrag(place); });
        shortest.gradient = std::min(shortest.gradient, seconds);
        state.SetIterationTime(seconds);
    }
    Tell(state, shortest);
    state.counters["per_second"] = 1 / shortest.gradient;
}

void RegisterAll() {
    using Run = std::function<void(benchmark::State&)>;
    const auto add = [](const std::string& name, const Run& run) {
        benchmark::RegisterBenchmark(name.c_str(), run)->UseManualTime()->Unit(benchmark::kMillisecond);
    };
    for (const int direction : {kHorizontal, kVertical}) {
        const std::string way = direction == kHorizontal ? "across" : "down";
        for (const auto& [from, to] : {std::pair{0.0, 1.0}, std::pair{0.25, 0.75}, std::pair{0.5, 0.55}}) {
            add("bands " + way + " from " + std::to_string(from).substr(0, 4) + " to " +
                    std::to_string(to).substr(0, 4),
                [direction, from, to](benchmark::State& state) { DrawTheBands(state, direction, from, to); });
        }
        for (const Size& size : {kLarge, kScreen}) {
            add("slider " + way + " on " + std::to_string(size.width) + " x " + std::to_string(size.height),
                [direction, size](benchmark::State& state) { MoveTheSlider(state, direction, size); });
        }
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
