// The JPEG encoder by itself: any picture, any settings.
#include "codecs/cJPEG.h"
#include "tests/driver/Commands.h"
#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"
#include "tests/driver/Values.h"

#include <array>

namespace mirelle::driver {
namespace {

constexpr std::size_t kFactors = 6;

// Where the words of the command stand.
constexpr std::size_t kSource = 0, kFile = 1, kOut = 2, kQuality = 3, kFirstFactor = 4;
constexpr std::size_t kComment = kFirstFactor + kFactors;

// The array that SampleDATA takes: blue, green, red, column by column, the lowest row first.
std::vector<std::uint8_t> DataOf(const Bitmap& bitmap) {
    std::vector<std::uint8_t> data;
    data.reserve(bitmap.Pixels().size() * 3);
    for (int y = bitmap.Height() - 1; y >= 0; --y) {
        for (const Pixel& pixel : bitmap.Row(y))
            data.insert(data.end(), {pixel.blue, pixel.green, pixel.red});
    }
    return data;
}

std::string Jpeg(Session& session, Words words) {
    if (words[kSource] != "data" && words[kSource] != "hdc") throw UsageError("jpeg data|hdc FILE OUT ...");
    std::array<int, kFactors> factors{};
    for (std::size_t i = 0; i < kFactors; ++i)
        factors[i] = Read<int>(words[kFirstFactor + i]);
    const Picture picture = session.ReadPicture(words[kFile]);
    const Bitmap& bitmap = picture.Pixels();

    cJPEG encoder;
    encoder.SetSamplingFrequencies(factors[0], factors[1], factors[2], factors[3], factors[4], factors[5]);
    encoder.Quality(Read<int>(words[kQuality]));
    encoder.Comment(words.size() > kComment ? words[kComment] : "");
    const int sampled = words[kSource] == "hdc"
                            ? encoder.SampleHDC(bitmap, bitmap.Width(), bitmap.Height())
                            : encoder.SampleDATA(DataOf(bitmap), bitmap.Width(), bitmap.Height(),
                                                 bitmap.Width(), bitmap.Height(), 0, 0);
    const int saved = encoder.SaveFileJPG(words[kOut], session.Files().Machine());
    return JsonList({JsonNumber(sampled), JsonNumber(saved)});
}

constexpr std::array kCommands = {
    Command{"jpeg", "data|hdc FILE OUT QUALITY H1 V1 H2 V2 H3 V3 [COMMENT]", kComment, kComment + 1, Jpeg},
};

} // namespace

std::span<const Command> JpegCommands() {
    return kCommands;
}

} // namespace mirelle::driver
