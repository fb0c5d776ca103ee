// A foreign decoder reads the files: right sizes, right factors, pixels close to the source.
#include "tests/codecs/JpegFile.h"
#include "tests/codecs/LibJpeg.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ostream>

namespace mirelle {
namespace {

using test::Decoded;
using test::DecodeJpeg;
using test::SmoothBitmap;

int LargestError(const Bitmap& a, const Bitmap& b) {
    int largest = 0;
    for (int y = 0; y < a.Height(); ++y) {
        for (int x = 0; x < a.Width(); ++x) {
            const Pixel& p = a.At(x, y);
            const Pixel& q = b.At(x, y);
            for (const int d : {p.blue - q.blue, p.green - q.green, p.red - q.red})
                largest = std::max(largest, std::abs(d));
        }
    }
    return largest;
}

// Factors whose planes have the block counts that a decoder expects at every size.
struct Row {
    const char* name;
    std::array<int, 6> factors;
    int greatestError;
    int greatestErrorOfSmall; // for sides of 8 and less, where what stands beside the picture weighs more
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

class JpegDecode : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Factors, JpegDecode,
    testing::Values(Row{"Full", {1, 1, 1, 1, 1, 1}, 3, 3}, Row{"HalfWide", {2, 1, 1, 1, 1, 1}, 4, 13},
                    Row{"HalfHigh", {1, 2, 1, 1, 1, 1}, 5, 15}, Row{"Half", {2, 2, 1, 1, 1, 1}, 7, 15},
                    Row{"QuarterWide", {4, 1, 1, 1, 1, 1}, 8, 19},
                    Row{"QuarterInTwoScans", {4, 4, 1, 1, 1, 1}, 15, 20},
                    Row{"ThirdWide", {3, 1, 1, 1, 1, 1}, 9, 16}, Row{"Mixed", {2, 2, 2, 1, 1, 2}, 5, 15},
                    Row{"MixedInTwoScans", {4, 2, 2, 2, 1, 1}, 7, 17}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(JpegDecode, FilesOfEverySmallSizeDecodeCloseToTheSource) {
    const auto& f = GetParam().factors;
    const Bitmap surface = SmoothBitmap(48, 48, 120.0);
    for (int width = 1; width <= 40; ++width) {
        for (int height = 1; height <= 40; ++height) {
            cJPEG jpeg;
            jpeg.Quality(100);
            jpeg.SetSamplingFrequencies(f[0], f[1], f[2], f[3], f[4], f[5]);
            ASSERT_EQ(jpeg.SampleHDC(surface, width, height), 0);
            const Decoded decoded = DecodeJpeg(test::Saved(jpeg));
            ASSERT_EQ(decoded.warnings, 0) << width << " x " << height;
            ASSERT_EQ(decoded.picture.Width(), width);
            ASSERT_EQ(decoded.picture.Height(), height);
            ASSERT_EQ(decoded.components, 3);
            for (std::size_t i = 0; i < 3; ++i) {
                ASSERT_EQ(decoded.factors[i], (std::array<int, 2>{f[2 * i], f[2 * i + 1]}));
            }
            const bool small = width <= 8 || height <= 8;
            ASSERT_LE(LargestError(decoded.picture, surface),
                      small ? GetParam().greatestErrorOfSmall : GetParam().greatestError)
                << width << " x " << height;
        }
    }
}

TEST(JpegDecodeOnce, GreyFilesDecodeToTheLuma) {
    const Bitmap surface = SmoothBitmap(37, 29, 60.0);
    cJPEG jpeg;
    jpeg.Quality(100);
    jpeg.SetSamplingFrequencies(1, 1, 0, 0, 0, 0);
    ASSERT_EQ(jpeg.SampleHDC(surface, 37, 29), 0);
    const Decoded decoded = DecodeJpeg(test::Saved(jpeg));
    EXPECT_EQ(decoded.components, 1);
    EXPECT_EQ(decoded.warnings, 0);
    for (int y = 0; y < 29; ++y) {
        for (int x = 0; x < 37; ++x) {
            const Pixel& p = surface.At(x, y);
            EXPECT_NEAR(decoded.picture.At(x, y).red, 0.299 * p.red + 0.587 * p.green + 0.114 * p.blue, 6);
        }
    }
}

struct QualityRow {
    int quality;
    int greatestError;
    double largestShare; // of the foreign encoder's size
};

TEST(JpegDecodeOnce, ErrorAndSizeFollowTheQuality) {
    const Bitmap surface = SmoothBitmap(256, 192, 90.0);
    constexpr QualityRow kRows[] = {
        {100, 8, 0.60}, {90, 15, 0.90}, {75, 21, 0.90}, {25, 47, 0.92}, {5, 120, 0.95},
    };
    for (const QualityRow& row : kRows) {
        cJPEG jpeg;
        jpeg.Quality(row.quality);
        ASSERT_EQ(jpeg.SampleHDC(surface, 256, 192), 0);
        const auto file = test::Saved(jpeg);
        const auto foreign = test::EncodeJpegForeign(surface, {row.quality, {2, 2}});
        EXPECT_LE(LargestError(DecodeJpeg(file).picture, surface), row.greatestError) << row.quality;
        EXPECT_LE(static_cast<double>(file.size()), row.largestShare * static_cast<double>(foreign.size()))
            << row.quality;
    }
}

TEST(JpegDecodeOnce, NoiseDecodesCloseToItselfWithoutSubsampling) {
    const Bitmap surface = test::NoiseBitmap(96, 80, 4);
    cJPEG jpeg;
    jpeg.Quality(100);
    jpeg.SetSamplingFrequencies(1, 1, 1, 1, 1, 1);
    ASSERT_EQ(jpeg.SampleHDC(surface, 96, 80), 0);
    const Decoded decoded = DecodeJpeg(test::Saved(jpeg));
    EXPECT_EQ(decoded.warnings, 0);
    EXPECT_LE(LargestError(decoded.picture, surface), 18);
}

TEST(JpegDecodeOnce, TheCommentArrives) {
    cJPEG jpeg;
    jpeg.Comment("Mirelle");
    ASSERT_EQ(jpeg.SampleHDC(SmoothBitmap(8, 8), 8, 8), 0);
    EXPECT_EQ(DecodeJpeg(test::Saved(jpeg)).comment, "Mirelle");
}

TEST(JpegDecodeOnce, TheSampledPartOfTheSurfaceArrives) {
    const Bitmap surface = SmoothBitmap(100, 90, 70.0);
    cJPEG jpeg;
    jpeg.Quality(100);
    jpeg.SetSamplingFrequencies(1, 1, 1, 1, 1, 1);
    ASSERT_EQ(jpeg.SampleHDC(surface, 32, 24, 50, 40), 0);
    const Bitmap picture = DecodeJpeg(test::Saved(jpeg)).picture;
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 32; ++x)
            EXPECT_NEAR(picture.At(x, y).green, surface.At(50 + x, 40 + y).green, 6);
    }
}

} // namespace
} // namespace mirelle
