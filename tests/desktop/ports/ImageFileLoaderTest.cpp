#include "desktop/pictures/ImageFileLoader.h"

#include "desktop/files/NativeFileSystem.h"
#include "desktop/files/RootedWindowsFileSystem.h"
#include "desktop/pictures/QtImages.h"
#include "tests/desktop/ports/GifMaker.h"
#include "tests/desktop/ports/JpegMaker.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestDib.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>

namespace mirelle {
namespace {

using test::ErrorOf;
using test::FileBytes;

constexpr Color kRed = RGB(255, 0, 0);
constexpr Color kGreen = RGB(0, 255, 0);
constexpr Color kBlue = RGB(0, 0, 255);
constexpr Color kWhite = RGB(255, 255, 255);

using Colours = std::vector<Color>;

Colours ColoursOf(const Picture& picture) {
    Colours colours;
    for (const Pixel& pixel : picture.Pixels().Pixels()) {
        EXPECT_EQ(pixel.fourth, 0);
        colours.push_back(ColorOf(pixel));
    }
    return colours;
}

FileBytes FileOf(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return {bytes.begin(), bytes.end()};
}

FileBytes HalfClearPng() {
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(200, 0, 0, 128));
    image.setPixel(1, 0, qRgba(1, 2, 3, 0));
    return FileOf(image, "png");
}

test::GifMaking SmallGif() {
    return {.width = 2,
            .height = 2,
            .palette = {kRed, kGreen, kBlue, kWhite},
            .frames = {{.width = 2, .height = 2, .numbers = {0, 1, 2, 0}}}};
}

auto ErrorOfDecoding(const FileBytes& file) {
    return ErrorOf([&] { DecodePicture(file); });
}

class ImageFileLoaderTest : public testing::Test {
protected:
    Picture Load(const FileBytes& bytes) {
        folder_.MakeFile("picture.txt", bytes); // the name says nothing about the content
        return loader_.LoadPicture(folder_ / "picture.txt");
    }

    test::TemporaryFolder folder_;
    NativeFileSystem files_{folder_.Path(), folder_ / "komp.txt"};
    ImageFileLoader loader_{files_};
};

TEST_F(ImageFileLoaderTest, GivesTheEmptyPictureForTheEmptyPath) {
    EXPECT_TRUE(loader_.LoadPicture("").IsEmpty());
}

TEST_F(ImageFileLoaderTest, RaisesWhatTheFileSystemRaises) {
    EXPECT_EQ(ErrorOf([&] { loader_.LoadPicture(folder_ / "none.jpg"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { loader_.LoadPicture(folder_ / "none/none.jpg"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { loader_.LoadPicture(folder_.Path()); }), ErrorNumber::PathFileAccess);
}

TEST_F(ImageFileLoaderTest, TellsEachKindByItsContent) {
    const Bitmap smooth = test::SmoothBitmap(12, 9);
    const FileBytes jpeg = test::MakeJpeg(smooth);
    EXPECT_EQ(Load(jpeg).Pixels(), test::DecodeJpegPlainly(jpeg));
    EXPECT_EQ(Load(FileOf(ImageOver(smooth), "bmp")).Pixels(), smooth);
    EXPECT_EQ(ColoursOf(Load(test::MakeGif(SmallGif()))), (Colours{kRed, kGreen, kBlue, kRed}));

    const test::TestDib dot = {.width = 1, .height = 1, .pixels = {0, 0, 255, 0}};
    test::TestDib dotAndMask = dot;
    dotAndMask.height = 2;
    EXPECT_EQ(ColoursOf(Load(test::BmpBytes(dot))), (Colours{kRed}));
    EXPECT_EQ(ColoursOf(Load(test::DibBytes(dot))), (Colours{kRed}));
    EXPECT_EQ(ColoursOf(Load(test::IconBytes({{1, 1, 24, test::DibBytes(dotAndMask)}}))), (Colours{kRed}));
    EXPECT_EQ(ColoursOf(Load(test::IconBytes({{1, 1, 24, test::DibBytes(dotAndMask)}}, 2))), (Colours{kRed}));
}

TEST_F(ImageFileLoaderTest, LoadsBareBitmapsOfEveryHeader) {
    for (const std::uint32_t size : {12u, 40u, 108u, 124u})
        EXPECT_EQ(ColoursOf(Load(test::DibBytes({.headerSize = size, .pixels = {255, 0, 0, 0}}))),
                  (Colours{kBlue}))
            << size;
}

TEST_F(ImageFileLoaderTest, LoadsThroughAnyFileSystem) {
    folder_.MakeFolder("C/Mirelle");
    folder_.MakeFile("C/Mirelle/Wall.GIF", test::MakeGif(SmallGif()));
    RootedWindowsFileSystem windows(folder_.Path());
    EXPECT_EQ(ImageFileLoader(windows).LoadPicture("c:\\mirelle\\wall.gif").Width(), 2);
}

TEST_F(ImageFileLoaderTest, RefusesEveryOtherKind) {
    const QImage image = ImageOver(test::SmoothBitmap(4, 4)).copy();
    EXPECT_EQ(ErrorOfDecoding(FileOf(image, "png")), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOfDecoding(FileOf(image, "ppm")), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOfDecoding(FileOf(image, "xpm")), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOfDecoding({'I', 'I', 42, 0, 8, 0, 0, 0}), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOfDecoding({'M', 'M', 0, 42, 0, 0, 0, 8}), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOfDecoding({'8', 'B', 'P', 'S', 0, 1}), ErrorNumber::InvalidPicture);
}

TEST_F(ImageFileLoaderTest, RefusesWhatIsNoPicture) {
    EXPECT_EQ(ErrorOfDecoding({}), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOfDecoding({'B'}), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOfDecoding({'B', 'M'}), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOfDecoding({'G', 'I', 'F', '8', '9', 'a'}), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOfDecoding({0, 0, 1, 0}), ErrorNumber::InvalidPicture);
    EXPECT_EQ(ErrorOfDecoding({40, 0, 0, 0}), ErrorNumber::InvalidPicture);
    FileBytes noise;
    const Bitmap random = test::NoiseBitmap(30, 30, 3);
    for (const Pixel& pixel : random.Pixels())
        noise.push_back(pixel.red);
    EXPECT_EQ(ErrorOfDecoding(noise), ErrorNumber::InvalidPicture);
    const std::string text = "Material wall.jpg brick";
    EXPECT_EQ(ErrorOfDecoding(FileBytes(text.begin(), text.end())), ErrorNumber::InvalidPicture);
}

TEST_F(ImageFileLoaderTest, ShowsTheFirstFrameOfAGif) {
    test::GifMaking making = SmallGif();
    making.frames.push_back({.width = 2, .height = 2, .numbers = {3, 3, 3, 3}});
    EXPECT_EQ(ColoursOf(Load(test::MakeGif(making))), (Colours{kRed, kGreen, kBlue, kRed}));
}

TEST_F(ImageFileLoaderTest, ShowsTheClearColourOfAGifWhite) {
    test::GifMaking making = SmallGif();
    making.frames[0].clear = 0;
    EXPECT_EQ(ColoursOf(Load(test::MakeGif(making))), (Colours{kWhite, kGreen, kBlue, kWhite}));
}

TEST_F(ImageFileLoaderTest, PutsTheRowsOfAnInterlacedGifInOrder) {
    test::GifMaking making = SmallGif();
    making.width = 1;
    making.height = 9;
    making.frames = {{.width = 1, .height = 9, .numbers = {0, 1, 2, 3, 0, 1, 2, 3, 0}, .isInterlaced = true}};
    EXPECT_EQ(ColoursOf(Load(test::MakeGif(making))),
              (Colours{kRed, kGreen, kBlue, kWhite, kRed, kGreen, kBlue, kWhite, kRed}));
}

TEST_F(ImageFileLoaderTest, PutsAGifsFrameInItsPlace) {
    test::GifMaking making = SmallGif();
    making.width = 3;
    making.height = 1;
    making.background = 1;
    making.frames = {{.left = 1, .width = 1, .height = 1, .numbers = {2}}};
    EXPECT_EQ(ColoursOf(Load(test::MakeGif(making))), (Colours{kGreen, kBlue, kGreen}));
}

TEST_F(ImageFileLoaderTest, MakesNoGifOfTheSizeThatAFewBytesClaim) {
    test::GifMaking making = SmallGif();
    making.width = 65'535;
    making.height = 65'535;
    const auto error = ErrorOfDecoding(test::MakeGif(making));
    EXPECT_TRUE(error == ErrorNumber::OutOfMemory || error == ErrorNumber::InvalidPicture);
}

TEST_F(ImageFileLoaderTest, SurvivesAGifWithAnyByteBrokenOrCutOff) {
    const FileBytes file = test::MakeGif(SmallGif());
    for (std::size_t i = 0; i < file.size(); ++i) {
        FileBytes broken = file;
        broken[i] = static_cast<std::uint8_t>(broken[i] ^ 0xFF);
        ErrorOfDecoding(broken);
        const FileBytes cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(i));
        const auto error = ErrorOfDecoding(cut);
        EXPECT_TRUE(i >= 20 || error == ErrorNumber::InvalidPicture) << i;
    }
}

TEST_F(ImageFileLoaderTest, LaysAPngInAnIconOverWhite) {
    EXPECT_EQ(ColoursOf(Load(test::IconBytes({{2, 1, 32, HalfClearPng()}}))),
              (Colours{RGB(227, 127, 127), kWhite}));
}

} // namespace
} // namespace mirelle
