#include "fx/KernelTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace mirelle::test {
namespace {

const KernelButton& Button(std::string_view control) {
    const auto found = std::find_if(kKernelButtons.begin(), kKernelButtons.end(),
                                    [&](const KernelButton& button) { return button.control == control; });
    if (found == kKernelButtons.end()) throw std::out_of_range("no button " + std::string(control));
    return *found;
}

TEST(KernelTableTest, EveryButtonStandsThereOnceWithItsToolTip) {
    std::set<std::pair<std::string, std::string>> tips;
    for (const KernelButton& button : kKernelButtons)
        tips.emplace(button.control, button.toolTip);
    const std::set<std::pair<std::string, std::string>> expected{
        {"cmdBlur1", "Blur"},
        {"cmdBlur2", "Blur More"},
        {"cmdNoRed", "No Red"},
        {"cmdNoGreen", "No Green"},
        {"cmdNoBlue", "No Blue"},
        {"cmdIncreaseRed", "Increase Red"},
        {"cmdIncreaseGreen", "Increase Green"},
        {"cmdIncreaseBlue", "Increase Blue"},
        {"cmdIncreaseRGB", "Increase RGB"},
        {"cmdDecreaseRed", "Decrease Red"},
        {"cmdDecreaseGreen", "Decrease Green"},
        {"cmdDecreaseBlue", "Decrease Blue"},
        {"cmdDecreaseRGB", "Decrease RGB"},
        {"cmdGlowInTheDark", "Glow"},
        {"cmdSunShinnyDay", "Bright"},
        {"cmdVividSilk", "Vivid"},
        {"cmdSilk", "Silk"},
        {"cmdFlatten", "Flatten"},
        {"cmdFlatten2", "Flatten2"},
        {"cmdNeonNegation", "Neon Negate"},
        {"cmdNegative", "Negate"},
        {"cmdVividNeg", "Negate More"},
        {"cmdIncoherence", "Incoherence"},
        {"cmdPixilated", "Pixelated"},
        {"cmdDarken", "Darken"},
        {"cmdLighten", "Lighten"},
        {"cmdEmboss", "Emboss"},
    };
    EXPECT_EQ(tips, expected);
    EXPECT_EQ(kKernelButtons.size(), expected.size());
}

TEST(KernelTableTest, OnlyDarkenAndDecreaseGreenTakeNoUndoCopy) {
    std::set<std::string> without;
    for (const KernelButton& button : kKernelButtons) {
        if (!button.takesUndoCopy) without.emplace(button.control);
    }
    EXPECT_EQ(without, (std::set<std::string>{"cmdDarken", "cmdDecreaseGreen"}));
    EXPECT_TRUE(kBlurVertical.takesUndoCopy);
}

TEST(KernelTableTest, KernelsThatTakeArgumentsGetTheirs) {
    using Amounts = std::array<std::int16_t, 3>;
    const auto expect = [](std::string_view control, Kernel kernel, Amounts amounts) {
        EXPECT_EQ(Button(control).kernel, kernel) << control;
        EXPECT_EQ(Button(control).arguments.amounts, amounts) << control;
    };
    expect("cmdIncreaseRed", &KernelSet::FXShiftRed, {50});
    expect("cmdIncreaseGreen", &KernelSet::FXShiftGreen, {50});
    expect("cmdIncreaseBlue", &KernelSet::FXShiftBlue, {50});
    expect("cmdIncreaseRGB", &KernelSet::FXShiftRGB, {50, 100, 50});
    expect("cmdDecreaseRed", &KernelSet::FXShiftRed, {-50});
    expect("cmdDecreaseGreen", &KernelSet::FXShiftGreen, {-50});
    expect("cmdDecreaseBlue", &KernelSet::FXShiftBlue, {-50});
    expect("cmdDecreaseRGB", &KernelSet::FXShiftRGB, {-50, -100, -50});
    expect("cmdNeonNegation", &KernelSet::FXNeonNegate, {255});
    expect("cmdDarken", &KernelSet::FXDarken, {50});
    expect("cmdLighten", &KernelSet::FXLighten, {50});
    expect("cmdEmboss", &KernelSet::FXEmboss, {100});
    EXPECT_EQ(Button("cmdGlowInTheDark").kernel, &KernelSet::FXGlow);
    EXPECT_EQ(Button("cmdGlowInTheDark").arguments.factor, 1.0F);
    EXPECT_EQ(Button("cmdSunShinnyDay").kernel, &KernelSet::FXGlow);
    EXPECT_EQ(Button("cmdSunShinnyDay").arguments.factor, 10.0F);
}

TEST(KernelTableTest, TheOthersRunTheKernelOfTheirName) {
    EXPECT_EQ(Button("cmdBlur1").kernel, &KernelSet::FXBlur);
    EXPECT_EQ(Button("cmdBlur2").kernel, &KernelSet::FXBlurMore);
    EXPECT_EQ(Button("cmdNoRed").kernel, &KernelSet::FXNoRed);
    EXPECT_EQ(Button("cmdNoGreen").kernel, &KernelSet::FXNoGreen);
    EXPECT_EQ(Button("cmdNoBlue").kernel, &KernelSet::FXNoBlue);
    EXPECT_EQ(Button("cmdVividSilk").kernel, &KernelSet::FXVivid);
    EXPECT_EQ(Button("cmdSilk").kernel, &KernelSet::FXSilk);
    EXPECT_EQ(Button("cmdFlatten").kernel, &KernelSet::FXFlatten);
    EXPECT_EQ(Button("cmdFlatten2").kernel, &KernelSet::FXFlatten2);
    EXPECT_EQ(Button("cmdNegative").kernel, &KernelSet::FXNegate);
    EXPECT_EQ(Button("cmdVividNeg").kernel, &KernelSet::FXNegateMore);
    EXPECT_EQ(Button("cmdIncoherence").kernel, &KernelSet::FXIncoherence);
    EXPECT_EQ(Button("cmdPixilated").kernel, &KernelSet::FXPixelated);
    EXPECT_EQ(kBlurVertical.kernel, &KernelSet::FXBlurMoreVert);
}

} // namespace
} // namespace mirelle::test
