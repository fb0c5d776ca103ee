// The fast form gives the bytes of the plain one: on random pictures of every small size, and over whole
// domains where they are small enough to be gone through.
#include "fx/Contrast.h"
#include "fx/KernelTable.h"
#include "fx/PointFX.h"
#include "tests/fx/KernelTesting.h"
#include "tests/fx/RandomPictures.h"
#include "tests/support/TestPictures.h"

#include <cmath>
#include <vector>

namespace mirelle::test {
namespace {

// What to run beside the buttons: arguments that no button has.
constexpr std::array kFurtherRuns{
    kBlurVertical,
    KernelButton{"Lighten by 0", "", &KernelSet::FXLighten, {{0}}},
    KernelButton{"Lighten by -60", "", &KernelSet::FXLighten, {{-60}}},
    KernelButton{"Darken by 300", "", &KernelSet::FXDarken, {{300}}},
    KernelButton{"Shift red by -300", "", &KernelSet::FXShiftRed, {{-300}}},
    KernelButton{"Shift RGB both ways", "", &KernelSet::FXShiftRGB, {{255, -1, -32768}}},
    KernelButton{"Glow by 2.5", "", &KernelSet::FXGlow, {{}, 2.5F}},
    KernelButton{"Glow by 0.1", "", &KernelSet::FXGlow, {{}, 0.1F}},
    KernelButton{"Emboss at 0", "", &KernelSet::FXEmboss, {{0}}},
    KernelButton{"Emboss at -255", "", &KernelSet::FXEmboss, {{-255}}},
};

// Arguments that only the plain form can take; the fast one hands them on.
constexpr std::array kRunsBeyondTheFastForm{
    KernelButton{"Lighten by 32700", "", &KernelSet::FXLighten, {{32700}}},
    KernelButton{"Darken by -60", "", &KernelSet::FXDarken, {{-60}}},
    KernelButton{"Shift green by 32600", "", &KernelSet::FXShiftGreen, {{32600}}},
    KernelButton{"Neon Negate at 0", "", &KernelSet::FXNeonNegate, {{0}}},
    KernelButton{"Neon Negate at -32300", "", &KernelSet::FXNeonNegate, {{-32300}}},
    KernelButton{"Glow by 50", "", &KernelSet::FXGlow, {{}, 50.0F}},
    KernelButton{"Glow by -1", "", &KernelSet::FXGlow, {{}, -1.0F}},
    KernelButton{"Emboss at 32700", "", &KernelSet::FXEmboss, {{32700}}},
    KernelButton{"Emboss at -32768", "", &KernelSet::FXEmboss, {{-32768}}},
};

std::vector<KernelButton> AllRuns() {
    std::vector<KernelButton> runs(kKernelButtons.begin(), kKernelButtons.end());
    runs.insert(runs.end(), kFurtherRuns.begin(), kFurtherRuns.end());
    return runs;
}

// Stops at the first picture that differs.
void ExpectAgreement(const KernelButton& run, const Bitmap& source, std::string_view what) {
    const Bitmap plain = Painted(kPlainKernels, run.kernel, source, run.arguments);
    const Bitmap fast = Painted(kFastKernels, run.kernel, source, run.arguments);
    if (plain == fast) return;
    for (int y = 0; y < source.Height(); ++y) {
        for (int x = 0; x < source.Width(); ++x) {
            ASSERT_EQ(fast.At(x, y), plain.At(x, y)) << run.control << ", " << what << ", " << source.Width()
                                                     << " x " << source.Height() << ", at " << x << ", " << y;
        }
    }
}

std::string NameOf(const testing::TestParamInfo<KernelButton>& test) {
    std::string name(test.param.control);
    for (char& letter : name) {
        if (letter == '-') letter = 'm';
        if (letter == ' ' || letter == '.') letter = '_';
    }
    return name;
}

class KernelFormsAgreeTest : public testing::TestWithParam<KernelButton> {};
INSTANTIATE_TEST_SUITE_P(Kernels, KernelFormsAgreeTest, testing::ValuesIn(AllRuns()), NameOf);

TEST_P(KernelFormsAgreeTest, OnRandomPicturesOfEverySize) {
    constexpr std::uint32_t seed = 1;
    for (int number = 0; number < kAllSizes; ++number) {
        ExpectAgreement(GetParam(), RandomPicture(number, seed),
                        "picture " + std::to_string(number) + " of seed " + std::to_string(seed));
        if (HasFatalFailure()) return;
    }
}

TEST_P(KernelFormsAgreeTest, OnLongerRows) {
    for (int width : {63, 64, 65, 127, 128, 129, 130, 191, 255, 256, 257, 300}) {
        ExpectAgreement(GetParam(), NoiseBitmap(width, 7, 2), "noise of seed 2");
        ExpectAgreement(GetParam(), SmoothBitmap(width, 7), "waves");
        ExpectAgreement(GetParam(), Bitmap(width, 7, Pixel{255, 190, 0, 9}), "one colour");
        if (HasFatalFailure()) return;
    }
}

// The kernels in which two pixels meet.
std::vector<KernelButton> RunsOnPairs() {
    std::vector<KernelButton> runs = AllRuns();
    std::erase_if(runs, [](const KernelButton& run) {
        for (const Kernel kernel :
             {&KernelSet::FXBlur, &KernelSet::FXBlurMore, &KernelSet::FXBlurMoreVert, &KernelSet::FXSilk,
              &KernelSet::FXFlatten, &KernelSet::FXFlatten2, &KernelSet::FXEmboss, &KernelSet::FXPixelated}) {
            if (run.kernel == kernel) return false;
        }
        return true;
    });
    return runs;
}

class KernelFormsAgreeOnPairsTest : public testing::TestWithParam<KernelButton> {};
INSTANTIATE_TEST_SUITE_P(Kernels, KernelFormsAgreeOnPairsTest, testing::ValuesIn(RunsOnPairs()), NameOf);

// Every pair of a channel and its neighbour below, at the lower right, and before it in the row.
TEST_P(KernelFormsAgreeOnPairsTest, OfAllValues) {
    Bitmap below(257, 512);
    Bitmap beside(512, 257);
    for (int y = 0; y < 512; ++y) {
        for (int x = 0; x < 257; ++x) {
            const int step = y / 2;
            below.At(x, y) = Grey(static_cast<std::uint8_t>(y % 2 == 0 ? x : x + step));
            beside.At(y, x) = below.At(x, y);
        }
    }
    ExpectAgreement(GetParam(), below, "pairs below");
    ExpectAgreement(GetParam(), beside, "pairs in rows");
}

TEST(KernelFormsAgree, OnArgumentsBeyondTheFastForm) {
    constexpr std::uint32_t seed = 4;
    for (const KernelButton& run : kRunsBeyondTheFastForm) {
        for (int number = 0; number < kAllSizes; number += 41) {
            ExpectAgreement(run, RandomPicture(number, seed),
                            "picture " + std::to_string(number) + " of seed " + std::to_string(seed));
            if (HasFatalFailure()) return;
        }
    }
}

TEST(KernelFormsAgree, GlowOnEveryColor) {
    for (const float factor : {1.0F, 10.0F}) {
        std::array<std::uint8_t, 256> told{};
        for (int c = 1; c < 256; ++c) {
            const double v = std::nearbyint(std::fabs(765.0 / c) * factor);
            told[static_cast<std::size_t>(c)] = static_cast<std::uint8_t>(std::min(v, 255.0));
        }
        for (int red = 1; red < 256; ++red) {
            Bitmap source(255, 255);
            Bitmap expected(255, 255);
            for (int y = 0; y < 255; ++y) {
                for (int x = 0; x < 255; ++x) {
                    const auto blue = static_cast<std::uint8_t>(x + 1);
                    const auto green = static_cast<std::uint8_t>(y + 1);
                    source.At(x, y) = Rgb(static_cast<std::uint8_t>(red), green, blue);
                    expected.At(x, y) = Rgb(told[static_cast<std::size_t>(red)], told[green], told[blue]);
                }
            }
            ASSERT_EQ(Painted(kFastKernels, &KernelSet::FXGlow, source, {{}, factor}), expected)
                << "red " << red << ", factor " << factor;
        }
    }
}

Bitmap PaintedPoint(const PointSet& set, PointEffect effect, const Bitmap& source,
                    const PointArguments& arguments) {
    PixelFrame from;
    from.SizeFor(source.Width(), source.Height());
    GetBitmapBits(source, from);
    PixelFrame to;
    to.SizeFor(source.Width(), source.Height());
    (set.*effect)(from, to, arguments);
    Bitmap painted(source.Width(), source.Height());
    SetBitmapBits(painted, to);
    return painted;
}

void ExpectPointAgreement(const Bitmap& source, const std::string& what) {
    std::vector<PointButton> runs(kPointButtons.begin(), kPointButtons.end());
    runs.push_back({"shift", "", &PointSet::ShiftColors, {.shifts = {10, -20, 0}}});
    runs.push_back({"far shift", "", &PointSet::ShiftColors, {.shifts = {-255, 255, -300}}});
    runs.push_back({"farther shift", "", &PointSet::ShiftColors, {.shifts = {-32768, 32000, 1}}});
    runs.push_back({"copy", "", &PointSet::Copy, {}});
    for (const PointButton& run : runs) {
        ASSERT_EQ(PaintedPoint(kFastPoints, run.effect, source, run.arguments),
                  PaintedPoint(kPlainPoints, run.effect, source, run.arguments))
            << run.control << ", " << what;
    }
}

TEST(PointFormsAgree, OnRandomPicturesOfEverySize) {
    constexpr std::uint32_t seed = 3;
    for (int number = 0; number < kAllSizes; ++number) {
        ExpectPointAgreement(RandomPicture(number, seed),
                             "picture " + std::to_string(number) + " of seed " + std::to_string(seed));
        if (HasFatalFailure()) return;
    }
}

TEST(PointFormsAgree, OnLongerRows) {
    for (int width : {63, 64, 65, 127, 128, 129, 191, 300}) {
        ExpectPointAgreement(NoiseBitmap(width, 3, 5), "noise of seed 5, " + std::to_string(width) + " wide");
        if (HasFatalFailure()) return;
    }
}

TEST(PointFormsAgree, GreyScaleOnEveryColor) {
    for (int red = 0; red < 256; ++red) {
        Bitmap source(256, 256);
        Bitmap expected(256, 256);
        for (int green = 0; green < 256; ++green) {
            for (int blue = 0; blue < 256; ++blue) {
                const double weighed = red * 0.222 + green * 0.707 + blue * 0.071;
                source.At(blue, green) = Rgb(static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
                                             static_cast<std::uint8_t>(blue));
                expected.At(blue, green) = PaintedGrey(static_cast<std::uint8_t>(std::nearbyint(weighed)));
            }
        }
        ASSERT_EQ(PaintedPoint(kFastPoints, &PointSet::GreyScale, source, {}), expected) << "red " << red;
    }
}

// All 256 values in all three channels, and their images, by a percent.
void ExpectContrastAgreement(const std::string& percent) {
    Bitmap source(256, 1);
    for (int x = 0; x < 256; ++x) {
        const auto value = static_cast<std::uint8_t>(x);
        source.At(x, 0) = {value, static_cast<std::uint8_t>(255 - x), static_cast<std::uint8_t>(x ^ 85),
                           value};
    }
    const auto contrasted = [&](FXForm form) {
        Bitmap painted(256, 1);
        Contrast(Variant(percent), form).Apply(source.Pixels(), painted.Pixels());
        return painted;
    };
    ASSERT_EQ(contrasted(FXForm::Fast), contrasted(FXForm::Plain)) << percent;
}

TEST(ContrastFormsAgree, AtEveryWholePercentAndBetween) {
    for (int percent = -1100; percent <= 1100; ++percent) {
        ExpectContrastAgreement(std::to_string(percent));
        if (HasFatalFailure()) return;
    }
    for (int hundredth = -20000; hundredth <= 20000; hundredth += 37) {
        ExpectContrastAgreement(std::to_string(hundredth / 100.0));
        if (HasFatalFailure()) return;
    }
    for (const char* percent :
         {"25600", "25700", "-25599.5", "30000", "-30000", "99999", "1E+9", "1E+30", "x", ""}) {
        ExpectContrastAgreement(percent);
        if (HasFatalFailure()) return;
    }
}

// The fast way is open at any percent that makes a difference, and at its fastest for nearly all.
TEST(ContrastLineTest, EveryWholePercentHasALineThrough127) {
    for (int percent = -12700; percent <= 12700; percent += std::abs(percent) < 1100 ? 1 : 97) {
        const Contrast contrast(Variant(std::to_string(percent)));
        fast::ContrastTable table{};
        for (std::size_t c = 0; c < 256; ++c)
            table[c] = contrast(static_cast<std::uint8_t>(c));
        const auto line = fast::FitContrastLine(table, percent / 100.0);
        ASSERT_TRUE(line) << percent;
        EXPECT_EQ(line->offset, 0) << percent;
    }
}

TEST(ContrastLineTest, WhatIsRoundedUpToAWholeStepNeedsAnOffset) {
    const Contrast contrast(Variant("99.6"));
    fast::ContrastTable table{};
    for (std::size_t c = 0; c < 256; ++c)
        table[c] = contrast(static_cast<std::uint8_t>(c));
    const auto line = fast::FitContrastLine(table, 0.996);
    ASSERT_TRUE(line);
    EXPECT_GT(line->offset, 0);
}

TEST(ContrastLineTest, ATableThatIsNoLineHasNone) {
    fast::ContrastTable table{};
    for (std::size_t c = 0; c < 256; ++c)
        table[c] = static_cast<std::uint8_t>(c);
    EXPECT_TRUE(fast::FitContrastLine(table, 0));
    table[200] = 7;
    for (const double steps : {0.0, 0.5, -0.5, 1000.0, std::nan("")})
        EXPECT_FALSE(fast::FitContrastLine(table, steps));
}

} // namespace
} // namespace mirelle::test
