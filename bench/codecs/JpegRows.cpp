// A save as JPEG, from the surface to the last byte in memory, beside libjpeg-turbo: the same picture,
// quality and sampling, accurate integer transform, tables made for the picture. The file has to be the plain
// encoder's, byte for byte.
#include "bench/peers/LibJpegTurbo.h"
#include "bench/Photograph.h"
#include "bench/Rows.h"
#include "codecs/cJPEG.h"
#include "tests/codecs/reference/PlainJpeg.h"
#include "tests/support/MemoryFileSystem.h"

#include <algorithm>
#include <memory>

namespace mirelle::bench {
namespace {

struct Aims {
    double allCores = 1;
    double oneCore = 1;
};

struct Settings {
    int quality;
    int luma; // how often luma is sampled where colour is sampled once, each way
};

// A file in memory that is there already, as the peer's is.
class FileInMemory : public test::MemoryFileSystem {
public:
    void WriteFile(const std::string&, std::span<const std::uint8_t> bytes) override {
        size_ = bytes.size();
        std::ranges::copy(bytes, memory_.begin());
    }
    std::span<const std::uint8_t> Written() const { return {memory_.data(), size_}; }
    std::span<std::uint8_t> Memory() { return memory_; }

private:
    std::vector<std::uint8_t> memory_ = std::vector<std::uint8_t>(kPictureBytes);
    std::size_t size_ = 0;
};

template <class Encoder>
void Sample(Encoder& encoder, const Settings& settings) {
    encoder.SetSamplingFrequencies(settings.luma, settings.luma, 1, 1, 1, 1);
    encoder.Quality(settings.quality);
    encoder.SampleHDC(Photograph(), kWidth, kHeight);
}

void Save(const Settings& settings, FileInMemory& file) {
    cJPEG jpeg;
    Sample(jpeg, settings);
    jpeg.SaveFileJPG("C:\\Mirelle\\a.jpg", file);
}

std::string FaultOf(const Settings& settings, const FileInMemory& file) {
    reference::PlainJpeg plain;
    Sample(plain, settings);
    return std::ranges::equal(file.Written(), plain.File()) ? "" : "not the plain encoder's bytes";
}

Contest Prepare(const Settings& settings, double aim) {
    const auto ours = std::make_shared<FileInMemory>();
    const auto theirs = std::make_shared<FileInMemory>();
    Photograph();
    return {.ours = Timed([=] { Save(settings, *ours); }),
            .peers = {{"libjpeg-turbo", aim, Timed([=] {
                           EncodeByLibJpeg(Photograph(), settings.quality, settings.luma, theirs->Memory());
                       })}},
            .fault = [=] { return FaultOf(settings, *ours); }};
}

} // namespace

Group JpegRows() {
    Group group{"cJPEG, sample and save", {}};
    const auto add = [&](const std::string& name, const Settings& settings, const Aims& aims) {
        AddOnAllCoresAndOne(group, name, [=](Cores cores) {
            return Prepare(settings, cores == Cores::All ? aims.allCores : aims.oneCore);
        });
    };
    add("quality 100, 2,2,1,1,1,1", {100, 2}, {0.4, 0.7}); // what the program saves with
    add("quality 100, 1,1,1,1,1,1", {100, 1}, {});
    add("quality 75, 2,2,1,1,1,1", {75, 2}, {});
    return group;
}

} // namespace mirelle::bench
