// make_fuzz_seeds FOLDER: makes the seeds for LoadTIFF, the JPEG encoder and the file of prefixes.
#include "tests/fuzz/Seeds.h"
#include "tests/support/TestTiff.h"

#include <cstdio>

using namespace mirelle::test;

namespace {

constexpr std::uint32_t kPackBits = 32773;

TestTiff WithColourMap() {
    TestTiff file{TiffFields(3, 1, 8, 1, 3, 1, 1), {{0, 1, 255}}};
    std::vector<std::uint32_t> map(768);
    for (std::uint32_t i = 0; i < map.size(); ++i)
        map[i] = i * 85;
    file.fields.push_back({320, kShort, map});
    return file;
}

TestTiff OfThreeSamples(std::uint32_t compression) {
    TestTiff file{TiffFields(3, 2, 0, compression, 2, 3, 2),
                  {{1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 14, 15, 16, 17, 18, 19}}};
    file.fields[2].values = {8, 8, 8};
    return file;
}

TestTiff BigEndian() {
    TestTiff file{TiffFields(3, 2, 8, 1, 1, 1, 2), {{1, 2, 3}, {4, 5, 6}}};
    file.isBigEndian = true;
    return file;
}

void MakeTiffs(const Seeds& seeds) {
    seeds.Add("grey", TiffBytes({TiffFields(3, 2, 8, 1, 1, 1, 2), {{0, 7, 255, 100, 101, 102}}}));
    seeds.Add("strips", TiffBytes({TiffFields(2, 3, 8, 1, 1, 1, 1), {{1, 2}, {3, 4}, {5, 6}}}));
    seeds.Add("mono", TiffBytes({TiffFields(9, 2, 1, 1, 0, 1, 2), {{0x80, 0x80, 0x01, 0x00}}}));
    seeds.Add("packbits", TiffBytes({TiffFields(3, 2, 8, kPackBits, 1, 1, 2), {{254, 9, 2, 1, 2, 3}}}));
    seeds.Add("packbits_strips",
              TiffBytes({TiffFields(2, 3, 8, kPackBits, 1, 1, 2), {{253, 5}, {1, 6, 128, 7, 9}}}));
    seeds.Add("packbits_mono",
              TiffBytes({TiffFields(8, 2, 1, kPackBits, 1, 1, 1), {{0, 0xFF}, {255, 0xFF, 128}}}));
    seeds.Add("lzw", TiffBytes({TiffFields(4, 1, 8, 5, 1, 1, 1), {{128, 0, 1}, {2, 3}}}));
    seeds.Add("colours", TiffBytes(WithColourMap()));
    seeds.Add("rgb", TiffBytes(OfThreeSamples(1)));
    seeds.Add("packbits_rgb", TiffBytes(OfThreeSamples(kPackBits)));
    seeds.Add("big_endian", TiffBytes(BigEndian()));
}

// Width, height and quality take two bytes, the kind one; then factors, a place, the comment.
void MakeJpegSettings(const Seeds& seeds) {
    for (std::uint8_t row = 0; row < 10; ++row) {
        FileBytes bytes;
        Put(bytes, 17U + row, 2);
        Put(bytes, 5U + 4U * row, 2);
        Put(bytes, 11U * row, 2);
        Put(bytes, 2U + row % 2U, 1); // decodable factors, either source
        Put(bytes, row, 2);
        Put(bytes, row, 2); // the comment's length
        for (std::uint32_t i = 0; i < 64; ++i)
            Put(bytes, i * i * (row + 1U), 1);
        seeds.Add("row" + std::to_string(row), bytes);
    }
    FileBytes anyFactors = {16, 0, 16, 0, 85, 0, 0};
    for (const std::uint32_t factor : {5U, 4U, 3U, 2U, 4U, 5U})
        Put(anyFactors, factor, 2);
    seeds.Add("any_factors", anyFactors);
    seeds.Add("moved", FileBytes{20, 0, 20, 0, 85, 0, 131, 4, 0, 12, 0, 9, 0, 3, 0, 200, 10, 77, 31, 99});
    seeds.Add("long_comment", FileBytes{8, 0, 8, 0, 85, 0, 27, 1, 0, 13, 0, 1, 2, 3, 4, 5});
}

void MakePrefixFiles(const Seeds& seeds) {
    seeds.AddText("lines", "Art_\r\nFractal_\r\nMetal_\r\n");
    seeds.AddText("other_ends", "Art_\nBio_\rMisc_\r\n\n\r\rColor_");
    seeds.AddText("mark", "\xEF\xBB\xBF"
                          "Art_\r\n");
    seeds.AddText("bytes", std::string("\xFF\xFE A\0B\x80\n", 9));
    seeds.AddText("many", std::string(300, '\n'));
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fputs("make_fuzz_seeds FOLDER\n", stderr);
        return 2;
    }
    MakeTiffs(Seeds(arguments[1], "load_tiff"));
    MakeJpegSettings(Seeds(arguments[1], "jpeg_encoder"));
    MakePrefixFiles(Seeds(arguments[1], "prefix_file"));
}
