#include "bridge/ColorChart.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace mirelle::test {
namespace {

class ColorChartTest : public ::testing::Test {
protected:
    static int Lightness(const Pixel& pixel) {
        return std::max({pixel.red, pixel.green, pixel.blue}) +
               std::min({pixel.red, pixel.green, pixel.blue});
    }
    // Which of red, green and blue are at their fullest and their least.
    static std::string Character(const Pixel& pixel) {
        const auto [least, most] = std::minmax({pixel.red, pixel.green, pixel.blue});
        std::string character;
        for (const std::uint8_t part : {pixel.red, pixel.green, pixel.blue})
            character += part == most ? '+' : part == least ? '-' : '.';
        return character;
    }

    const Picture picture = MakeColorChart();
    const Bitmap& chart = picture.Pixels();
    const int middle = (kColorChartHeight - 16) / 2;
};

TEST_F(ColorChartTest, GoesOnceAroundTheHues) {
    std::vector<std::string> characters;
    for (int x = 0; x < chart.Width(); ++x) {
        const std::string character = Character(chart.At(x, middle));
        if (characters.empty() || characters.back() != character) characters.push_back(character);
    }
    const std::vector<std::string> around = {"+--", "+.-", "++-", ".+-", "-+-", "-+.",
                                             "-++", "-.+", "--+", ".-+", "+-+", "+-."};
    std::vector<std::string> shown;
    std::ranges::copy_if(characters, std::back_inserter(shown),
                         [](const std::string& each) { return each.find('.') != std::string::npos; });
    EXPECT_EQ(shown, (std::vector<std::string>{"+.-", ".+-", "-+.", "-.+", ".-+", "+-."}));
    for (const std::string& character : characters)
        EXPECT_NE(std::ranges::find(around, character), around.end()) << character;
}

TEST_F(ColorChartTest, GrowsDarkerDownEveryColumn) {
    for (int x = 0; x < chart.Width(); x += 5)
        for (int y = 1; y < 2 * middle; ++y)
            ASSERT_LE(Lightness(chart.At(x, y)), Lightness(chart.At(x, y - 1))) << x << ", " << y;
}

// By chroma and sextants: hue from 0 on in equal steps, lightness from 0.96 to 0.06, full saturation.
TEST_F(ColorChartTest, ShowsHuesAcrossAndLightnessDown) {
    ASSERT_EQ(chart.Width(), 256);
    ASSERT_EQ(chart.Height(), 208);
    for (int x = 0; x < chart.Width(); x += 3) {
        for (int y = 0; y < 192; y += 3) {
            const double lightness = 0.96 - 0.9 * y / 191;
            const double sextant = 6.0 * x / 256;
            const double chroma = 1 - std::abs(2 * lightness - 1);
            const double second = chroma * (1 - std::abs(std::fmod(sextant, 2) - 1));
            const double least = lightness - chroma / 2;
            const double rows[][3] = {{chroma, second, 0}, {second, chroma, 0}, {0, chroma, second},
                                      {0, second, chroma}, {second, 0, chroma}, {chroma, 0, second}};
            const auto& colour = rows[static_cast<int>(sextant)];
            const Pixel pixel = chart.At(x, y);
            ASSERT_NEAR(pixel.red, 255 * (colour[0] + least), 0.51) << x << ", " << y;
            ASSERT_NEAR(pixel.green, 255 * (colour[1] + least), 0.51) << x << ", " << y;
            ASSERT_NEAR(pixel.blue, 255 * (colour[2] + least), 0.51) << x << ", " << y;
        }
    }
}

TEST_F(ColorChartTest, EndsInGreysFromBlackToWhite) {
    const int foot = chart.Height() - 1;
    for (int x = 0; x < chart.Width(); ++x) {
        const Pixel grey = chart.At(x, foot);
        ASSERT_EQ(grey.red, grey.green);
        ASSERT_EQ(grey.red, grey.blue);
        ASSERT_GE(grey.red, chart.At(std::max(x - 1, 0), foot).red);
    }
    for (int x = 0; x < chart.Width(); ++x)
        for (int y = foot - 15; y <= foot; ++y)
            ASSERT_EQ(chart.At(x, y).red, x) << x << ", " << y;
    EXPECT_EQ(chart.At(0, foot).red, 0);
    EXPECT_EQ(chart.At(chart.Width() - 1, foot).red, 255);
}

} // namespace
} // namespace mirelle::test
