#include "codecs/CBitmap.h"

#include "tests/forms/TestForm.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/Patterns.h"

#include <gmock/gmock.h>

#include <limits>

namespace mirelle {
namespace {

using test::ErrorOf;
using testing::ElementsAre;

constexpr Pixel kBlack{};
constexpr Pixel kWhite{255, 255, 255, 0};

Pixel Grey(int value) {
    const auto byte = static_cast<std::uint8_t>(value);
    return {byte, byte, byte, 0};
}

struct CBitmapTest : testing::Test {
    test::TestForm desk;
    PictureBox picSmall{desk.form, "picSmall", {}};
    PictureBox target{desk.form, "target", {ScaleUnit::Twips, ScaleUnit::Twips, false}};
    CBitmap module{picSmall};

    void Draw(std::int32_t width, std::int32_t height, std::int16_t autoSize, int x = 0, int y = 0) {
        module.DrawBitmapToPicture(width, height, target, autoSize, x, y, CBitmap::kFalse);
    }
    // A grey picture of 2 x 1 that waits.
    void MakeGreys(std::uint8_t left, std::uint8_t right) {
        module.BuildGreyPalette(8, 0);
        module.CreatePaletteDIB(std::vector<std::uint8_t>{left, right, 0, 0}, 2, 1, CBitmap::kFalse, 1);
    }
};

TEST_F(CBitmapTest, TakesTheColoursOfABitFromThePhotometricValue) {
    module.SetMonoPalette(0);
    EXPECT_THAT(module.MonoHeader.Colors, ElementsAre(kWhite, kBlack));
    module.SetMonoPalette(1);
    EXPECT_THAT(module.MonoHeader.Colors, ElementsAre(kBlack, kWhite));
    for (const std::int16_t other : {2, 3, -1, 32767}) {
        module.SetMonoPalette(0);
        module.SetMonoPalette(other);
        EXPECT_THAT(module.MonoHeader.Colors, ElementsAre(kBlack, kBlack)) << other;
    }
}

TEST_F(CBitmapTest, TurnsTriplesIntoColoursAndTheRestToBlack) {
    module.BuildGreyPalette(8, 0);
    module.SetPaletteFromBytes(std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 7});
    EXPECT_EQ(module.PaletteHeader.Colors[0], (Pixel{3, 2, 1, 0}));
    EXPECT_EQ(module.PaletteHeader.Colors[1], (Pixel{6, 5, 4, 0}));
    EXPECT_EQ(module.PaletteHeader.Colors[2], (Pixel{0, 0, 7, 0}));
    EXPECT_EQ(module.PaletteHeader.Colors[3], kBlack);
    EXPECT_EQ(module.PaletteHeader.Colors[255], kBlack);
    module.SetPaletteFromBytes(std::vector<std::uint8_t>(800, 9));
    EXPECT_EQ(module.PaletteHeader.Colors[255], (Pixel{9, 9, 9, 0}));
}

TEST_F(CBitmapTest, BuildsARampOfEightBitsForThePalette) {
    const auto bytes = module.BuildGreyPalette(8, 0);
    ASSERT_EQ(bytes.size(), 768U);
    for (int i = 0; i < 256; ++i) {
        EXPECT_EQ(module.PaletteHeader.Colors[static_cast<std::size_t>(i)], Grey(i));
        EXPECT_EQ(bytes[static_cast<std::size_t>(3 * i) + 2], i);
    }
}

TEST_F(CBitmapTest, RoundsTheStepOfARamp) {
    struct Row {
        std::int16_t bits;
        std::size_t entries;
        int step;
    };
    for (const Row row : {Row{0, 1, 0},
                          {1, 2, 255},
                          {2, 4, 85},
                          {3, 8, 36},
                          {5, 32, 8},
                          {6, 64, 4},
                          {7, 128, 2},
                          {9, 512, 0},
                          {16, 256, 1}}) {
        const auto bytes = module.BuildGreyPalette(row.bits, 0);
        ASSERT_EQ(bytes.size(), 3 * row.entries) << row.bits;
        EXPECT_EQ(bytes[0], 0);
        EXPECT_EQ(bytes.back(), row.step * static_cast<int>(row.entries - 1)) << row.bits;
        if (row.entries > 1) {
            EXPECT_EQ(bytes[3], row.step) << row.bits;
            EXPECT_EQ(bytes[5], row.step) << row.bits;
        }
    }
    EXPECT_TRUE(module.BuildGreyPalette(-1, 0).empty());
    EXPECT_TRUE(module.BuildGreyPalette(32767, 0).empty());
}

TEST_F(CBitmapTest, PutsARampIntoATableOnlyForSomeDepths) {
    const std::vector<std::uint8_t> marks(768, 9);
    module.SetMonoPalette(0);
    module.SetPaletteFromBytes(marks);
    for (const std::int16_t bits : {1, 2, 3, 4, 7, 16})
        module.BuildGreyPalette(bits, 0);
    EXPECT_THAT(module.MonoHeader.Colors, ElementsAre(kWhite, kBlack));
    EXPECT_EQ(module.PaletteHeader.Colors[0], Grey(9));
    module.BuildGreyPalette(1, CBitmap::kTrue);
    EXPECT_THAT(module.MonoHeader.Colors, ElementsAre(kBlack, kWhite));
    module.BuildGreyPalette(4, CBitmap::kTrue);
    EXPECT_EQ(module.PaletteHeader.Colors[0], kBlack);
    EXPECT_EQ(module.PaletteHeader.Colors[15], kWhite);
    EXPECT_EQ(module.PaletteHeader.Colors[16], Grey(9));
}

TEST_F(CBitmapTest, FillsTheHeaderOfEachKind) {
    module.CreateMonoDIB({}, 3, 2, CBitmap::kFalse, 0);
    EXPECT_EQ(module.MonoHeader.Header, (BitmapInfoHeader{40, 3, 2, 1, 1, 0}));
    module.CreatePaletteDIB({}, 3, 2, CBitmap::kTrue, 1);
    EXPECT_EQ(module.PaletteHeader.Header, (BitmapInfoHeader{40, 3, -2, 1, 8, 1}));
    module.CreateTrueColorDIB({}, 5, 6, CBitmap::kFalse, CBitmap::k32Bits);
    EXPECT_EQ(module.TrueColor32Header, (BitmapInfoHeader{40, 5, 6, 1, 32, 0}));
    module.CreateTrueColorDIB({}, 7, 8, 1, CBitmap::k24Bits);
    EXPECT_EQ(module.TrueColor24Header, (BitmapInfoHeader{40, 7, -8, 1, 24, 0}));
    EXPECT_EQ(module.TrueColor32Header.Width, 5);
}

TEST_F(CBitmapTest, MakesABitmapOfBitsFromTheLowestRowOn) {
    module.SetMonoPalette(0);
    module.CreateMonoDIB(std::vector<std::uint8_t>{0xA0, 0, 0, 0, 0x40, 0, 0, 0}, 3, 2, CBitmap::kFalse, 0);
    const Bitmap& bitmap = module.BitmapHandle.Pixels();
    EXPECT_THAT(bitmap.Row(1), ElementsAre(kBlack, kWhite, kBlack));
    EXPECT_THAT(bitmap.Row(0), ElementsAre(kWhite, kBlack, kWhite));
}

TEST_F(CBitmapTest, ShowsEveryColourOfThePaletteWhateverNumberIsSaidToBeUsed) {
    module.BuildGreyPalette(8, 0);
    module.CreatePaletteDIB(std::vector<std::uint8_t>{0, 200, 0, 0, 255, 3, 0, 0}, 2, 2, CBitmap::kTrue, 1);
    const Bitmap& bitmap = module.BitmapHandle.Pixels();
    EXPECT_THAT(bitmap.Row(0), ElementsAre(Grey(0), Grey(200)));
    EXPECT_THAT(bitmap.Row(1), ElementsAre(Grey(255), Grey(3)));
}

TEST_F(CBitmapTest, LosesTheLastByteOfATrueColourArray) {
    const std::vector<std::uint8_t> triples = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    module.CreateTrueColorDIB(triples, 4, 1, CBitmap::kFalse, CBitmap::k24Bits);
    EXPECT_THAT(module.BitmapHandle.Pixels().Row(0),
                ElementsAre(Pixel{1, 2, 3, 0}, Pixel{4, 5, 6, 0}, Pixel{7, 8, 9, 0}, Pixel{10, 11, 0, 0}));
    const std::vector<std::uint8_t> quads = {1, 2, 3, 99, 4, 5, 6, 98};
    module.CreateTrueColorDIB(quads, 2, 1, CBitmap::kFalse, CBitmap::k32Bits);
    EXPECT_THAT(module.BitmapHandle.Pixels().Row(0), ElementsAre(Pixel{1, 2, 3, 0}, Pixel{4, 5, 6, 0}));
}

TEST_F(CBitmapTest, LeavesNoBitmapWaitingWhereNoneCanBeMade) {
    MakeGreys(1, 2);
    module.CreatePaletteDIB(std::vector<std::uint8_t>{1, 2}, 3, 1, CBitmap::kFalse, 1);
    EXPECT_TRUE(module.BitmapHandle.IsEmpty());
    MakeGreys(1, 2);
    module.CreateMonoDIB(std::vector<std::uint8_t>(64), 0, 5, CBitmap::kFalse, 0);
    EXPECT_TRUE(module.BitmapHandle.IsEmpty());
    MakeGreys(1, 2);
    module.CreateMonoDIB(std::vector<std::uint8_t>(64), -3, 5, CBitmap::kFalse, 0);
    EXPECT_TRUE(module.BitmapHandle.IsEmpty());
    MakeGreys(1, 2);
    constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
    module.CreateMonoDIB(std::vector<std::uint8_t>(64), 3, kLowest, CBitmap::kTrue, 0);
    EXPECT_TRUE(module.BitmapHandle.IsEmpty());
    MakeGreys(1, 2);
    module.CreateTrueColorDIB({}, 1, 1, CBitmap::kFalse, CBitmap::k24Bits);
    EXPECT_TRUE(module.BitmapHandle.IsEmpty());
}

TEST_F(CBitmapTest, GivesTheTargetTheBitmapsSizeAndPicture) {
    MakeGreys(10, 20);
    picSmall.Picture = test::ChartPicture(9, 9);
    target.SizeInPixels(50, 40);
    target.Paint().At(1, 0) = {1, 1, 1, 1};
    Draw(2, 1, CBitmap::kTrue);
    EXPECT_EQ(target.Width, 30); // twips
    EXPECT_EQ(target.Height, 15);
    EXPECT_THAT(target.Picture().Pixels().Pixels(), ElementsAre(Grey(10), Grey(20)));
    EXPECT_TRUE(picSmall.Picture().IsEmpty()); // whatever the target is
    EXPECT_TRUE(module.BitmapHandle.IsEmpty());
}

TEST_F(CBitmapTest, DrawsEachBitmapOnce) {
    MakeGreys(10, 20);
    Draw(2, 1, CBitmap::kTrue);
    target.Picture = Picture();
    Draw(2, 1, CBitmap::kTrue);
    EXPECT_THAT(target.Picture().Pixels().Pixels(),
                ElementsAre(PixelOf(target.BackColor), PixelOf(target.BackColor)));
}

TEST_F(CBitmapTest, StretchesToTheTargetWithoutAutoSize) {
    MakeGreys(10, 20);
    target.SizeInPixels(4, 2);
    Draw(2, 1, CBitmap::kFalse);
    EXPECT_EQ(target.PixelWidth(), 4);
    const Bitmap& shown = target.Picture().Pixels();
    EXPECT_THAT(shown.Row(0), ElementsAre(Grey(10), Grey(10), Grey(20), Grey(20)));
    EXPECT_THAT(shown.Row(1), ElementsAre(Grey(10), Grey(10), Grey(20), Grey(20)));
}

TEST_F(CBitmapTest, DrawsAtAPlaceInPixels) {
    MakeGreys(10, 20);
    Draw(2, 1, CBitmap::kTrue, 1, 0);
    EXPECT_THAT(target.Picture().Pixels().Pixels(), ElementsAre(PixelOf(target.BackColor), Grey(10)));
}

TEST_F(CBitmapTest, KeepsTheTargetsSizeAndGivesTheSizeInTwipsBack) {
    MakeGreys(10, 20);
    target.SizeInPixels(3, 2);
    std::int32_t width = 2;
    std::int32_t height = 1;
    module.DrawBitmapToPicture(width, height, target, CBitmap::kTrue, 0, 0, CBitmap::kTrue);
    EXPECT_EQ(width, 30);
    EXPECT_EQ(height, 15);
    EXPECT_EQ(target.PixelWidth(), 3);
    EXPECT_EQ(target.PixelHeight(), 2);
    // As many pixels of the source go to as many of the target: the bitmap stands unstretched.
    EXPECT_EQ(target.Picture().Pixels().At(0, 0), Grey(10));
    EXPECT_EQ(target.Picture().Pixels().At(1, 0), Grey(20));
}

TEST_F(CBitmapTest, DrawsNothingWithTheTargetKeptAndNoAutoSize) {
    MakeGreys(10, 20);
    target.SizeInPixels(2, 1);
    std::int32_t width = 2;
    std::int32_t height = 1;
    module.DrawBitmapToPicture(width, height, target, CBitmap::kFalse, 0, 0, CBitmap::kTrue);
    EXPECT_EQ(width, 0);
    EXPECT_EQ(height, 0);
    EXPECT_EQ(target.Picture().Pixels().At(0, 0), PixelOf(target.BackColor));
}

TEST_F(CBitmapTest, PassesOverASizeThatNoTargetTakes) {
    MakeGreys(10, 20);
    target.SizeInPixels(2, 1);
    Draw(std::numeric_limits<std::int32_t>::max(), 1, CBitmap::kTrue); // no number of twips
    EXPECT_EQ(target.PixelWidth(), 0);
    MakeGreys(10, 20);
    Draw(-5, 3, CBitmap::kTrue);
    EXPECT_EQ(target.PixelHeight(), 3);
    EXPECT_TRUE(module.BitmapHandle.IsEmpty());
}

TEST_F(CBitmapTest, TurnsPixelsIntoTwipsAndBack) {
    EXPECT_EQ(CBitmap::PixelsToTwips({3, -2}), (BitmapSize{45, -30}));
    EXPECT_EQ(CBitmap::TwipsToPixels({45, 22}), (BitmapSize{3, 1}));
    EXPECT_EQ(CBitmap::TwipsToPixels({23, -23}), (BitmapSize{2, -2}));
    EXPECT_EQ(ErrorOf([] { CBitmap::PixelsToTwips({1 << 30, 1}); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { CBitmap::PixelsToTwips({1, 1 << 30}); }), ErrorNumber::Overflow);
}

} // namespace
} // namespace mirelle
