#include "gradient/HexRGB.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

TEST(HexRGBTest, TellsBlueGreenAndRedInTwoDigitsEach) {
    EXPECT_EQ(HexRGB(255, 128, 0), "&H0080FF&");
    EXPECT_EQ(HexRGB(0, 0, 0), "&H000000&");
    EXPECT_EQ(HexRGB(1, 10, 171), "&HAB0A01&");
}

TEST(HexRGBTest, KeepsTheDigitsOfANumberThatNeedsMore) {
    EXPECT_EQ(HexRGB(256, 0, 0), "&H0000100&");
    EXPECT_EQ(HexRGB(0, 0, -1), "&HFFFF0000&");
}

} // namespace
} // namespace mirelle
