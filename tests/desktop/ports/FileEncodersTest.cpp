#include "desktop/encoders/FileEncoders.h"

#include "codecs/BmpReader.h"
#include "desktop/encoders/GifFile.h"
#include "desktop/files/NativeFileSystem.h"
#include "desktop/files/RootedWindowsFileSystem.h"
#include "tests/desktop/ports/GifMaker.h"
#include "tests/desktop/ports/JpegMaker.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestPictures.h"

#include <gmock/gmock.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <cstdlib>

namespace mirelle {
namespace {

using test::ErrorOf;
using test::FileBytes;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array kAllFormats = {ImageFormat::Png, ImageFormat::Gif, ImageFormat::Jpeg, ImageFormat::Tiff,
                                    ImageFormat::Bmp};

Bitmap Opaque(Bitmap bitmap) {
    for (Pixel& pixel : bitmap.Pixels())
        pixel.fourth = 0;
    return bitmap;
}

// What the toolkit reads in a file of that format; a null image where it reads none.
QImage ReadByToolkit(const FileBytes& file, const char* format) {
    return QImage::fromData(file.data(), static_cast<int>(file.size()), format);
}

Bitmap BitmapOf(const QImage& image) {
    Bitmap bitmap(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb colour = image.pixel(x, y);
            bitmap.At(x, y) = {static_cast<std::uint8_t>(qBlue(colour)),
                               static_cast<std::uint8_t>(qGreen(colour)),
                               static_cast<std::uint8_t>(qRed(colour)), 0};
        }
    }
    return bitmap;
}

FileBytes Encode(const Bitmap& bitmap, ImageFormat format) {
    return EncodePicture(Picture(Bitmap(bitmap)), format);
}

TEST(EncodePicture, WritesPngWithoutAlphaThatIsReadBackExactly) {
    const Bitmap bitmap = test::NoiseBitmap(67, 41, 1); // any fourth bytes
    const FileBytes file = Encode(bitmap, ImageFormat::Png);
    EXPECT_EQ(file.at(24), 8); // bits a sample
    EXPECT_EQ(file.at(25), 2); // red, green and blue
    const QImage image = ReadByToolkit(file, "png");
    EXPECT_FALSE(image.hasAlphaChannel());
    EXPECT_EQ(BitmapOf(image), Opaque(bitmap));
}

TEST(EncodePicture, WritesAGreyPictureAsColours) {
    const FileBytes file = Encode(Bitmap(4, 4, {9, 9, 9, 0}), ImageFormat::Png);
    EXPECT_EQ(file.at(25), 2);
}

TEST(EncodePicture, WritesBmpOf24BitsThatIsReadBackExactly) {
    const Bitmap bitmap = test::NoiseBitmap(67, 41, 2);
    const FileBytes file = Encode(bitmap, ImageFormat::Bmp);
    EXPECT_EQ(file.at(28), 24);
    EXPECT_EQ(BitmapOf(ReadByToolkit(file, "bmp")), Opaque(bitmap));
}

TEST(EncodePicture, WritesJpegThatIsNearThePicture) {
    const Bitmap bitmap = test::SmoothBitmap(64, 48, 200.0);
    const Bitmap read = test::DecodeJpegPlainly(Encode(bitmap, ImageFormat::Jpeg));
    ASSERT_EQ(read.Width(), 64);
    ASSERT_EQ(read.Height(), 48);
    for (std::size_t i = 0; i < read.Pixels().size(); ++i) {
        EXPECT_LE(std::abs(read.Pixels()[i].green - bitmap.Pixels()[i].green), 12) << i;
        EXPECT_LE(std::abs(read.Pixels()[i].red - bitmap.Pixels()[i].red), 12) << i;
    }
}

TEST(EncodePicture, WritesTiff) {
    const FileBytes file = Encode(test::NoiseBitmap(5, 4, 3), ImageFormat::Tiff);
    EXPECT_THAT(FileBytes(file.begin(), file.begin() + 4), ElementsAre('I', 'I', 42, 0));
}

TEST(EncodePicture, WritesGifOfTheOwnColoursWhereTheyAreFew) {
    Bitmap bitmap(16, 16);
    for (int i = 0; i < 256; ++i)
        bitmap.Pixels()[static_cast<std::size_t>(i)] = {static_cast<std::uint8_t>(i), 5, 250, 0};
    const auto gif = test::DecodeGif(Encode(bitmap, ImageFormat::Gif));
    ASSERT_TRUE(gif);
    EXPECT_EQ(gif->bitmap, bitmap);
    EXPECT_EQ(gif->frameCount, 1);
}

TEST(EncodePicture, WritesGifWithNoMoreColoursThanItNeeds) {
    for (const auto& [colours, entries] : {std::pair{1, 2}, {2, 2}, {3, 4}, {5, 8}, {129, 256}}) {
        Bitmap bitmap(colours, 2);
        for (int x = 0; x < colours; ++x)
            for (int y = 0; y < 2; ++y)
                bitmap.At(x, y) = {0, 0, static_cast<std::uint8_t>(x), 0};
        const auto gif = test::DecodeGif(Encode(bitmap, ImageFormat::Gif));
        ASSERT_TRUE(gif);
        EXPECT_EQ(gif->colourCount, entries);
        EXPECT_EQ(gif->bitmap, bitmap);
    }
}

TEST(EncodePicture, WritesGifOfAPhotographThatTwoReadersAgreeOn) {
    const Bitmap bitmap = test::SmoothBitmap(211, 97);
    const FileBytes file = Encode(bitmap, ImageFormat::Gif);
    const auto gif = test::DecodeGif(file);
    ASSERT_TRUE(gif);
    EXPECT_EQ(gif->bitmap.Width(), 211);
    EXPECT_EQ(gif->bitmap.Height(), 97);
    EXPECT_EQ(gif->colourCount, 256);
    EXPECT_EQ(BitmapOf(ReadByToolkit(file, "gif")), gif->bitmap);
}

TEST(EncodePicture, RefusesTheEmptyPicture) {
    for (const ImageFormat format : kAllFormats) {
        EXPECT_EQ(ErrorOf([&] { EncodePicture(Picture(), format); }), ErrorNumber::InvalidPicture);
        EXPECT_EQ(ErrorOf([&] { EncodePicture(Picture(Bitmap()), format); }), ErrorNumber::InvalidPicture);
    }
}

TEST(EncodePicture, RefusesAGifThatIsTooWide) {
    EXPECT_EQ(ErrorOf([] { GifFile(Bitmap(65'536, 1)); }), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOf([] { GifFile(Bitmap(1, 65'535)); }), std::nullopt);
}

class FileEncodersTest : public testing::Test {
protected:
    test::TemporaryFolder folder_;
    NativeFileSystem files_{folder_.Path(), folder_ / "komp.txt"};
    FileEncoders encoders_{files_};
    Picture picture_{test::SmoothBitmap(16, 16)};
};

TEST_F(FileEncodersTest, SavesEveryFormat) {
    encoders_.Start();
    for (const ImageFormat format : kAllFormats) {
        folder_.MakeFile("wall",
                         "what stood there, and was longer than any of the files: " + std::string(5000, 'x'));
        EXPECT_TRUE(encoders_.Save(picture_, format, folder_ / "wall"));
        EXPECT_EQ(files_.ReadFile(folder_ / "wall"), EncodePicture(picture_, format));
    }
    encoders_.Stop();
    EXPECT_THAT(files_.FileNames(folder_.Path()), ElementsAre("wall"));
}

TEST_F(FileEncodersTest, SavesThroughAnyFileSystem) {
    folder_.MakeFolder("C/Mirelle");
    RootedWindowsFileSystem windows(folder_.Path());
    EXPECT_TRUE(FileEncoders(windows).Save(picture_, ImageFormat::Png, "c:\\MIRELLE\\wall.png"));
    EXPECT_TRUE(files_.FileExists(folder_ / "C/Mirelle/wall.png"));
}

TEST_F(FileEncodersTest, TellsAFailureAndLeavesNothingBehind) {
    EXPECT_FALSE(encoders_.Save(picture_, ImageFormat::Gif, folder_ / "none/wall.gif"));
    EXPECT_FALSE(encoders_.Save(Picture(), ImageFormat::Gif, folder_ / "wall.gif"));
    EXPECT_THAT(files_.FileNames(folder_.Path()), IsEmpty());
    folder_.MakeFile("wall.gif", "old");
    EXPECT_FALSE(encoders_.Save(Picture(Bitmap(70'000, 1)), ImageFormat::Gif, folder_ / "wall.gif"));
    EXPECT_EQ(folder_.ContentOf("wall.gif"), "old");
}

} // namespace
} // namespace mirelle
