// Any pixels, sizes, factors, qualities and comments for the JPEG encoder: a file that a foreign decoder
// reads without a warning, in the right size, or one of the errors that the encoder tells of.
//
// The first bytes are the settings, all others the pixels, again and again until there are enough.
#include "codecs/cJPEG.h"
#include "tests/codecs/JpegFile.h"
#include "tests/codecs/LibJpeg.h"
#include "tests/support/MemoryFileSystem.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

using mirelle::Bitmap;
using mirelle::cJPEG;
using mirelle::ErrorNumber;
using Factors = std::array<int, 6>;

constexpr const char* kFile = "C:\\Mirelle\\a.jpg";
constexpr int kGreatestSide = 80;

// Factors whose planes have the block counts that a decoder expects at every size.
constexpr std::array kDecodable = {Factors{1, 1, 0, 0, 0, 0}, Factors{1, 1, 1, 1, 1, 1},
                                   Factors{2, 1, 1, 1, 1, 1}, Factors{1, 2, 1, 1, 1, 1},
                                   Factors{2, 2, 1, 1, 1, 1}, Factors{4, 1, 1, 1, 1, 1},
                                   Factors{4, 4, 1, 1, 1, 1}, Factors{3, 1, 1, 1, 1, 1},
                                   Factors{2, 2, 2, 1, 1, 2}, Factors{4, 2, 2, 2, 1, 1}};

class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : bytes_(data, size) {}

    std::uint8_t Next() {
        if (bytes_.empty()) return 0;
        const std::uint8_t byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte;
    }
    int Below(int count) { return (Next() | (Next() << 8)) % count; }
    std::uint8_t Rest(std::size_t index) const { return bytes_.empty() ? 0 : bytes_[index % bytes_.size()]; }

private:
    std::span<const std::uint8_t> bytes_;
};

struct Settings {
    int width = 0, height = 0, quality = 0, x = 0, y = 0;
    bool fromSurface = false;
    bool isDecodable = false;
    Factors factors{};
    std::string comment;
};

Settings SettingsFrom(Bytes& bytes) {
    Settings settings;
    settings.width = bytes.Below(kGreatestSide + 1);
    settings.height = bytes.Below(kGreatestSide + 1);
    settings.quality = bytes.Below(120) - 10;
    const int kind = bytes.Next();
    settings.fromSurface = kind % 2 == 1;
    settings.isDecodable = kind / 2 % 4 != 0;
    if (settings.isDecodable) {
        settings.factors = kDecodable[static_cast<std::size_t>(bytes.Below(int{kDecodable.size()}))];
    } else {
        for (int& factor : settings.factors)
            factor = bytes.Below(7) - 1;
    }
    settings.x = kind >= 128 ? bytes.Below(30) - 10 : 0;
    settings.y = kind >= 128 ? bytes.Below(30) - 10 : 0;
    const int length = kind / 8 % 4 == 3 ? 65520 + bytes.Below(20) : bytes.Below(20);
    settings.comment.assign(static_cast<std::size_t>(length), static_cast<char>('a' + bytes.Next() % 26));
    return settings;
}

int Sample(cJPEG& jpeg, const Settings& settings, const Bytes& bytes) {
    const auto width = static_cast<std::size_t>(settings.width);
    const auto height = static_cast<std::size_t>(settings.height);
    if (!settings.fromSurface) {
        std::vector<std::uint8_t> data(width * height * 3);
        for (std::size_t i = 0; i < data.size(); ++i)
            data[i] = bytes.Rest(i);
        return jpeg.SampleDATA(data, settings.width, settings.height, settings.width, settings.height,
                               settings.x, settings.y);
    }
    Bitmap surface(settings.width, settings.height);
    std::size_t i = 0;
    for (mirelle::Pixel& pixel : surface.Pixels()) {
        pixel = {bytes.Rest(i), bytes.Rest(i + 1), bytes.Rest(i + 2), bytes.Rest(i + 3)};
        i += 4;
    }
    return jpeg.SampleHDC(surface, settings.width, settings.height, settings.x, settings.y);
}

bool IsTold(ErrorNumber number) {
    constexpr std::array kTold = {ErrorNumber::CodecFailure, ErrorNumber::Overflow,
                                  ErrorNumber::SubscriptOutOfRange};
    return std::ranges::find(kTold, number) != kTold.end();
}

// Whether each table for AC coefficients has the symbol 0, the end of a block: ITU T.81, B.2.4.2.
bool BlocksHaveEnds(const std::vector<std::uint8_t>& file) {
    constexpr int kDht = 0xC4;
    constexpr std::size_t kCounts = 17; // class and place, then how many codes of each length
    for (const mirelle::test::Segment& segment : mirelle::test::SegmentsOf(file, kDht)) {
        const auto& content = segment.content;
        for (std::size_t at = 0; at + kCounts <= content.size();) {
            const bool isAc = content[at] >> 4 == 1;
            std::size_t symbols = 0;
            for (std::size_t i = 1; i < kCounts; ++i)
                symbols += content[at + i];
            const auto first = content.begin() + static_cast<std::ptrdiff_t>(at + kCounts);
            const auto last = first + static_cast<std::ptrdiff_t>(symbols);
            if (isAc && std::find(first, last, 0) == last) return false;
            at += kCounts + symbols;
        }
    }
    return true;
}

void CheckDecoding(const std::vector<std::uint8_t>& file, const Settings& settings) {
    const mirelle::test::Decoded decoded = mirelle::test::DecodeJpeg(file);
    const bool isClean = decoded.warnings == 0 || !BlocksHaveEnds(file);
    const bool isRight = isClean && decoded.picture.Width() == settings.width &&
                         decoded.picture.Height() == settings.height && decoded.comment == settings.comment;
    if (!isRight) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes bytes(data, size);
    const Settings settings = SettingsFrom(bytes);
    mirelle::test::MemoryFileSystem files;
    try {
        cJPEG jpeg;
        const auto& f = settings.factors;
        jpeg.SetSamplingFrequencies(f[0], f[1], f[2], f[3], f[4], f[5]);
        jpeg.Quality(settings.quality);
        jpeg.Comment(settings.comment);
        if (Sample(jpeg, settings, bytes) != cJPEG::kDone) return 0;
        if (jpeg.SaveFileJPG(kFile, files) != cJPEG::kDone) std::abort();
    } catch (const mirelle::RunTimeError& error) {
        if (!IsTold(error.Number())) std::abort();
        return 0;
    }
    if (settings.isDecodable) CheckDecoding(files.ReadFile(kFile), settings);
    return 0;
}
