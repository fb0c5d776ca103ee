// Picture boxes: sizes, scales and the two layers.
#include "forms/PictureBox.h"

#include "tests/forms/TestForm.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/Patterns.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

using test::ChartPicture;
using test::ErrorOf;

constexpr PictureBox::Units kPixels{ScaleUnit::Pixels, ScaleUnit::Pixels, true};
constexpr PictureBox::Units kTwips{ScaleUnit::Twips, ScaleUnit::Twips, true};
constexpr PictureBox::Units kMixed{ScaleUnit::Twips, ScaleUnit::Pixels, false};

struct PictureBoxTest : testing::Test, test::TestForm {
    PictureBox box{form, "Picture1", kPixels};
};

TEST_F(PictureBoxTest, TakesTheSizeOfAnAssignedPictureWhileAutoSizeIsOn) {
    box.Picture = ChartPicture(30, 20);
    EXPECT_EQ(box.Width(), 30);
    EXPECT_EQ(box.Height(), 20);
    box.Picture = Picture(); // no size to take
    EXPECT_EQ(box.Width(), 30);
    box.AutoSize = false;
    box.Picture = ChartPicture(7, 5);
    EXPECT_EQ(box.Width(), 30);
    box.AutoSize = true; // takes the present picture's
    EXPECT_EQ(box.Width(), 7);
    EXPECT_EQ(box.Height(), 5);
}

TEST_F(PictureBoxTest, MeasuresInTheUnitOfItsContainerAndInItsOwn) {
    PictureBox twips(form, "Picture2", kTwips);
    twips.Picture = ChartPicture(30, 20);
    EXPECT_EQ(twips.Width(), 450);
    EXPECT_EQ(twips.ScaleWidth(), 450);
    EXPECT_EQ(twips.PixelWidth(), 30);
    EXPECT_EQ(twips.Point(60, 30), ColorOf(Pixel{4, 2, 0, 0}));
    EXPECT_EQ(twips.ScaleFromPixels(4.5F), 67.5F);
    PictureBox mixed(form, "Picture3", kMixed);
    mixed.Width = 450;
    mixed.Height = 300;
    EXPECT_EQ(mixed.ScaleWidth(), 30);
    EXPECT_EQ(mixed.ScaleHeight(), 20);
    EXPECT_EQ(mixed.ScaleMode(), ScaleUnit::Pixels);
}

TEST_F(PictureBoxTest, RoundsASizeToWholePixels) {
    box.Width = 10.5F;
    box.Height = 11.5F;
    EXPECT_EQ(box.PixelWidth(), 10); // ties to even
    EXPECT_EQ(box.PixelHeight(), 12);
    EXPECT_EQ(box.Width(), 10.5F);
}

TEST_F(PictureBoxTest, KeepsItsSizeWhereAnotherCanNotBe) {
    box.Width = 10;
    EXPECT_EQ(ErrorOf([&] { box.Width = -1; }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(ErrorOf([&] { box.Width = 1e10F; }), ErrorNumber::Overflow);
    EXPECT_EQ(box.Width(), 10);
    EXPECT_EQ(box.PixelWidth(), 10);
}

TEST_F(PictureBoxTest, TakesASizeInPixelsWhateverItsUnits) {
    PictureBox twips(form, "Picture2", kTwips);
    twips.SizeInPixels(7, 5);
    EXPECT_EQ(twips.Width(), 105);
    EXPECT_EQ(twips.PixelHeight(), 5);
    box.SizeInPixels(7, 5);
    EXPECT_EQ(box.Width(), 7);
    box.SizeInPixels(-1, 9); // the one that can't be is passed over
    EXPECT_EQ(box.PixelWidth(), 7);
    EXPECT_EQ(box.PixelHeight(), 9);
}

TEST_F(PictureBoxTest, TellsEachAssignmentOfAPicture) {
    int changes = 0;
    box.Change.Connect([&] {
        ++changes;
        EXPECT_EQ(box.Width(), 30) << "the box has its size by then";
    });
    const Picture chart = ChartPicture(30, 20);
    box.Picture = chart;
    box.Picture = chart;
    EXPECT_EQ(changes, 2);
}

TEST_F(PictureBoxTest, SharesPixelsWithWhoeverItGotThemFrom) {
    PictureBox other(form, "Picture2", kTwips);
    const Picture chart = ChartPicture(30, 20);
    box.Picture = chart;
    other.Picture = box.Picture;
    EXPECT_TRUE(other.Picture().SharesPixelsWith(chart));
    EXPECT_TRUE(other.Image().SharesPixelsWith(chart)); // nothing painted, the same size
}

TEST_F(PictureBoxTest, PaintingReachesTheImageAndNoOtherHolder) {
    PictureBox other(form, "Picture2", kPixels);
    box.Picture = ChartPicture(4, 3);
    other.Picture = box.Image();
    const Picture before = box.Image();
    box.Paint().At(1, 1) = Pixel{9, 9, 9, 9};
    EXPECT_EQ(box.Image().Pixels().At(1, 1), (Pixel{9, 9, 9, 9}));
    EXPECT_EQ(box.Picture().Pixels().At(1, 1), (Pixel{1, 1, 0, 0}));
    EXPECT_EQ(before.Pixels().At(1, 1), (Pixel{1, 1, 0, 0}));
    EXPECT_EQ(other.Image().Pixels().At(1, 1), (Pixel{1, 1, 0, 0}));
    box.Paint().At(2, 2) = Pixel{8, 8, 8, 8};
    EXPECT_EQ(box.Image().Pixels().At(1, 1), (Pixel{9, 9, 9, 9})) << "painting goes on";
    box.Cls();
    EXPECT_EQ(box.Image().Pixels().At(1, 1), (Pixel{1, 1, 0, 0}));
}

TEST_F(PictureBoxTest, AnImageTakenEarlierKeepsItsPixelsWhilePaintingGoesOn) {
    box.Move(0, 0, 3, 3);
    box.Paint().At(0, 0) = Pixel{1, 0, 0, 0};
    const Picture first = box.Image();
    box.Paint().At(0, 0) = Pixel{2, 0, 0, 0};
    const Picture second = box.Image();
    EXPECT_EQ(first.Pixels().At(0, 0).blue, 1);
    EXPECT_EQ(second.Pixels().At(0, 0).blue, 2);
}

TEST_F(PictureBoxTest, TheImageShowsThePictureFromTheCornerOverTheBackground) {
    box.BackColor = 0x112233;
    box.AutoSize = false;
    box.Move(0, 0, 5, 2);
    box.Picture = ChartPicture(3, 4);
    const Picture image = box.Image();
    EXPECT_EQ(image.Width(), 5);
    EXPECT_EQ(image.Height(), 2);
    EXPECT_EQ(image.Pixels().At(2, 1), (Pixel{2, 1, 0, 0}));
    EXPECT_EQ(ColorOf(image.Pixels().At(3, 1)), 0x112233);
    EXPECT_EQ(box.Point(2, 1), ColorOf(Pixel{2, 1, 0, 0}));
    EXPECT_EQ(box.Point(4, 1), 0x112233);
    EXPECT_EQ(box.Point(5, 1), kOffPicture);
    EXPECT_EQ(box.Point(0, -1), kOffPicture);
    EXPECT_EQ(box.Point(3e9F, 1), kOffPicture);
    EXPECT_EQ(box.Point(0, -3e9F), kOffPicture);
    EXPECT_EQ(box.Point(std::numeric_limits<float>::quiet_NaN(), 0), kOffPicture);
    EXPECT_EQ(box.Point(1.5F, 0.5F), ColorOf(Pixel{2, 0, 0, 0})) << "ties to even";
}

TEST_F(PictureBoxTest, ALargeEmptyBoxCostsNothing) {
    // Ten billion pixels: no machine has the memory that this would take at four bytes each.
    box.Move(0, 0, 100000, 100000);
    EXPECT_EQ(box.PixelWidth(), 100000);
    EXPECT_EQ(box.Point(99999, 99999), box.BackColor());
    EXPECT_EQ(ErrorOf([&] { box.Image(); }), ErrorNumber::OutOfMemory);
    box.Picture = ChartPicture(3, 3);
    EXPECT_EQ(box.Image().Width(), 3);
}

TEST_F(PictureBoxTest, PaintPictureCopiesAnAreaToAPlace) {
    box.Move(0, 0, 6, 5);
    const Color ground = box.BackColor;
    box.PaintPicture(ChartPicture(10, 10, 7), 1, 2, 3, 2, 4, 5);
    for (int y = 0; y < 5; ++y) {
        for (int x = 0; x < 6; ++x) {
            const bool inside = x >= 1 && x < 4 && y >= 2 && y < 4;
            const Pixel copied{static_cast<std::uint8_t>(x + 3), static_cast<std::uint8_t>(y + 3), 7, 0};
            EXPECT_EQ(box.Point(float(x), float(y)), inside ? ColorOf(copied) : ground) << x << ' ' << y;
        }
    }
    EXPECT_TRUE(box.Picture().IsEmpty());
}

TEST_F(PictureBoxTest, PaintPictureClipsOnEverySide) {
    box.Move(0, 0, 4, 4);
    const Color ground = box.BackColor;
    const Picture chart = ChartPicture(3, 3, 7);
    box.PaintPicture(chart, -1, -1, 3, 3, 0, 0); // beyond the box's upper left
    EXPECT_EQ(box.Point(0, 0), ColorOf(Pixel{1, 1, 7, 0}));
    EXPECT_EQ(box.Point(2, 2), ground);
    box.Cls();
    box.PaintPicture(chart, 0, 0, 4, 4, -1, -1); // beyond the source's upper left
    EXPECT_EQ(box.Point(0, 0), ground);
    EXPECT_EQ(box.Point(1, 1), ColorOf(Pixel{0, 0, 7, 0}));
    EXPECT_EQ(box.Point(3, 3), ColorOf(Pixel{2, 2, 7, 0}));
    box.Cls();
    box.PaintPicture(chart, 2, 2, 9, 9, 1, 1); // beyond both lower rights
    EXPECT_EQ(box.Point(3, 3), ColorOf(Pixel{2, 2, 7, 0}));
}

TEST_F(PictureBoxTest, PaintPictureOfNothingPaintsNothing) {
    box.Move(0, 0, 4, 4);
    const Color ground = box.BackColor;
    box.PaintPicture(Picture(), 0, 0, 4, 4, 0, 0);
    box.PaintPicture(ChartPicture(3, 3, 7), 0, 0, 0, 3, 0, 0);
    box.PaintPicture(ChartPicture(3, 3, 7), 9, 0, 3, 3, 0, 0);
    for (const float far : {-2147483648.0F, 2147483520.0F}) {
        box.PaintPicture(ChartPicture(3, 3, 7), 0, 0, 3, 3, far, 0);
        box.PaintPicture(ChartPicture(3, 3, 7), 0, 0, 3, 3, 0, far);
        box.PaintPicture(ChartPicture(3, 3, 7), far, 0, 3, 3, 0, 0);
        box.PaintPicture(ChartPicture(3, 3, 7), 0, far, 3, 3, 0, 0);
    }
    for (int at = 0; at < 4; ++at)
        EXPECT_EQ(box.Point(float(at), float(at)), ground);
}

TEST_F(PictureBoxTest, PaintPictureMayReadItsOwnImage) {
    box.Picture = ChartPicture(6, 6);
    box.PaintPicture(box.Image(), 2, 2, 4, 4, 0, 0);
    EXPECT_EQ(box.Point(5, 5), ColorOf(Pixel{3, 3, 0, 0}));
    box.PaintPicture(box.Image(), 0, 0, 4, 4, 2, 2);
    EXPECT_EQ(box.Point(0, 0), ColorOf(Pixel{0, 0, 0, 0}));
    EXPECT_EQ(box.Point(3, 3), ColorOf(Pixel{3, 3, 0, 0}));
}

TEST_F(PictureBoxTest, PaintPictureRoundsItsMeasuresToPixels) {
    PictureBox twips(form, "Picture2", kTwips);
    twips.Move(0, 0, 60, 60);
    twips.PaintPicture(ChartPicture(4, 4, 7), 15, 15, 30, 30, 22, 0); // 22 twips are one pixel
    EXPECT_EQ(twips.Point(15, 15), ColorOf(Pixel{1, 0, 7, 0}));
    EXPECT_EQ(twips.Point(45, 45), twips.BackColor());
}

TEST_F(PictureBoxTest, AnImageControlKeepsItsSize) {
    ImageControl image(form, "Image1");
    image.Move(0, 0, 50, 40);
    const Picture chart = ChartPicture(3, 3);
    image.Picture = chart;
    EXPECT_EQ(image.Width(), 50);
    EXPECT_TRUE(image.Picture().SharesPixelsWith(chart));
}

} // namespace
} // namespace mirelle
