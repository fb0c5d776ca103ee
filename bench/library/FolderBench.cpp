// Opening a folder of 100,000 files, beside plainly reading and sorting its names, and clicks on rows in it.
#include "desktop/files/NativeFileSystem.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestProgram.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>

namespace mirelle::test {
namespace {

constexpr int kFiles = 100000;
constexpr int kFewFiles = 10;

// A program's folder with a library of one large category and a small one, made once for all runs.
class LargeLibrary {
public:
    LargeLibrary() {
        Fill("Support/Materials/Art", kFiles);
        Fill("Support/Materials/Metal", kFewFiles);
    }
    const std::string& AppFolder() const { return folder_.Path(); }
    std::string Art() const { return folder_ / "Support/Materials/Art"; }
    std::string Metal() const { return folder_ / "Support/Materials/Metal"; }

private:
    void Fill(const std::string& folder, int files) {
        folder_.MakeFolder(folder);
        for (int step = 0; step < files; ++step) {
            const std::string number = std::to_string(kFiles + static_cast<long>(step) * 7919 % files);
            folder_.MakeFile(folder + "/Material sample_" + number.substr(1) + ".jpg", "");
        }
    }
    TemporaryFolder folder_;
};

LargeLibrary& Large() {
    static LargeLibrary library;
    return library;
}

// Every file is one small picture.
class SmallPictures : public PictureLoader {
public:
    Picture LoadPicture(const std::string&) override { return picture_; }

private:
    Picture picture_{Bitmap(64, 64)};
};

struct Program {
    NativeFileSystem files{Large().AppFolder(), Large().AppFolder() + "/komp.txt"};
    SmallPictures loader;
    ScriptedEncoders encoders;
    ScriptedDesktop desktop;
    Sampler sampler{desktop.PortsOver(files, loader, encoders)};
    FrmPicX& form = sampler.form;

    Program() {
        form.Load();
        form.Activate();
    }
    std::string Root() const { return files.AppPath() + "/Support/Materials"; }
};

void ReadAndSortNames(benchmark::State& state) {
    const std::string folder = Large().Art(); // made here, not in the time that counts
    for (auto _ : state) {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.is_regular_file()) names.push_back(entry.path().filename().string());
        }
        std::ranges::sort(names);
        benchmark::DoNotOptimize(names.data());
        if (names.size() != kFiles) state.SkipWithError("files are missing");
    }
}
BENCHMARK(ReadAndSortNames)->Unit(benchmark::kMillisecond);

void OpenFolder(benchmark::State& state) {
    Program program;
    program.form.ckGetCount.Value = state.range(0) != 0 ? kChecked : kUnchecked;
    program.form.ckAppend.Value = state.range(1) != 0 ? kChecked : kUnchecked;
    for (auto _ : state) {
        program.form.Dir5.SetPath(Large().Art());
        if (program.form.File5.ListCount() != kFiles) state.SkipWithError("files are missing");
        state.PauseTiming();
        program.form.List2.Clear();
        program.form.Dir5.SetPath(program.Root());
        state.ResumeTiming();
    }
}
BENCHMARK(OpenFolder)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"counting", "gathering"})
    ->Args({0, 0})
    ->Args({1, 0})
    ->Args({1, 1});

// The same click in a folder of few files and in one of many.
void ClickRow(benchmark::State& state) {
    Program program;
    program.form.Dir5.SetPath(state.range(0) == kFiles ? Large().Art() : Large().Metal());
    const int rows = program.form.File5.ListCount();
    if (rows != state.range(0)) state.SkipWithError("files are missing");
    int row = 0;
    for (auto _ : state) {
        program.form.File5.SetListIndex(row);
        row = (row + 7919) % rows;
    }
}
BENCHMARK(ClickRow)->Unit(benchmark::kMicrosecond)->ArgName("files")->Arg(kFewFiles)->Arg(kFiles);

} // namespace
} // namespace mirelle::test
