#include "bench/library/LargeFolder.h"

#include "bench/peers/LibJpegTurbo.h"
#include "bench/Photograph.h"

#include <chrono>
#include <filesystem>

namespace mirelle::bench {
namespace {

// Names that share one file as far as the file system lets them.
constexpr int kNamesOfAFile = 10000;

void Fill(const test::TemporaryFolder& home, const std::string& folder, int files) {
    const std::vector<std::uint8_t> picture = SmallPictureFile();
    home.MakeFolder(folder);
    std::string shared;
    for (int step = 0; step < files; ++step) {
        const std::string number = std::to_string(kFiles + static_cast<long>(step) * 7919 % files).substr(1);
        const std::string name = folder + "/Material sample_" + number + ".jpg";
        if (step % kNamesOfAFile == 0)
            shared = home.MakeFile(name, std::span(picture));
        else
            std::filesystem::create_hard_link(shared, home / name);
    }
    // It was filled some time ago, as libraries are.
    const auto now = std::filesystem::last_write_time(home / folder);
    std::filesystem::last_write_time(home / folder, now - std::chrono::hours(1));
}

} // namespace

std::vector<std::uint8_t> SmallPictureFile() {
    return PlainJpegFile(MakePhotograph(64, 64), 75);
}

void FillArt(const test::TemporaryFolder& home) {
    Fill(home, "Support/Materials/Art", kFiles);
}

void FillMetal(const test::TemporaryFolder& home) {
    Fill(home, "Support/Materials/Metal", kFewFiles);
}

} // namespace mirelle::bench
