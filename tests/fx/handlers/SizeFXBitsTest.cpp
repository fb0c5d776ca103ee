// Which boxes the pixel arrays take their sizes from.
#include "fx/SizeFXBits.h"

#include "tests/fx/handlers/FxProgram.h"
#include "tests/support/ErrorOf.h"

namespace mirelle::test {
namespace {

class SizeFXBitsTest : public FxProgramTest {
protected:
    static void ExpectSize(const PixelFrame& frame, int width, int height) {
        EXPECT_EQ(frame.info.bmWidth, width);
        EXPECT_EQ(frame.info.bmHeight, height);
        EXPECT_EQ(frame.info.bmWidthBytes, 4 * width);
        EXPECT_EQ(frame.bytes.Width(), width);
        EXPECT_EQ(frame.bytes.Height(), height);
    }
};

TEST_F(SizeFXBitsTest, TheSourceIsSizedForPic1AndTheDestinationForPicImage) {
    form.Pic1.Picture = ChartPicture(7, 5);
    form.PicImage.Picture = ChartPicture(4, 9);
    SizeFXBits(form);
    ExpectSize(form.FXSource, 7, 5);
    ExpectSize(form.FXDest, 4, 9);
}

TEST_F(SizeFXBitsTest, TheImagesTellTheSizesAndNotThePictures) {
    form.Pic1.AutoSize = false;
    form.PicImage.AutoSize = false;
    form.Pic1.Picture = ChartPicture(7, 5);
    form.PicImage.Picture = ChartPicture(4, 9);
    form.Pic1.Move(0, 0, 20 * kTwipsPerPixel, 10 * kTwipsPerPixel);
    form.PicImage.Move(0, 0, 3, 11);
    SizeFXBits(form);
    EXPECT_EQ(form.Pic1.Image().Width(), 20);
    ExpectSize(form.FXSource, 20, 10);
    EXPECT_EQ(form.PicImage.Image().Height(), 11);
    ExpectSize(form.FXDest, 3, 11);
}

TEST_F(SizeFXBitsTest, WithoutPixelsInPic1TheDestinationStaysAsItWas) {
    Paste(ChartPicture(8, 6));
    form.FXDest.bytes.At(0, 0, 0) = 99;
    form.PicImage.Picture = ChartPicture(4, 9);
    form.Pic1.Width = 0;
    form.Pic1.Height = 0;
    EXPECT_EQ(ErrorOf([&] { SizeFXBits(form); }), ErrorNumber::DivisionByZero);
    ExpectSize(form.FXDest, 8, 6);
    EXPECT_EQ(form.FXDest.bytes.At(0, 0, 0), 99);
}

TEST_F(SizeFXBitsTest, ThePasteThatSizesThemEndsWithoutAWordWherePic1HasNoPixels) {
    Paste(ChartPicture(8, 6));
    form.ckAutoPaste.Value = kChecked;
    form.PicImage.Picture = ChartPicture(4, 9);
    form.Pic1.Width = 0;
    Paste(Picture());
    ExpectSize(form.FXDest, 8, 6);
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

} // namespace
} // namespace mirelle::test
