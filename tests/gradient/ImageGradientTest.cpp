#include "gradient/ImageGradient.h"
#include "gradient/GradientBands.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class ImageGradientTest : public ::testing::Test {
protected:
    void Show(const Picture& back, const Picture& front) {
        for (PictureBox* box : {&form.pic1grad, &form.pic2grad, &form.picDest}) {
            box->Width = static_cast<float>(back.Width() * 15);
            box->Height = static_cast<float>(back.Height() * 15);
        }
        form.pic1grad.Picture = back;
        form.pic2grad.Picture = front;
    }
    // The result by the bands, over a canvas of its own size.
    static Bitmap Faded(const Picture& back, const Picture& front, int start, int end, int direction) {
        Bitmap result = back.CopyBitmap();
        const BandSizes sizes{double(back.Width()), double(back.Height()), double(front.Width()),
                              double(front.Height())};
        DrawBandsPlain(result, front.Pixels(), BandsOf(sizes, start, end, direction));
        return result;
    }

    TestProgram program;
    FrmPicX& form = program.form;
    Picture canvas = ChartPicture(300, 200, 10);
    Picture fade = Picture(Bitmap(300, 200, Pixel{250, 0, 250, 0}));
};

TEST_F(ImageGradientTest, StartsWithRangesChecksAndChoicesOfItsDesign) {
    EXPECT_EQ(form.chkStretch.Value, kChecked);
    EXPECT_EQ(form.hStart.LargeChange, 20);
    EXPECT_EQ(form.hEnd.LargeChange, 20);
    EXPECT_EQ(form.hStart.Max, 32767);
    EXPECT_EQ(form.hEnd.Max, 32767);
    EXPECT_EQ(form.hEnd.Value, 32767);
    EXPECT_EQ(form.cmbDirection.Rows(), (std::vector<std::string>{"Horizontal", "Vertical"}));
    EXPECT_EQ(form.cmbDirection.ListIndex(), kNoRow);
}

TEST_F(ImageGradientTest, FadesDownAndMakesTheResultTheCanvas) {
    Show(canvas, fade);
    form.cmdGradV(1).UserClick();
    EXPECT_TRUE(form.GradDirectionV);
    EXPECT_FALSE(form.GradDirectionH);
    EXPECT_TRUE(form.optDirection(1).Value);
    EXPECT_EQ(form.cmbDirection.ListIndex(), 1);
    EXPECT_EQ(form.hStart.Max, 200);
    EXPECT_EQ(form.hEnd.Max, 200);
    EXPECT_EQ(form.hEnd.Value, 200); // at the far edge
    const Bitmap expected = Faded(canvas, fade, form.hStart.Value(), form.hEnd.Value(), kVertical);
    EXPECT_EQ(form.picDest.Image().Pixels(), expected);
    EXPECT_EQ(form.PicImage.Picture().Pixels(), expected);
    EXPECT_EQ(form.Picture().Pixels(), expected);
}

TEST_F(ImageGradientTest, FadesAcross) {
    Show(canvas, fade);
    form.cmdGradV(0).UserClick();
    EXPECT_TRUE(form.GradDirectionH);
    EXPECT_FALSE(form.GradDirectionV);
    EXPECT_TRUE(form.optDirection(0).Value);
    EXPECT_EQ(form.hEnd.Max, 300);
    form.hEnd.UserSet(300);
    EXPECT_EQ(form.PicImage.Picture().Pixels(), Faded(canvas, fade, 0, 300, kHorizontal));
}

TEST_F(ImageGradientTest, TheSlidersRedrawFromTheStoredPictures) {
    Show(canvas, fade);
    form.cmdGradV(1).UserClick();
    form.hEnd.UserSet(150);
    form.hStart.UserSet(30);
    EXPECT_EQ(form.PicImage.Picture().Pixels(), Faded(canvas, fade, 30, 150, kVertical));
    form.hStart.UserDrag(60);
    EXPECT_EQ(form.PicImage.Picture().Pixels(), Faded(canvas, fade, 60, 150, kVertical));
    form.hEnd.UserDrag(120);
    EXPECT_EQ(form.PicImage.Picture().Pixels(), Faded(canvas, fade, 60, 120, kVertical));
    form.hEnd.UserDrag(150);
    form.hStart.UserDrag(180); // crossed: the solid rest alone
    EXPECT_EQ(form.PicImage.Picture().Pixels(), Faded(canvas, fade, 180, 150, kVertical));
    form.hStart.UserDrop();
    form.hStart.UserSet(150); // equal
    EXPECT_EQ(form.PicImage.Picture().Pixels(), Faded(canvas, fade, 150, 150, kVertical));
}

TEST_F(ImageGradientTest, StretchFitsASmallerPictureOverTheResult) {
    const Picture small = ChartPicture(30, 20, 90);
    Show(canvas, small);
    form.cmdGradV(1).UserClick();
    form.hEnd.UserSet(200);
    EXPECT_EQ(form.pic2grad.Picture().Width(), 300);
    EXPECT_EQ(form.PicImage.Picture().Pixels(), Faded(canvas, form.pic2grad.Picture, 0, 200, kVertical));
    EXPECT_TRUE(form.StoredGradientPicture.SharesPixelsWith(small));
}

TEST_F(ImageGradientTest, AStretchedPictureIsMadeOnceForAllStepsOfASlider) {
    const Picture small = ChartPicture(30, 20, 90);
    Show(canvas, small);
    form.cmdGradV(1).UserClick();
    const Picture stretched = form.pic2grad.Picture;
    form.hStart.UserDrag(10);
    form.hStart.UserDrag(20);
    EXPECT_TRUE(form.pic2grad.Picture().SharesPixelsWith(stretched));
}

TEST_F(ImageGradientTest, WithoutStretchTheSmallerPictureKeepsItsSize) {
    const Picture small = ChartPicture(30, 20, 90);
    form.chkStretch.Value = kUnchecked; // ahead of the pictures: it restores the stored ones, none yet
    Show(canvas, small);
    form.cmdGradV(0).UserClick();
    form.hEnd.UserSet(0);
    form.hStart.UserSet(0);
    EXPECT_TRUE(form.pic2grad.Picture().SharesPixelsWith(small));
    // The box is as large as the result: the picture stands in its corner over the box's ground.
    const Bitmap& result = form.PicImage.Picture().Pixels();
    EXPECT_EQ(result.At(10, 10), small.Pixels().At(10, 10));
    EXPECT_EQ(result.At(100, 100), PixelOf(form.pic2grad.BackColor));
}

TEST_F(ImageGradientTest, WithoutStretchALargerPictureIsCutAtItsBox) {
    const Picture large = ChartPicture(500, 400, 90);
    form.chkStretch.Value = kUnchecked;
    Show(canvas, large);
    form.cmdGradV(1).UserClick();
    form.hStart.UserSet(20);
    form.hEnd.UserSet(120);
    EXPECT_TRUE(form.pic2grad.Picture().SharesPixelsWith(large));
    const Picture shown(Cut(large.Pixels(), 0, 0, 300, 200));
    EXPECT_EQ(form.PicImage.Picture().Pixels(), Faded(canvas, shown, 20, 120, kVertical));
}

TEST_F(ImageGradientTest, TheEndSliderStandsAtTheFarEdgeOfAFirstPicture) {
    for (const int index : {kHorizontal, kVertical}) {
        TestProgram fresh;
        FrmPicX& first = fresh.form;
        for (PictureBox* box : {&first.pic1grad, &first.pic2grad, &first.picDest}) {
            box->Width = 1100 * 15;
            box->Height = 1060 * 15;
        }
        first.pic1grad.Picture = canvas;
        first.cmdGradV(index).UserClick();
        EXPECT_EQ(first.hEnd.Max, index == kHorizontal ? 1100 : 1060);
        EXPECT_EQ(first.hEnd.Value, first.hEnd.Max());
        EXPECT_EQ(first.hStart.Value, 0);
    }
}

TEST_F(ImageGradientTest, AClickOnStretchRestoresThePicturesAndRedraws) {
    const Picture small = ChartPicture(30, 20, 90);
    Show(canvas, small);
    form.cmdGradV(1).UserClick();
    form.chkStretch.UserClick();
    EXPECT_TRUE(form.pic2grad.Picture().SharesPixelsWith(small));
    EXPECT_TRUE(form.pic1grad.Picture().SharesPixelsWith(canvas));
    form.chkStretch.UserClick();
    EXPECT_EQ(form.pic2grad.Picture().Width(), 300);
}

TEST_F(ImageGradientTest, WithNoDirectionChosenOnlyThePictureIsHandedOn) {
    Show(canvas, fade);
    form.StoredCanvasPicture = canvas;
    form.StoredGradientPicture = fade;
    form.picDest.Picture = canvas;
    form.hStart.UserSet(5);
    EXPECT_EQ(form.PicImage.Picture().Pixels(), canvas.Pixels());
    EXPECT_EQ(form.Picture().Pixels(), canvas.Pixels());
}

TEST_F(ImageGradientTest, APictureNarrowerThan128HasNoFadeAcross) {
    const Picture narrow = ChartPicture(100, 40, 10);
    Show(narrow, Picture(Bitmap(100, 40, Pixel{250, 0, 250, 0})));
    form.cmdGradV(0).UserClick();
    form.hEnd.UserSet(70);
    const Bitmap& result = form.PicImage.Picture().Pixels();
    EXPECT_EQ(result.At(69, 10), narrow.Pixels().At(69, 10));
    EXPECT_EQ(result.At(70, 10), (Pixel{250, 0, 250, 0}));
}

TEST_F(ImageGradientTest, ChoosingADirectionInTheListSetsTheRanges) {
    Show(canvas, fade);
    form.cmbDirection.SetListIndex(0);
    EXPECT_EQ(form.hStart.Max, 300);
    form.cmbDirection.SetListIndex(1);
    EXPECT_EQ(form.hEnd.Max, 200);
}

} // namespace
} // namespace mirelle::test
