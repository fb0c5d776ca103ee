#include "desktop/pictures/PictureFileIO.h"

#include "desktop/pictures/QtImages.h"
#include "tests/desktop/ports/JpegMaker.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestDib.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

#include <QImage>

namespace mirelle {
namespace {

using test::ErrorOf;

class TestPictureTest : public testing::Test {
protected:
    Bitmap Read(const QImage& image, const char* format) {
        EXPECT_TRUE(image.save(QString::fromStdString(folder_ / "picture"), format));
        return ReadTestPicture(folder_ / "picture").Pixels();
    }

    test::TemporaryFolder folder_;
};

TEST_F(TestPictureTest, HasAPngsAlphaChannelInItsFourthByteAndTheColoursAsTheyAre) {
    const Bitmap noise = test::NoiseBitmap(17, 11, 5);
    const QImage image = ImageOver(noise);
    const QImage withAlpha(image.constBits(), image.width(), image.height(), image.bytesPerLine(),
                           QImage::Format_ARGB32);
    EXPECT_EQ(Read(withAlpha, "png"), noise);
}

TEST_F(TestPictureTest, Has0InItsFourthByteWithoutAnAlphaChannel) {
    const Bitmap smooth = test::SmoothBitmap(17, 11);
    EXPECT_EQ(Read(ImageOver(smooth), "png"), smooth);
    EXPECT_EQ(Read(ImageOver(smooth), "bmp"), smooth);
    QImage grey(2, 1, QImage::Format_Grayscale8);
    grey.scanLine(0)[0] = 7;
    grey.scanLine(0)[1] = 200;
    EXPECT_EQ(Read(grey, "png").At(1, 0), (Pixel{200, 200, 200, 0}));
    EXPECT_EQ(Read(ImageOver(smooth).convertToFormat(QImage::Format_Indexed8), "png").At(3, 3).fourth, 0);
}

TEST_F(TestPictureTest, HasADeclaredAlphaChannelOfABitmapFile) {
    folder_.MakeFile("picture", test::BmpBytes({.width = 1,
                                                .bitCount = 32,
                                                .compression = 3,
                                                .headerSize = 108,
                                                .masks = {0x00FF0000, 0x0000FF00, 0x000000FF, 0xFF000000},
                                                .pixels = {1, 2, 3, 4}}));
    EXPECT_EQ(ReadTestPicture(folder_ / "picture").Pixels().At(0, 0), (Pixel{1, 2, 3, 4}));
}

TEST_F(TestPictureTest, IsOnlyReadFromPngAndBmpFiles) {
    EXPECT_EQ(ErrorOf([&] { ReadTestPicture(folder_ / "none"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { ReadTestPicture(folder_ / "none/none"); }), ErrorNumber::PathNotFound);
    for (const test::FileBytes& file :
         {test::FileBytes(), test::FileBytes{'B', 'M'}, test::FileBytes{0x89, 'P', 'N', 'G'},
          test::MakeJpeg(test::SmoothBitmap(8, 8))}) {
        folder_.MakeFile("picture", file);
        EXPECT_EQ(ErrorOf([&] { ReadTestPicture(folder_ / "picture"); }), ErrorNumber::InvalidPicture);
    }
}

TEST(ImageOverABitmap, LooksOnTheBitmapsOwnMemory) {
    const Bitmap bitmap = test::NoiseBitmap(5, 4, 2);
    const QImage image = ImageOver(bitmap);
    EXPECT_EQ(image.constBits(), reinterpret_cast<const uchar*>(bitmap.Pixels().data()));
    EXPECT_EQ(image.size(), QSize(5, 4));
    const Pixel pixel = bitmap.At(3, 2);
    EXPECT_EQ(image.pixel(3, 2), qRgb(pixel.red, pixel.green, pixel.blue));
}

} // namespace
} // namespace mirelle
