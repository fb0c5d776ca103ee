#include "fx/EffectSample.h"

#include "fx/Contrast.h"
#include "fx/PointFX.h"
#include "tests/fx/KernelTesting.h"

#include <set>

namespace mirelle::test {
namespace {

constexpr int kSide = 24;

std::vector<std::string_view> Controls() {
    std::vector<std::string_view> controls{"cmdPointalism", "cmdPointalismVert", "cmdCont", "cmdCont33"};
    for (const KernelButton& button : kKernelButtons)
        controls.push_back(button.control);
    for (const PointButton& button : kPointButtons)
        controls.push_back(button.control);
    return controls;
}

TEST(EffectSampleTest, HasManyColoursFromDarkToLightAtAnySide) {
    const Bitmap sample = EffectSample(kSide);
    std::set<Color> colors;
    int darkest = 255;
    int lightest = 0;
    for (const Pixel& pixel : sample.Pixels()) {
        EXPECT_EQ(pixel.fourth, 0);
        colors.insert(ColorOf(pixel));
        darkest = std::min<int>(darkest, pixel.green);
        lightest = std::max<int>(lightest, pixel.green);
    }
    EXPECT_GT(colors.size(), 100U);
    EXPECT_LT(darkest, 60);
    EXPECT_GT(lightest, 220);
    for (const int side : {1, 2, 31, 48})
        EXPECT_EQ(EffectSample(side).Width(), side);
}

TEST(EffectSampleTest, IsLeftByEveryEffectInAnotherLook) {
    const Bitmap sample = EffectSample(kSide);
    EXPECT_EQ(Controls().size(), 40U);
    for (const std::string_view control : Controls()) {
        const Bitmap changed = SampleAfter(control, kSide);
        ASSERT_EQ(changed.Width(), kSide) << control;
        ASSERT_EQ(changed.Height(), kSide) << control;
        EXPECT_NE(changed, sample) << control;
        EXPECT_TRUE(HasEffectSample(control)) << control;
    }
}

TEST(EffectSampleTest, GoesThroughTheKernelsThemselves) {
    const Bitmap sample = EffectSample(kSide);
    for (const KernelButton& button : kKernelButtons) {
        EXPECT_EQ(SampleAfter(button.control, kSide),
                  Painted(kPlainKernels, button.kernel, sample, button.arguments))
            << button.control;
    }
}

TEST(EffectSampleTest, GoesThroughPointEffectsAndContrastThemselves) {
    const Bitmap sample = EffectSample(kSide);
    const Bitmap flipped = SampleAfter("cmdFlipHoriz", kSide);
    const Bitmap swapped = SampleAfter("cmdRGB2GRB", kSide);
    const Bitmap half = SampleAfter("cmdCont", kSide);
    const Bitmap third = SampleAfter("cmdCont33", kSide);
    const Contrast by50(Variant("50"), FXForm::Plain);
    const Contrast by30(Variant(30.0), FXForm::Plain);
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const Pixel pixel = sample.At(x, y);
            EXPECT_EQ(flipped.At(kSide - 1 - x, y), pixel);
            EXPECT_EQ(swapped.At(x, y), Rgb(pixel.green, pixel.red, pixel.blue));
            EXPECT_EQ(half.At(x, y).red, by50(pixel.red));
            EXPECT_EQ(third.At(x, y).green, by30(pixel.green));
        }
    }
}

TEST(EffectSampleTest, IsCarriedAlongByTheSmudgersEachItsWay) {
    const Bitmap across = SampleAfter("cmdPointalism", kSide);
    const Bitmap down = SampleAfter("cmdPointalismVert", kSide);
    EXPECT_NE(across, down);
    // Down, what comes in from above is the sky's upper edge all along.
    const Pixel sky = EffectSample(40 * kSide).At(100, 0);
    EXPECT_NEAR(down.At(2, 4).blue, sky.blue, 4);
    EXPECT_NEAR(down.At(2, 4).red, sky.red, 4);
}

TEST(EffectSampleTest, IsNotThereForAControlWithoutAnEffect) {
    for (const std::string_view control : {"cmdSetMain", "BlurVertical", ""}) {
        EXPECT_FALSE(HasEffectSample(control)) << control;
        EXPECT_TRUE(SampleAfter(control, kSide).IsEmpty()) << control;
    }
}

} // namespace
} // namespace mirelle::test
