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

// The drawing at a side of 100, on both sides of every outline.
TEST(EffectSampleTest, ShowsAHouseInAMeadowUnderMountainsAndTheSun) {
    struct Spot {
        const char* what;
        int x, y;
        Pixel colour;
    };
    constexpr Pixel kSun = Rgb(255, 246, 190);
    constexpr Pixel kRoof = Rgb(206, 44, 38);
    constexpr Pixel kWall = Rgb(240, 232, 214);
    constexpr Pixel kDoor = Rgb(36, 22, 20);
    constexpr Pixel kMountain = Rgb(92, 86, 140);
    const Bitmap sample = EffectSample(100);
    for (const Spot& spot : {Spot{"the upper sky", 5, 0, Rgb(36, 85, 190)},
                             {"the sky further down", 90, 10, Rgb(71, 104, 184)},
                             {"the sky beside the roof", 45, 30, Rgb(140, 142, 171)},
                             {"the sky at the horizon", 3, 62, Rgb(250, 203, 151)},
                             {"the sun's middle", 71, 27, kSun},
                             {"the sun's left edge", 57, 27, kSun},
                             {"left of the sun", 53, 27, Rgb(129, 137, 173)},
                             {"the sun's right edge", 85, 27, kSun},
                             {"right of the sun", 88, 27, Rgb(129, 137, 173)},
                             {"the sun's upper edge", 71, 13, kSun},
                             {"the sun's lower edge", 71, 41, kSun},
                             {"under the sun", 71, 45, Rgb(191, 171, 162)},
                             {"the roof's ridge", 26, 37, kRoof},
                             {"above the ridge", 26, 32, Rgb(147, 146, 170)},
                             {"the roof's left corner", 8, 54, kRoof},
                             {"left of the roof", 4, 54, Rgb(222, 188, 156)},
                             {"the roof's right corner", 43, 54, kRoof},
                             {"right of the roof", 48, 54, kMountain},
                             {"the wall's upper left corner", 12, 57, kWall},
                             {"left of the wall", 9, 60, Rgb(243, 200, 152)},
                             {"the wall's lower right corner", 39, 76, kWall},
                             {"right of the wall", 42, 66, Rgb(97, 160, 54)},
                             {"under the wall", 20, 80, Rgb(63, 119, 46)},
                             {"the door's upper left corner", 26, 64, kDoor},
                             {"above the door", 30, 61, kWall},
                             {"left of the door", 23, 70, kWall},
                             {"the door's lower right corner", 33, 76, kDoor},
                             {"right of the door", 37, 70, kWall},
                             {"the left peak", 55, 50, kMountain},
                             {"above the left peak", 55, 43, Rgb(185, 167, 163)},
                             {"the right peak", 92, 43, kMountain},
                             {"above the right peak", 92, 38, Rgb(167, 158, 166)},
                             {"the mountains' right end", 99, 50, kMountain},
                             {"between the peaks", 75, 52, kMountain},
                             {"the meadow on the left", 2, 75, Rgb(75, 133, 49)},
                             {"above the meadow on the left", 2, 68, Rgb(255, 215, 147)},
                             {"the meadow's crest", 62, 60, Rgb(111, 177, 57)},
                             {"above the crest", 62, 55, kMountain},
                             {"the meadow on the right", 99, 70, Rgb(87, 148, 52)},
                             {"the foot", 50, 99, Rgb(17, 64, 34)}})
        EXPECT_EQ(sample.At(spot.x, spot.y), spot.colour) << spot.what;
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
