// How long a save as JPEG takes, from the surface to the last byte, and the foreign encoder beside it: the
// same picture, quality and sampling in the same run, accurate integer transform, tables made for the
// picture.
//
//     cmake --preset bench && cmake --build build/bench --target codecs_bench
//     build/bench/bench/codecs/codecs_bench
//
// Columns: `median_ms` is our time, `foreign_ms` the foreign encoder's, `ratio` ours over that (below 1: we
// are faster), `cpu_ratio` the same of the processor's time in all threads, which other work on the machine
// disturbs less; `bytes` and `foreign_bytes` are the sizes of the files. Google Benchmark's own CPU column
// counts both encoders, as far as they run in the first thread. After the timing the file has to be the plain
// encoder's, byte for byte.
#include "codecs/cJPEG.h"
#include "tests/codecs/LibJpeg.h"
#include "tests/codecs/reference/PlainJpeg.h"
#include "tests/support/MemoryFileSystem.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <random>

namespace mirelle {
namespace {

// Like a photograph: waves of many lengths, the shorter the weaker, and a little grain.
Bitmap MakePicture(int width, int height) {
    Bitmap bitmap(width, height);
    std::mt19937 random(1);
    const auto wave = [](double x, double y, double tilt) {
        double sum = 0;
        for (double length = 900, strength = 50; length > 5; length /= 2.3, strength /= 1.8) {
            sum += strength * std::sin((x + tilt * y) / length * 6.28) *
                   std::cos((y - tilt * x) / length * 6.28);
        }
        return sum;
    };
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double grain = static_cast<double>(random() % 256) / 64.0 - 2.0;
            const double light = 128 + wave(x, y, 0.3) + grain;
            const double tint = wave(x + 300, y, -0.7) / 4;
            const auto byte = [](double value) {
                return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0));
            };
            bitmap.At(x, y) = {byte(light - tint), byte(light + tint / 3), byte(light + tint), 255};
        }
    }
    return bitmap;
}

const Bitmap& Picture() {
    static const Bitmap picture = MakePicture(3840, 2160);
    return picture;
}

std::vector<std::uint8_t> Encode(const Bitmap& picture, int quality, int luma) {
    test::MemoryFileSystem files;
    cJPEG jpeg;
    jpeg.SetSamplingFrequencies(luma, luma, 1, 1, 1, 1);
    jpeg.Quality(quality);
    jpeg.SampleHDC(picture, picture.Width(), picture.Height());
    jpeg.SaveFileJPG("C:\\Mirelle\\a.jpg", files);
    return files.ReadFile("C:\\Mirelle\\a.jpg");
}

std::vector<std::uint8_t> EncodePlainly(const Bitmap& picture, int quality, int luma) {
    reference::PlainJpeg plain;
    plain.SetSamplingFrequencies(luma, luma, 1, 1, 1, 1);
    plain.Quality(quality);
    plain.SampleHDC(picture, picture.Width(), picture.Height());
    return plain.File();
}

struct Time {
    std::vector<double> wall;
    std::vector<double> cpu; // of all threads together

    template <class Work>
    void Measure(Work work) {
        const std::clock_t cpuStart = std::clock();
        const auto start = std::chrono::steady_clock::now();
        work();
        wall.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        cpu.push_back(static_cast<double>(std::clock() - cpuStart) / CLOCKS_PER_SEC);
    }
};

double Median(std::vector<double> times) {
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2),
                     times.end());
    return times[times.size() / 2];
}

void SaveJpeg(benchmark::State& state) {
    const Bitmap& picture = Picture();
    const auto quality = static_cast<int>(state.range(0));
    const auto luma = static_cast<int>(state.range(1));
    std::vector<std::uint8_t> file;
    std::vector<std::uint8_t> foreign;
    Time ours;
    Time theirs;
    for (auto unused : state) {
        ours.Measure([&] { file = Encode(picture, quality, luma); });
        theirs.Measure([&] { foreign = test::EncodeJpegForeign(picture, {quality, {luma, luma}}); });
        state.SetIterationTime(ours.wall.back());
    }
    state.counters["median_ms"] = 1000 * Median(ours.wall);
    state.counters["foreign_ms"] = 1000 * Median(theirs.wall);
    state.counters["ratio"] = Median(ours.wall) / Median(theirs.wall);
    state.counters["cpu_ratio"] = Median(ours.cpu) / Median(theirs.cpu);
    state.counters["bytes"] = static_cast<double>(file.size());
    state.counters["foreign_bytes"] = static_cast<double>(foreign.size());
    static std::vector<std::pair<std::pair<int, int>, std::vector<std::uint8_t>>> plainFiles;
    const auto key = std::pair(quality, luma);
    auto known = std::find_if(plainFiles.begin(), plainFiles.end(),
                              [&](const auto& each) { return each.first == key; });
    if (known == plainFiles.end())
        known = plainFiles.insert(known, {key, EncodePlainly(picture, quality, luma)});
    if (file != known->second) state.SkipWithError("not the plain encoder's bytes");
}

BENCHMARK(SaveJpeg)
    ->ArgNames({"quality", "luma"})
    ->Args({100, 2})
    ->Args({100, 1})
    ->Args({75, 2})
    ->Iterations(9)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace mirelle
