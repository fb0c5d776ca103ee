#include "fx/Contrast.h"

#include "fx/ByteMe.h"
#include "tests/fx/KernelTesting.h"
#include "tests/support/TestPictures.h"

#include <algorithm>
#include <string>

namespace mirelle::test {
namespace {

TEST(ByteMeTest, LimitsToAByte) {
    for (const auto& [value, limited] : {std::pair{300, 255},
                                         {-5, 0},
                                         {255, 255},
                                         {0, 0},
                                         {256, 255},
                                         {-1, 0},
                                         {32767, 255},
                                         {-32768, 0},
                                         {128, 128}}) {
        Integer number(static_cast<std::int16_t>(value));
        ByteMe(number);
        EXPECT_EQ(number.Value(), limited);
    }
}

TEST(ColorPartsTest, AreTheBytesOfAColor) {
    EXPECT_EQ(GetRed(0x00112233), 0x33);
    EXPECT_EQ(GetGreen(0x00112233), 0x22);
    EXPECT_EQ(GetBlue(0x00112233), 0x11);
}

TEST(ColorPartsTest, OffThePictureRedKeepsTheSign) {
    EXPECT_EQ(GetRed(-1), -1);
    EXPECT_EQ(GetGreen(-1), 0);
    EXPECT_EQ(GetBlue(-1), 0);
}

TEST(ContrastTest, MovesChannelsAwayFromTheMiddle) {
    const Contrast contrast(Variant("50"));
    EXPECT_EQ(contrast(200), 236);
    EXPECT_EQ(contrast(50), 12);
}

TEST(ContrastTest, TheFastButtonIsThirtyAsANumber) {
    const Contrast contrast(Variant(Integer(30)));
    EXPECT_EQ(contrast(200), 221); // 73 x 30 = 2190
    EXPECT_EQ(contrast(0), 0);     // -38
    EXPECT_EQ(contrast(100), 92);  // -810, cut toward zero
    for (int c = 0; c < 256; ++c) {
        EXPECT_EQ(contrast(static_cast<std::uint8_t>(c)),
                  Contrast(Variant("30"))(static_cast<std::uint8_t>(c)));
    }
}

TEST(ContrastTest, ZeroPercentLeavesEveryChannel) {
    const Contrast contrast(Variant("0"));
    for (int c = 0; c < 256; ++c)
        EXPECT_EQ(contrast(static_cast<std::uint8_t>(c)), c);
}

TEST(ContrastTest, TheMiddleStaysAtAnyPercent) {
    for (const char* percent : {"-100", "-1", "0.5", "33", "100", "1E+6", "-99999"}) {
        EXPECT_EQ(Contrast(Variant(percent))(127), 127) << percent;
    }
}

TEST(ContrastTest, HundredPercentReachesBothEnds) {
    const Contrast contrast(Variant("100"));
    EXPECT_EQ(contrast(255), 255);
    EXPECT_EQ(contrast(0), 0);
    EXPECT_EQ(contrast(190), 253);
}

TEST(ContrastTest, MinusHundredPercentMapsEverythingToTheMiddle) {
    const Contrast contrast(Variant("-100"));
    for (int c = 0; c < 256; ++c)
        EXPECT_EQ(contrast(static_cast<std::uint8_t>(c)), 127);
}

TEST(ContrastTest, BeyondMinusHundredPercentThePictureIsTurnedRound) {
    const Contrast contrast(Variant("-200"));
    EXPECT_EQ(contrast(0), 254);
    EXPECT_EQ(contrast(255), 0);
    EXPECT_EQ(contrast(130), 124);
}

TEST(ContrastTest, AProductWithDecimalsIsRoundedBeforeItIsDivided) {
    EXPECT_EQ(Contrast(Variant("99.6"))(128), 129); // 99.6 rounds to 100
    EXPECT_EQ(Contrast(Variant("99.5"))(128), 129); // a half to the even 100
    EXPECT_EQ(Contrast(Variant("99.4"))(128), 128);
    EXPECT_EQ(Contrast(Variant("99.6"))(126), 125); // the same below the middle
    EXPECT_EQ(Contrast(Variant(99.6))(128), 129);
    EXPECT_EQ(Contrast(Variant(99.6F))(128), 129);
}

TEST(ContrastTest, TextThatIsNoNumberLeavesEveryChannel) {
    for (const char* text : {"abc", "", "50%", "1 2 x"}) {
        const Contrast contrast((Variant(text)));
        for (int c = 0; c < 256; ++c)
            EXPECT_EQ(contrast(static_cast<std::uint8_t>(c)), c) << text;
    }
}

TEST(ContrastTest, AResultBeyond16BitsLeavesTheChannel) {
    const Contrast contrast(Variant("30000"));
    EXPECT_EQ(contrast(128), 255);
    EXPECT_EQ(contrast(235), 255); // 235 + 32400 fits
    EXPECT_EQ(contrast(236), 236); // 236 + 32700 does not
    EXPECT_EQ(contrast(18), 0);    // 18 - 32700 fits
    EXPECT_EQ(contrast(17), 17);   // 17 - 33000 does not
}

TEST(ContrastTest, ATextProductBeyond32BitsLeavesTheChannel) {
    const Contrast contrast(Variant("1E+20"));
    for (int c = 0; c < 256; ++c)
        EXPECT_EQ(contrast(static_cast<std::uint8_t>(c)), c);
    EXPECT_EQ(Contrast(Variant("1E+400"))(200), 200); // no number of a double's range
}

TEST(ContrastTest, ANumbersProductIsCheckedInItsOwnWidth) {
    const Contrast contrast(Variant(Integer(300)));
    EXPECT_EQ(contrast(200), 255); // 73 x 300 = 21900
    EXPECT_EQ(contrast(236), 255); // 109 x 300 = 32700
    EXPECT_EQ(contrast(237), 237); // 110 x 300 leaves 16 bits
    EXPECT_EQ(Contrast(Variant("300"))(237), 255);
    EXPECT_EQ(Contrast(Variant(Long(300)))(237), 255);
    EXPECT_EQ(Contrast(Variant(Long(100000000)))(237), 237); // 32 bits
}

TEST(ContrastTest, OtherKindsOfNumber) {
    EXPECT_EQ(Contrast(Variant())(200), 200);     // nothing is 0
    EXPECT_EQ(Contrast(Variant(true))(255), 254); // -128 \ 100
}

class ContrastFormTest : public testing::TestWithParam<FXForm> {};
INSTANTIATE_TEST_SUITE_P(Forms, ContrastFormTest, testing::Values(FXForm::Plain, FXForm::Fast),
                         [](const auto& test) { return test.param == FXForm::Plain ? "Plain" : "Fast"; });

TEST_P(ContrastFormTest, AppliesToAllThreeChannelsOfEveryPixel) {
    const Contrast contrast(Variant("50"), GetParam());
    const Bitmap noise = NoiseBitmap(67, 3, 1);
    Bitmap painted(67, 3);
    contrast.Apply(noise.Pixels(), painted.Pixels());
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 67; ++x) {
            const Pixel& pixel = noise.At(x, y);
            EXPECT_EQ(painted.At(x, y),
                      (Pixel{contrast(pixel.blue), contrast(pixel.green), contrast(pixel.red), 0}));
        }
    }
}

TEST_P(ContrastFormTest, CanBeAppliedInPlaceAndInParts) {
    const Contrast contrast(Variant("-37"), GetParam());
    const Bitmap noise = NoiseBitmap(67, 3, 2);
    Bitmap whole(67, 3);
    contrast.Apply(noise.Pixels(), whole.Pixels());
    Bitmap rows = noise;
    for (int y = 0; y < 3; ++y)
        contrast.Apply(rows.Row(y), rows.Row(y));
    EXPECT_EQ(rows, whole);
}

} // namespace
} // namespace mirelle::test
