#include "desktop/pictures/JpegReader.h"

#include "tests/desktop/ports/JpegMaker.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

namespace mirelle {
namespace {

using test::ErrorOf;
using test::FileBytes;
using test::JpegMaking;
using test::MakeJpeg;
using Colours = test::JpegMaking::Colours;

FileBytes Cut(const FileBytes& file, std::size_t size) {
    return {file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size)};
}

// The width and height that the frame's header tells, put to other values.
FileBytes WithSize(FileBytes file, int width, int height) {
    for (std::size_t i = 2; i + 9 < file.size(); ++i) {
        if (file[i] != 0xFF || (file[i + 1] != 0xC0 && file[i + 1] != 0xC2)) continue;
        file[i + 5] = static_cast<std::uint8_t>(height >> 8);
        file[i + 6] = static_cast<std::uint8_t>(height);
        file[i + 7] = static_cast<std::uint8_t>(width >> 8);
        file[i + 8] = static_cast<std::uint8_t>(width);
        return file;
    }
    ADD_FAILURE() << "no frame header";
    return file;
}

int GreatestDifference(const Bitmap& a, const Bitmap& b) {
    EXPECT_EQ(a.Width(), b.Width());
    EXPECT_EQ(a.Height(), b.Height());
    int greatest = 0;
    for (std::size_t i = 0; i < a.Pixels().size(); ++i) {
        const Pixel& p = a.Pixels()[i];
        const Pixel& q = b.Pixels()[i];
        for (const int difference : {p.blue - q.blue, p.green - q.green, p.red - q.red})
            greatest = std::max(greatest, std::abs(difference));
    }
    return greatest;
}

TEST(JpegReader, GivesWhatTheLibraryGivesInItsPlainestWay) {
    for (const bool isProgressive : {false, true}) {
        for (const Colours colours : {Colours::Three, Colours::Grey}) {
            const FileBytes file =
                MakeJpeg(test::SmoothBitmap(67, 45), {.colours = colours, .isProgressive = isProgressive});
            EXPECT_EQ(ReadJpeg(file), test::DecodeJpegPlainly(file));
        }
    }
}

TEST(JpegReader, IsNearThePictureThatWasWritten) {
    const Bitmap bitmap = test::SmoothBitmap(64, 64, 120.0);
    EXPECT_LE(GreatestDifference(ReadJpeg(MakeJpeg(bitmap, {.quality = 100})), bitmap), 8);
}

// What four inks give on paper, black included.
Bitmap Printed(const Bitmap& bitmap) {
    Bitmap printed = bitmap;
    for (Pixel& pixel : printed.Pixels()) {
        const auto darkened = [light = 255 - pixel.fourth](std::uint8_t colour) {
            return static_cast<std::uint8_t>((colour * light + 127) / 255);
        };
        pixel = {darkened(pixel.blue), darkened(pixel.green), darkened(pixel.red), 0};
    }
    return printed;
}

Bitmap SmoothInks() {
    Bitmap bitmap = test::SmoothBitmap(64, 48);
    for (int y = 0; y < bitmap.Height(); ++y)
        for (int x = 0; x < bitmap.Width(); ++x)
            bitmap.At(x, y).fourth = static_cast<std::uint8_t>(2 * x + y);
    return bitmap;
}

TEST(JpegReader, MixesFourInks) {
    const Bitmap bitmap = SmoothInks();
    const FileBytes file = MakeJpeg(bitmap, {.colours = Colours::FourUnmarked, .quality = 100});
    EXPECT_LE(GreatestDifference(ReadJpeg(file), Printed(bitmap)), 6);
}

TEST(JpegReader, MixesInksThatAMarkedFileHoldsInverted) {
    const Bitmap bitmap = SmoothInks();
    Bitmap inverted = bitmap;
    for (Pixel& pixel : inverted.Pixels()) {
        pixel = {static_cast<std::uint8_t>(255 - pixel.blue), static_cast<std::uint8_t>(255 - pixel.green),
                 static_cast<std::uint8_t>(255 - pixel.red), static_cast<std::uint8_t>(255 - pixel.fourth)};
    }
    const FileBytes file = MakeJpeg(inverted, {.colours = Colours::Four, .quality = 100});
    EXPECT_LE(GreatestDifference(ReadJpeg(file), Printed(bitmap)), 6);
}

TEST(JpegReader, ClearsTheFourthByte) {
    for (const Colours colours : {Colours::Grey, Colours::Three, Colours::Four}) {
        const Bitmap bitmap = ReadJpeg(MakeJpeg(test::NoiseBitmap(16, 16, 1), {.colours = colours}));
        for (const Pixel& pixel : bitmap.Pixels())
            ASSERT_EQ(pixel.fourth, 0);
    }
}

TEST(JpegReader, DoesNotTurnThePictureAsItsTagAsks) {
    const FileBytes exif = {
        'E', 'x', 'i',  'f',  0, 0, 'I', 'I', 42, 0, 8, 0, 0, 0, // header
        1,   0,   0x12, 0x01, 3, 0, 1,   0,   0,  0, 6, 0, 0, 0, // orientation: a quarter turn
        0,   0,   0,    0};
    const Bitmap bitmap = test::SmoothBitmap(40, 20);
    EXPECT_EQ(ReadJpeg(MakeJpeg(bitmap, {.exif = exif})), ReadJpeg(MakeJpeg(bitmap)));
}

TEST(JpegReader, GivesThePartThatACutFileHolds) {
    const FileBytes file = MakeJpeg(test::SmoothBitmap(64, 64));
    const Bitmap whole = ReadJpeg(file);
    const Bitmap part = ReadJpeg(Cut(file, file.size() - 200));
    EXPECT_EQ(part.Width(), 64);
    EXPECT_EQ(part.Height(), 64);
    EXPECT_EQ(part.At(0, 0), whole.At(0, 0));
    EXPECT_NE(part, whole);
}

TEST(JpegReader, RefusesWhatIsNoPicture) {
    const auto errorOf = [](const FileBytes& file) { return ErrorOf([&] { ReadJpeg(file); }); };
    EXPECT_EQ(errorOf({}), ErrorNumber::InvalidPicture);
    EXPECT_EQ(errorOf({0xFF}), ErrorNumber::InvalidPicture);
    EXPECT_EQ(errorOf({0xFF, 0xD8, 0xFF}), ErrorNumber::InvalidPicture);
    EXPECT_EQ(errorOf({0xFF, 0xD8, 0xFF, 0xD9}), ErrorNumber::InvalidPicture);
    const FileBytes file = MakeJpeg(test::SmoothBitmap(64, 64));
    EXPECT_EQ(errorOf(Cut(file, 100)), ErrorNumber::InvalidPicture);
    EXPECT_EQ(errorOf(WithSize(file, 0, 64)), ErrorNumber::InvalidPicture);
    FileBytes noise = {0xFF, 0xD8, 0xFF};
    const Bitmap random = test::NoiseBitmap(20, 20, 7);
    for (const Pixel& pixel : random.Pixels())
        noise.push_back(pixel.green);
    EXPECT_EQ(errorOf(noise), ErrorNumber::InvalidPicture);
}

TEST(JpegReader, SurvivesAnyBrokenByte) {
    const FileBytes file = MakeJpeg(test::SmoothBitmap(24, 24), {.isProgressive = true});
    for (std::size_t i = 0; i < file.size(); ++i) {
        FileBytes broken = file;
        broken[i] = static_cast<std::uint8_t>(broken[i] ^ 0x55);
        // Some stay readable; a claim of a larger size than there is memory for may raise 7.
        const auto error = ErrorOf([&] { ReadJpeg(broken); });
        ASSERT_TRUE(!error || error == ErrorNumber::InvalidPicture || error == ErrorNumber::OutOfMemory) << i;
    }
}

// What a file gives: its picture, or an error.
struct Outcome {
    Bitmap bitmap;
    std::optional<ErrorNumber> error;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

template <class Read>
Outcome OutcomeOf(const Read& read) {
    Outcome outcome;
    outcome.error = ErrorOf([&] { outcome.bitmap = read(); });
    return outcome;
}

TEST(JpegReader, GivesTheSameInTwoThreadsWhereverTheyPart) {
    constexpr int height = 203;
    const Bitmap bitmap = test::SmoothBitmap(45, height);
    const JpegMaking makings[] = {
        {},
        {.quality = 30, .rowsBetweenRestarts = 1},
        {.lumaAcross = 1, .lumaDown = 1},
        {.lumaAcross = 2, .lumaDown = 1, .rowsBetweenRestarts = 3},
        {.lumaAcross = 1, .lumaDown = 2},
        {.lumaAcross = 4, .lumaDown = 2},
        {.lumaAcross = 1, .lumaDown = 4},
        {.colours = Colours::Grey},
        {.colours = Colours::Four},
        {.isProgressive = true},
    };
    for (const JpegMaking& making : makings) {
        const FileBytes file = MakeJpeg(bitmap, making);
        const Bitmap inOne = ReadJpeg(file);
        for (int split = 0; split <= height; ++split)
            ASSERT_EQ(ReadJpegInTwo(file, split), inOne) << &making - makings << ' ' << split;
    }
}

TEST(JpegReader, GivesTheSameOfABrokenFileInTwoThreads) {
    const FileBytes file = MakeJpeg(test::SmoothBitmap(40, 180), {.quality = 50, .rowsBetweenRestarts = 4});
    const auto expectSame = [](const FileBytes& bytes, std::size_t place) {
        EXPECT_EQ(OutcomeOf([&] { return ReadJpegInTwo(bytes, 117); }),
                  OutcomeOf([&] { return ReadJpeg(bytes); }))
            << place;
    };
    for (std::size_t i = 0; i < file.size(); ++i) {
        FileBytes broken = file;
        broken[i] = static_cast<std::uint8_t>(broken[i] ^ 0x55);
        expectSame(broken, i);
        expectSame(Cut(file, i), i);
    }
}

TEST(JpegReader, GivesOfALargePictureWhatTheLibraryGives) {
    const FileBytes file = MakeJpeg(test::SmoothBitmap(1201, 1003));
    EXPECT_EQ(ReadJpeg(file), test::DecodeJpegPlainly(file));
}

TEST(JpegReader, MakesNoPictureOfTheSizeThatAFewBytesClaim) {
    const FileBytes file = WithSize(MakeJpeg(test::SmoothBitmap(8, 8)), 65'000, 65'000);
    EXPECT_EQ(ErrorOf([&] { ReadJpeg(file); }), ErrorNumber::OutOfMemory);
}

TEST(JpegReader, GivesUpAFileThatIsMadeToCostTime) {
    const FileBytes file = MakeJpeg(test::SmoothBitmap(16, 16), {.hasCountlessScans = true});
    EXPECT_EQ(ErrorOf([&] { ReadJpeg(file); }), ErrorNumber::InvalidPicture);
}

} // namespace
} // namespace mirelle
