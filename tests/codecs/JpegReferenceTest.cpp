// The encoder gives the bytes of its plain form: for every small size and many sampling factors, for both
// ways in, for positions on and off the surface.
#include "tests/codecs/JpegFile.h"
#include "tests/codecs/reference/PlainJpeg.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>

namespace mirelle {
namespace {

using test::Bytes;

struct Factors {
    int h1, v1, h2, v2, h3, v3;
};

std::ostream& operator<<(std::ostream& out, const Factors& f) {
    return out << f.h1 << 'x' << f.v1 << ' ' << f.h2 << 'x' << f.v2 << ' ' << f.h3 << 'x' << f.v3;
}

void Set(cJPEG& fast, reference::PlainJpeg& plain, const Factors& f, int quality) {
    fast.SetSamplingFrequencies(f.h1, f.v1, f.h2, f.v2, f.h3, f.v3);
    plain.SetSamplingFrequencies(f.h1, f.v1, f.h2, f.v2, f.h3, f.v3);
    fast.Quality(quality);
    plain.Quality(quality);
}

// The file, or the number of the error that took its place.
template <class Write>
Bytes FileOrError(Write write) {
    try {
        return write();
    } catch (const RunTimeError& error) {
        return {static_cast<std::uint8_t>(error.Number())};
    }
}

constexpr Factors kFactors[] = {
    {2, 2, 1, 1, 1, 1}, {1, 1, 1, 1, 1, 1}, {2, 1, 1, 1, 1, 1}, {1, 2, 1, 1, 1, 1}, {4, 1, 1, 1, 1, 1},
    {4, 4, 1, 1, 1, 1}, {1, 1, 0, 0, 0, 0}, {2, 2, 0, 0, 0, 0}, {3, 3, 2, 2, 1, 1}, {1, 1, 2, 2, 2, 2},
    {4, 2, 2, 1, 1, 1}, {3, 1, 2, 1, 1, 1}, {4, 3, 3, 2, 1, 4}, {2, 2, 2, 1, 1, 2}, {1, 4, 1, 3, 1, 2},
    {4, 4, 3, 3, 3, 3}, {2, 1, 2, 2, 2, 2}, {3, 4, 4, 3, 2, 2},
};

class JpegReference : public testing::TestWithParam<Factors> {};

INSTANTIATE_TEST_SUITE_P(Factors, JpegReference, testing::ValuesIn(kFactors));

TEST_P(JpegReference, SurfacesOfEverySmallSizeGiveTheSameFile) {
    const Bitmap surface = test::NoiseBitmap(29, 31, 11);
    for (int width = 1; width <= 40; ++width) {
        for (int height = 1 + width % 3; height <= 40; height += 3) {
            cJPEG fast;
            reference::PlainJpeg plain;
            Set(fast, plain, GetParam(), 60 + width);
            const int x = width % 5 - 2;
            const int y = height % 7 - 3;
            ASSERT_EQ(fast.SampleHDC(surface, width, height, x, y), 0);
            plain.SampleHDC(surface, width, height, x, y);
            ASSERT_EQ(FileOrError([&] { return test::Saved(fast); }),
                      FileOrError([&] { return plain.File(); }))
                << width << " x " << height;
        }
    }
}

TEST_P(JpegReference, ArraysOfEverySmallSizeGiveTheSameFile) {
    std::mt19937 random(5);
    Bytes data(44 * 43 * 3);
    for (std::uint8_t& byte : data)
        byte = static_cast<std::uint8_t>(random());
    for (int width = 1; width <= 40; ++width) {
        for (int height = 1 + width % 3; height <= 40; height += 3) {
            cJPEG fast;
            reference::PlainJpeg plain;
            Set(fast, plain, GetParam(), 25 + width);
            const int x = width % 5;
            const int y = height % 4;
            ASSERT_EQ(FileOrError([&] {
                          fast.SampleDATA(data, 44, 43, width, height, x, y);
                          return test::Saved(fast);
                      }),
                      FileOrError([&] {
                          plain.SampleDATA(data, 44, 43, width, height, x, y);
                          return plain.File();
                      }))
                << width << " x " << height;
        }
    }
}

TEST_P(JpegReference, SmoothPicturesGiveTheSameFileAtEveryQuality) {
    const Bitmap surface = test::SmoothBitmap(67, 45, 17.0);
    for (int quality = 1; quality <= 100; quality += 3) {
        cJPEG fast;
        reference::PlainJpeg plain;
        Set(fast, plain, GetParam(), quality);
        ASSERT_EQ(fast.SampleHDC(surface, 67, 45), 0);
        plain.SampleHDC(surface, 67, 45);
        ASSERT_EQ(test::Saved(fast), plain.File()) << quality;
    }
}

// Black and white at random reach the ends of every range.
TEST_P(JpegReference, ExtremePixelsGiveTheSameFile) {
    std::mt19937 random(3);
    Bitmap surface(64, 48);
    for (Pixel& pixel : surface.Pixels()) {
        const auto end = [&random] { return static_cast<std::uint8_t>(random() % 2 == 0 ? 0 : 255); };
        pixel = {end(), end(), end(), end()};
    }
    for (const int quality : {100, 98, 50, 1}) {
        cJPEG fast;
        reference::PlainJpeg plain;
        Set(fast, plain, GetParam(), quality);
        ASSERT_EQ(fast.SampleHDC(surface, 64, 48), 0);
        plain.SampleHDC(surface, 64, 48);
        ASSERT_EQ(FileOrError([&] { return test::Saved(fast); }), FileOrError([&] { return plain.File(); }))
            << quality;
    }
}

// Large enough for several slices in every step that is shared out.
TEST(JpegReferenceOnce, PicturesThatAreSharedOutGiveTheSameFile) {
    struct Row {
        Factors factors;
        int quality, width, height;
    };
    const Bitmap surface = test::SmoothBitmap(1100, 720, 9.0);
    for (const Row& row : {Row{{2, 2, 1, 1, 1, 1}, 100, 1093, 711}, Row{{2, 2, 1, 1, 1, 1}, 60, 1100, 720},
                           Row{{4, 4, 2, 2, 1, 1}, 90, 1000, 640}, Row{{1, 1, 0, 0, 0, 0}, 80, 1100, 720}}) {
        cJPEG fast;
        reference::PlainJpeg plain;
        Set(fast, plain, row.factors, row.quality);
        fast.Comment("Mirelle");
        plain.Comment("Mirelle");
        ASSERT_EQ(fast.SampleHDC(surface, row.width, row.height), 0);
        plain.SampleHDC(surface, row.width, row.height);
        ASSERT_EQ(test::Saved(fast), plain.File()) << row.factors;
    }
}

} // namespace
} // namespace mirelle
