#include "fx/PointFX.h"

#include "tests/fx/KernelTesting.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TestPictures.h"

#include <algorithm>
#include <set>
#include <string>

namespace mirelle::test {
namespace {

struct NamedPointSet {
    std::string_view name;
    const PointSet* set;

    friend void PrintTo(const NamedPointSet& named, std::ostream* out) { *out << named.name; }
};

class PointFXTest : public testing::TestWithParam<NamedPointSet> {
protected:
    static PixelFrame FrameOf(const Bitmap& bitmap) {
        PixelFrame frame;
        frame.SizeFor(bitmap.Width(), bitmap.Height());
        GetBitmapBits(bitmap, frame);
        return frame;
    }
    static PixelFrame EmptyFrame(int width, int height) {
        PixelFrame frame;
        frame.SizeFor(width, height);
        return frame;
    }
    static Bitmap BitmapOf(const PixelFrame& frame) {
        Bitmap bitmap(frame.info.bmWidth, frame.info.bmHeight);
        SetBitmapBits(bitmap, frame);
        return bitmap;
    }

    static void Run(PointEffect effect, const PixelFrame& source, PixelFrame& destination,
                    const PointArguments& arguments = {}) {
        (GetParam().set->*effect)(source, destination, arguments);
    }
    static Bitmap Run(PointEffect effect, const Bitmap& source, const PointArguments& arguments = {}) {
        PixelFrame destination = EmptyFrame(source.Width(), source.Height());
        Run(effect, FrameOf(source), destination, arguments);
        return BitmapOf(destination);
    }
    static Pixel RunOne(PointEffect effect, Pixel pixel, const PointArguments& arguments = {}) {
        return Run(effect, Bitmap(1, 1, pixel), arguments).At(0, 0);
    }
};
INSTANTIATE_TEST_SUITE_P(Points, PointFXTest,
                         testing::Values(NamedPointSet{"Plain", &kPlainPoints},
                                         NamedPointSet{"Fast", &kFastPoints}),
                         [](const auto& test) { return std::string(test.param.name); });

constexpr std::array kAllEffects{&PointSet::Invert,    &PointSet::FlipVertical, &PointSet::FlipHorizontal,
                                 &PointSet::GreyScale, &PointSet::SwapChannels, &PointSet::ShiftColors,
                                 &PointSet::Copy};

const PointArguments& ArgumentsOf(std::string_view control) {
    return std::find_if(kPointButtons.begin(), kPointButtons.end(),
                        [&](const PointButton& button) { return button.control == control; })
        ->arguments;
}

TEST_P(PointFXTest, InvertTurnsEveryChannelRound) {
    EXPECT_EQ(RunOne(&PointSet::Invert, {1, 2, 3, 77}), (Pixel{254, 253, 252, 0}));
}

TEST_P(PointFXTest, InvertAndTheFlipsTwiceAreTheFirstPicture) {
    for (const auto& [width, height] : {std::pair{1, 1}, {7, 4}, {64, 3}, {33, 2}}) {
        const Bitmap noise = WithoutFourth(NoiseBitmap(width, height, 1));
        for (const PointEffect effect :
             {&PointSet::Invert, &PointSet::FlipVertical, &PointSet::FlipHorizontal}) {
            EXPECT_EQ(Run(effect, Run(effect, noise)), noise);
        }
    }
}

TEST_P(PointFXTest, FlipVerticalPutsTheLastRowFirst) {
    EXPECT_EQ(Run(&PointSet::FlipVertical, GreyRows({{1, 2}, {3, 4}, {5, 6}})),
              WithoutFourth(GreyRows({{5, 6}, {3, 4}, {1, 2}})));
}

TEST_P(PointFXTest, FlipHorizontalPutsTheLastColumnFirst) {
    EXPECT_EQ(Run(&PointSet::FlipHorizontal, GreyRows({{1, 2, 3}, {4, 5, 6}})),
              WithoutFourth(GreyRows({{3, 2, 1}, {6, 5, 4}})));
}

TEST_P(PointFXTest, BothFlipsTogetherTurnThePictureByHalf) {
    const Bitmap noise = WithoutFourth(NoiseBitmap(19, 8, 2));
    const Bitmap turned = Run(&PointSet::FlipVertical, Run(&PointSet::FlipHorizontal, noise));
    const auto pixels = noise.Pixels();
    EXPECT_TRUE(std::equal(pixels.rbegin(), pixels.rend(), turned.Pixels().begin()));
}

TEST_P(PointFXTest, GreyScaleWeighsTheChannels) {
    EXPECT_EQ(RunOne(&PointSet::GreyScale, Rgb(255, 0, 0)), PaintedGrey(57));
    EXPECT_EQ(RunOne(&PointSet::GreyScale, Rgb(0, 255, 0)), PaintedGrey(180));
    EXPECT_EQ(RunOne(&PointSet::GreyScale, Rgb(0, 0, 255)), PaintedGrey(18));
    EXPECT_EQ(RunOne(&PointSet::GreyScale, Rgb(255, 255, 255)), PaintedGrey(255));
    EXPECT_EQ(RunOne(&PointSet::GreyScale, Rgb(0, 0, 0)), PaintedGrey(0));
}

TEST_P(PointFXTest, GreyScaleOfGreyIsTheSame) {
    for (int value = 0; value < 256; ++value) {
        const auto byte = static_cast<std::uint8_t>(value);
        EXPECT_EQ(RunOne(&PointSet::GreyScale, Grey(byte)), PaintedGrey(byte));
    }
}

TEST_P(PointFXTest, TheFiveSwapsSendChannelsWhereTheirNamesTell) {
    const auto swapped = [&](std::string_view control) {
        return RunOne(&PointSet::SwapChannels, {30, 20, 10, 77}, ArgumentsOf(control));
    };
    EXPECT_EQ(swapped("cmdRGB2BGR"), Rgb(30, 20, 10));
    EXPECT_EQ(swapped("cmdRGB2BRG"), Rgb(30, 10, 20));
    EXPECT_EQ(swapped("cmdRGB2GBR"), Rgb(20, 30, 10));
    EXPECT_EQ(swapped("cmdRGB2GRB"), Rgb(20, 10, 30));
    EXPECT_EQ(swapped("cmdRGB2RBG"), Rgb(10, 30, 20));
}

TEST_P(PointFXTest, AShiftIsAddedToItsOwnChannelAndLimited) {
    const PointArguments shifts{.shifts = {-10, 20, 255}};
    EXPECT_EQ(RunOne(&PointSet::ShiftColors, Rgb(0, 230, 30), shifts), Rgb(255, 250, 20));
    EXPECT_EQ(RunOne(&PointSet::ShiftColors, Rgb(9, 240, 9), shifts), Rgb(255, 255, 0));
}

TEST_P(PointFXTest, ASliderAtItsEndsGives0Or255FromAnyValue) {
    for (int value = 0; value < 256; ++value) {
        const Pixel grey = Grey(static_cast<std::uint8_t>(value));
        EXPECT_EQ(RunOne(&PointSet::ShiftColors, grey, {.shifts = {-255, -255, -255}}), PaintedGrey(0));
        EXPECT_EQ(RunOne(&PointSet::ShiftColors, grey, {.shifts = {255, 255, 255}}), PaintedGrey(255));
    }
}

TEST_P(PointFXTest, ShiftsAddUp) {
    const Bitmap first = Run(&PointSet::ShiftColors, Bitmap(1, 1, Rgb(100, 0, 0)), {.shifts = {0, 0, 10}});
    EXPECT_EQ(Run(&PointSet::ShiftColors, first, {.shifts = {0, 0, 20}}).At(0, 0), Rgb(130, 0, 0));
}

TEST_P(PointFXTest, CopyLeavesTheFourthByteBehind) {
    const Bitmap noise = NoiseBitmap(9, 5, 3);
    EXPECT_EQ(Run(&PointSet::Copy, noise), WithoutFourth(noise));
}

TEST_P(PointFXTest, NoEffectWritesTheFourthByte) {
    for (const PointEffect effect : kAllEffects) {
        const Bitmap painted = Run(effect, NoiseBitmap(35, 3, 4), {.shifts = {5, 6, 7}});
        EXPECT_EQ(painted, WithoutFourth(painted));
    }
}

TEST_P(PointFXTest, ANarrowerDestinationEndsTheEffectInItsFirstRow) {
    const PixelFrame source = FrameOf(Bitmap(5, 3, Grey(7)));
    for (const PointEffect effect : kAllEffects) {
        PixelFrame destination = EmptyFrame(3, 3);
        EXPECT_EQ(ErrorOf([&] { Run(effect, source, destination); }), ErrorNumber::SubscriptOutOfRange);
        const Pixel written = effect == &PointSet::Invert ? PaintedGrey(248) : PaintedGrey(7);
        Bitmap expected(3, 3);
        for (int x = 0; x < 3; ++x)
            expected.At(x, 0) = written;
        EXPECT_EQ(BitmapOf(destination), expected);
    }
}

TEST_P(PointFXTest, ANarrowerDestinationTakesTheRightEndOfAFlippedRow) {
    const PixelFrame source = FrameOf(GreyRows({{1, 2, 3, 4, 5}}));
    PixelFrame destination = EmptyFrame(3, 1);
    EXPECT_EQ(ErrorOf([&] { Run(&PointSet::FlipHorizontal, source, destination); }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(BitmapOf(destination), WithoutFourth(GreyRows({{5, 4, 3}})));
}

TEST_P(PointFXTest, ALowerDestinationEndsTheEffectBelowItsLastRow) {
    const PixelFrame source = FrameOf(Bitmap(3, 5, Grey(7)));
    for (const PointEffect effect : kAllEffects) {
        PixelFrame destination = EmptyFrame(4, 2);
        EXPECT_EQ(ErrorOf([&] { Run(effect, source, destination); }), ErrorNumber::SubscriptOutOfRange);
        const Pixel written = effect == &PointSet::Invert ? PaintedGrey(248) : PaintedGrey(7);
        Bitmap expected(4, 2, written);
        expected.At(3, 0) = {};
        expected.At(3, 1) = {};
        EXPECT_EQ(BitmapOf(destination), expected);
    }
}

TEST_P(PointFXTest, ALargerDestinationTakesTheEffectAtItsTopLeft) {
    const Bitmap noise = NoiseBitmap(3, 2, 5);
    PixelFrame destination = EmptyFrame(5, 4);
    Run(&PointSet::FlipHorizontal, FrameOf(noise), destination);
    const Bitmap painted = BitmapOf(destination);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 5; ++x) {
            const Pixel expected = x < 3 && y < 2 ? WithoutFourth(noise).At(2 - x, y) : Pixel{};
            EXPECT_EQ(painted.At(x, y), expected);
        }
    }
}

TEST_P(PointFXTest, ASourceArrayNarrowerThanItsRecordFailsAtOnceFromTheRight) {
    PixelFrame source = FrameOf(Bitmap(2, 2, Grey(7)));
    source.info = RecordOf(3, 2);
    PixelFrame destination = EmptyFrame(3, 2);
    EXPECT_EQ(ErrorOf([&] { Run(&PointSet::FlipHorizontal, source, destination); }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(BitmapOf(destination), Bitmap(3, 2));
    EXPECT_EQ(ErrorOf([&] { Run(&PointSet::Copy, source, destination); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(BitmapOf(destination), WithoutFourth(GreyRows({{7, 7, 0}, {0, 0, 0}})));
}

TEST_P(PointFXTest, ASwapFromAChannelThatIsNotThereFails) {
    const PixelFrame source = FrameOf(Bitmap(2, 1, Rgb(1, 2, 3)));
    PixelFrame destination = EmptyFrame(2, 1);
    EXPECT_EQ(ErrorOf([&] {
                  Run(&PointSet::SwapChannels, source, destination, {.swap = {0, 4, 2}});
              }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(BitmapOf(destination).At(0, 0), Rgb(1, 0, 0)); // red goes first
    EXPECT_EQ(RunOne(&PointSet::SwapChannels, {1, 2, 3, 77}, {.swap = {3, 3, 3}}), PaintedGrey(77));
}

TEST_P(PointFXTest, AShiftBeyond16BitsEndsTheEffect) {
    const PixelFrame source = FrameOf(GreyRows({{1, 255}}));
    PixelFrame destination = EmptyFrame(2, 1);
    const PointArguments shifts{.shifts = {32767 - 1, 0, 0}};
    EXPECT_EQ(ErrorOf([&] { Run(&PointSet::ShiftColors, source, destination, shifts); }),
              ErrorNumber::Overflow);
    EXPECT_EQ(BitmapOf(destination).At(0, 0), Rgb(1, 1, 255));
    EXPECT_EQ(BitmapOf(destination).At(1, 0), Pixel{});
}

TEST_P(PointFXTest, FramesThatWereNeverSizedHaveNothingToDo) {
    for (const PointEffect effect : kAllEffects) {
        PixelFrame destination;
        Run(effect, PixelFrame(), destination);
        EXPECT_EQ(ErrorOf([&] { Run(effect, FrameOf(Bitmap(1, 1)), destination); }),
                  ErrorNumber::SubscriptOutOfRange);
    }
}

TEST_P(PointFXTest, ARecordBeyondTheSourceArrayEndsTheEffectWhereTheArrayEnds) {
    PixelFrame source = FrameOf(Bitmap(2, 2, Grey(7)));
    source.info = RecordOf(2, 3);
    PixelFrame destination = EmptyFrame(2, 3);
    EXPECT_EQ(ErrorOf([&] { Run(&PointSet::Copy, source, destination); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(BitmapOf(destination), WithoutFourth(GreyRows({{7, 7}, {7, 7}, {0, 0}})));
    // Upside down the first row read is the one that does not exist.
    PixelFrame flipped = EmptyFrame(2, 3);
    EXPECT_EQ(ErrorOf([&] { Run(&PointSet::FlipVertical, source, flipped); }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(BitmapOf(flipped), Bitmap(2, 3));
}

TEST(PointButtonTest, EveryButtonHasItsToolTip) {
    std::set<std::pair<std::string, std::string>> tips;
    for (const PointButton& button : kPointButtons)
        tips.emplace(button.control, button.toolTip);
    EXPECT_EQ(tips, (std::set<std::pair<std::string, std::string>>{
                        {"cmdNegativeX", "Invert"},
                        {"cmdFlipVert", "Flip Vertical"},
                        {"cmdFlipHoriz", "Flip Horizontal"},
                        {"cmdGreyScale", "Grey Scale"},
                        {"cmdRGB2BGR", "RGB>BGR"},
                        {"cmdRGB2BRG", "RGB>BRG"},
                        {"cmdRGB2GBR", "RGB>GBR"},
                        {"cmdRGB2GRB", "RGB>GRB"},
                        {"cmdRGB2RBG", "RGB>RBG"},
                    }));
}

TEST(PointButtonTest, TheFirstFourRunTheEffectOfTheirName) {
    EXPECT_EQ(kPointButtons[0].effect, &PointSet::Invert);
    EXPECT_EQ(kPointButtons[1].effect, &PointSet::FlipVertical);
    EXPECT_EQ(kPointButtons[2].effect, &PointSet::FlipHorizontal);
    EXPECT_EQ(kPointButtons[3].effect, &PointSet::GreyScale);
    for (std::size_t i = 4; i < kPointButtons.size(); ++i) {
        EXPECT_EQ(kPointButtons[i].effect, &PointSet::SwapChannels);
    }
}

} // namespace
} // namespace mirelle::test
