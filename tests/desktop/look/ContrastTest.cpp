#include "desktop/look/Contrast.h"

#include <gtest/gtest.h>

namespace mirelle::look {
namespace {

TEST(Contrast, BlackOnWhiteIsTheGreatestRatio) {
    EXPECT_DOUBLE_EQ(ContrastRatio(0xff000000, 0xffffffff), 21.0);
}

TEST(Contrast, AColourOnItselfHasRatioOne) {
    EXPECT_DOUBLE_EQ(ContrastRatio(0xff8080ff, 0xff8080ff), 1.0);
}

TEST(Contrast, TheOrderOfTheColoursDoesNotMatter) {
    EXPECT_DOUBLE_EQ(ContrastRatio(0xff123456, 0xfffedcba), ContrastRatio(0xfffedcba, 0xff123456));
}

// #767676 is the well-known lightest grey that passes 4.5 to 1 on white; one step lighter fails.
TEST(Contrast, TheKnownBorderGreyPassesOnWhiteAndTheNextFails) {
    EXPECT_GE(ContrastRatio(0xff767676, 0xffffffff), kReadableText);
    EXPECT_LT(ContrastRatio(0xff777777, 0xffffffff), kReadableText);
}

TEST(Contrast, LuminanceWeighsGreenAboveRedAboveBlue) {
    EXPECT_NEAR(RelativeLuminance(0xffff0000), 0.2126, 1e-9);
    EXPECT_NEAR(RelativeLuminance(0xff00ff00), 0.7152, 1e-9);
    EXPECT_NEAR(RelativeLuminance(0xff0000ff), 0.0722, 1e-9);
}

TEST(Contrast, InkOnAnyGreyIsReadable) {
    for (unsigned grey = 0; grey < 256; ++grey) {
        const QRgb ground = 0xff000000u | grey * 0x010101u;
        EXPECT_GE(ContrastRatio(InkOn(ground), ground), 3.5) << "grey " << grey;
    }
}

} // namespace
} // namespace mirelle::look
