// make_picture_seeds FOLDER: makes the seeds for the picture loader, a file or several of each kind.
#include "tests/desktop/ports/GifMaker.h"
#include "tests/desktop/ports/JpegMaker.h"
#include "tests/fuzz/Seeds.h"
#include "tests/support/TestDib.h"
#include "tests/support/TestPictures.h"

#include <cstdio>

using namespace mirelle;
using namespace mirelle::test;

namespace {

void MakeJpegs(const Seeds& seeds) {
    const Bitmap bitmap = SmoothBitmap(19, 13);
    using Colours = JpegMaking::Colours;
    seeds.Add("three.jpg", MakeJpeg(bitmap));
    seeds.Add("grey.jpg", MakeJpeg(bitmap, {.colours = Colours::Grey}));
    seeds.Add("four.jpg", MakeJpeg(bitmap, {.colours = Colours::Four}));
    seeds.Add("four_unmarked.jpg", MakeJpeg(bitmap, {.colours = Colours::FourUnmarked}));
    seeds.Add("progressive.jpg", MakeJpeg(bitmap, {.isProgressive = true}));
    // Tall enough for a thread that passes over rows.
    const Bitmap tall = SmoothBitmap(19, 211);
    seeds.Add("tall.jpg", MakeJpeg(tall, {.quality = 40}));
    seeds.Add("restarts.jpg", MakeJpeg(tall, {.quality = 20, .lumaDown = 1, .rowsBetweenRestarts = 1}));
    seeds.Add("exif.jpg",
              MakeJpeg(bitmap, {.exif = {'E', 'x', 'i', 'f', 0, 0, 'I', 'I', 42, 0, 8, 0, 0, 0}}));
}

void MakeGifs(const Seeds& seeds) {
    const std::vector<Color> palette = {0, 0xFF, 0xFF00, 0xFF0000};
    const std::vector<int> numbers = {0, 1, 2, 3, 3, 2, 1, 0};
    seeds.Add("plain.gif", MakeGif({4, 2, 0, palette, {{0, 0, 4, 2, numbers}}}));
    seeds.Add("clear.gif", MakeGif({4, 2, 0, palette, {{0, 0, 4, 2, numbers, false, 2}}}));
    seeds.Add("interlaced.gif",
              MakeGif({5, 4, 1, palette, {{1, 1, 2, 4, numbers, true}, {0, 0, 4, 2, numbers}}}));
}

void MakeBitmaps(const Seeds& seeds) {
    const std::vector<std::uint32_t> palette = {0x000000, 0xFF0000, 0x00FF00, 0x0000FF};
    const FileBytes pixels = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    const TestDib triples{.width = 2, .height = 2, .bitCount = 24, .pixels = pixels};
    seeds.Add("24.bmp", BmpBytes(triples));
    seeds.Add("bare.dib", DibBytes(triples));
    seeds.Add("8.bmp", BmpBytes({.width = 4,
                                 .height = 4,
                                 .bitCount = 8,
                                 .coloursUsed = 4,
                                 .palette = palette,
                                 .pixels = pixels}));
    seeds.Add("32.bmp", BmpBytes({.width = 2, .height = 2, .bitCount = 32, .pixels = pixels}));
    seeds.Add("runs.bmp", BmpBytes({.width = 4,
                                    .height = 2,
                                    .bitCount = 8,
                                    .compression = 1,
                                    .coloursUsed = 4,
                                    .palette = palette,
                                    .pixels = {4, 1, 0, 0, 0, 4, 1, 2, 3, 0, 0, 1}}));
    const FileBytes picture = DibBytes({.width = 2, .height = 4, .bitCount = 24, .pixels = FileBytes(32, 7)});
    seeds.Add("icon.ico", IconBytes({{2, 2, 24, picture}, {2, 2, 24, picture}}));
    seeds.Add("pointer.cur", IconBytes({{2, 2, 24, picture}}, 2));
    const FileBytes png = {0x89, 'P',  'N',  'G',  '\r', '\n', 0x1A, '\n', 0,   0,    0,    13,   'I',  'H',
                           'D',  'R',  0,    0,    0,    1,    0,    0,    0,   1,    8,    2,    0,    0,
                           0,    0x90, 0x77, 0x53, 0xDE, 0,    0,    0,    12,  'I',  'D',  'A',  'T',  0x78,
                           0x9C, 0x63, 0xF8, 0xCF, 0xC0, 0x00, 0x00, 3,    1,   1,    0,    0xC9, 0xFE, 0x92,
                           0xEF, 0,    0,    0,    0,    'I',  'E',  'N',  'D', 0xAE, 0x42, 0x60, 0x82};
    seeds.Add("png.ico", IconBytes({{1, 1, 32, png}}));
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fputs("make_picture_seeds FOLDER\n", stderr);
        return 2;
    }
    const Seeds seeds(arguments[1], "pictures");
    MakeJpegs(seeds);
    MakeGifs(seeds);
    MakeBitmaps(seeds);
}
