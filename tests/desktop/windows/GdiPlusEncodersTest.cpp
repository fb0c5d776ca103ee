// The platform's encoders write what another of its decoders reads back.
#include "desktop/windows/GdiPlusEncoders.h"

#include "codecs/modGDIPlus.h"
#include "desktop/encoders/IndexedBitmap.h"
#include "desktop/windows/GdiPlus.h"
#include "desktop/windows/Wide.h"
#include "tests/support/Patterns.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestPictures.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <span>

#include <gmock/gmock.h>

namespace mirelle {
namespace {

namespace flat = Gdiplus::DllExports;

class Decoder {
public:
    explicit Decoder(const std::string& path) {
        Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token_, &input, nullptr);
        if (flat::GdipCreateBitmapFromFile(windows::Wide(path).c_str(), &image_) != Gdiplus::Ok)
            image_ = nullptr;
    }
    ~Decoder() {
        if (image_ != nullptr) flat::GdipDisposeImage(image_);
        Gdiplus::GdiplusShutdown(token_);
    }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    bool IsOpen() const { return image_ != nullptr; }
    GUID Format() const {
        GUID format{};
        flat::GdipGetImageRawFormat(image_, &format);
        return format;
    }
    Bitmap Pixels() const {
        UINT width = 0;
        UINT height = 0;
        flat::GdipGetImageWidth(image_, &width);
        flat::GdipGetImageHeight(image_, &height);
        Bitmap bitmap(static_cast<int>(width), static_cast<int>(height));
        for (int y = 0; y < bitmap.Height(); ++y) {
            for (int x = 0; x < bitmap.Width(); ++x) {
                Gdiplus::ARGB color = 0;
                flat::GdipBitmapGetPixel(image_, x, y, &color);
                bitmap.At(x, y) = {static_cast<std::uint8_t>(color), static_cast<std::uint8_t>(color >> 8),
                                   static_cast<std::uint8_t>(color >> 16), 0};
            }
        }
        return bitmap;
    }

private:
    ULONG_PTR token_ = 0;
    Gdiplus::GpBitmap* image_ = nullptr;
};

int GreatestDifference(const Bitmap& first, const Bitmap& second) {
    if (first.Width() != second.Width() || first.Height() != second.Height()) return 1000;
    int greatest = 0;
    for (std::size_t i = 0; i < first.Pixels().size(); ++i) {
        const Pixel& a = first.Pixels()[i];
        const Pixel& b = second.Pixels()[i];
        greatest = std::max(
            {greatest, std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
    }
    return greatest;
}

struct Row {
    const char* name;
    GUID format;
    int greatestDifference;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

class GdiPlusEncodersTest : public testing::TestWithParam<Row> {};

TEST_P(GdiPlusEncodersTest, WritesAFileThatReadsBack) {
    const test::TemporaryFolder folder;
    const std::string path = folder / GetParam().name;
    const Bitmap bitmap = test::SmoothBitmap(83, 47);
    GdiPlusEncoders encoders;
    const std::int32_t token = StartGDIPlus(encoders);
    ASSERT_NE(token, 0);
    EXPECT_TRUE(SaveImageGDIPlus(encoders, Picture(Bitmap(bitmap)), path));
    StopGDIPlus(encoders, token);

    const Decoder decoder(path);
    ASSERT_TRUE(decoder.IsOpen());
    EXPECT_TRUE(IsEqualGUID(decoder.Format(), GetParam().format));
    EXPECT_LE(GreatestDifference(decoder.Pixels(), bitmap), GetParam().greatestDifference);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(std::filesystem::path(folder.Path())), {}),
              1);
}

INSTANTIATE_TEST_SUITE_P(Formats, GdiPlusEncodersTest,
                         testing::Values(Row{"wall.png", Gdiplus::ImageFormatPNG, 0},
                                         Row{"wall.tif", Gdiplus::ImageFormatTIFF, 0},
                                         Row{"wall.bmp", Gdiplus::ImageFormatBMP, 0},
                                         Row{"wall.jpg", Gdiplus::ImageFormatJPEG, 60},
                                         Row{"wall.gif", Gdiplus::ImageFormatGIF, 48}),
                         [](const auto& row) { return std::string(row.param.name).substr(5); });

// A picture of so many colours, each of them at least once, in no order.
Bitmap BitmapOfColours(int count) {
    Bitmap bitmap(32, 32);
    int number = 0;
    for (Pixel& pixel : bitmap.Pixels()) {
        const int color = number++ * 7 % count;
        pixel = {static_cast<std::uint8_t>(color * 31), static_cast<std::uint8_t>(255 - color),
                 static_cast<std::uint8_t>(color * 3), 0};
    }
    return bitmap;
}

using Colour = std::array<int, 3>; // red, green, blue

std::set<Colour> ColoursOf(std::span<const Pixel> pixels) {
    std::set<Colour> colours;
    for (const Pixel& pixel : pixels)
        colours.insert({pixel.red, pixel.green, pixel.blue});
    return colours;
}

// The colours in the table that a GIF file has for its first picture (GIF89a, 17 to 24): its own, or the one
// behind the file's header.
std::set<Colour> ColourTable(const std::string& file) {
    constexpr std::size_t kHeader = 13;
    constexpr std::size_t kDescriptor = 10;
    const auto byte = [&file](std::size_t place) {
        return std::size_t{static_cast<unsigned char>(file.at(place))};
    };
    const auto countOf = [](std::size_t flags) {
        return (flags & 0x80) != 0 ? std::size_t{2} << (flags & 7) : 0;
    };
    std::size_t place = kHeader;
    std::size_t count = countOf(byte(10));
    std::size_t behind = kHeader + count * 3;
    while (byte(behind) == 0x21) { // an extension: its kind, and blocks that begin with their lengths
        behind += 2;
        while (byte(behind) != 0)
            behind += byte(behind) + 1;
        ++behind;
    }
    if (const std::size_t own = countOf(byte(behind + kDescriptor - 1)); own != 0) {
        count = own;
        place = behind + kDescriptor;
    }
    std::set<Colour> colours;
    for (; count != 0; --count, place += 3)
        colours.insert({int(byte(place)), int(byte(place + 1)), int(byte(place + 2))});
    return colours;
}

TEST(GdiPlus, WritesAGifOfAtMost256ColoursExactly) {
    for (const int count : {1, 2, 5, 200, 256}) {
        const test::TemporaryFolder folder;
        const Bitmap bitmap = BitmapOfColours(count);
        const std::set<Colour> wanted = ColoursOf(bitmap.Pixels());
        ASSERT_EQ(wanted.size(), std::size_t(count));
        GdiPlusEncoders encoders;
        encoders.Start();
        ASSERT_TRUE(encoders.Save(Picture(Bitmap(bitmap)), ImageFormat::Gif, folder / "wall.gif"));
        EXPECT_TRUE(std::ranges::includes(ColourTable(folder.ContentOf("wall.gif")), wanted))
            << count << " colours";
        EXPECT_EQ(GreatestDifference(Decoder(folder / "wall.gif").Pixels(), bitmap), 0)
            << count << " colours";
    }
}

TEST(GdiPlus, WritesAGifOfMoreColoursInThePaletteThatIsChosenForIt) {
    const test::TemporaryFolder folder;
    const Bitmap bitmap = test::SmoothBitmap(83, 47);
    const IndexedBitmap indexed = IndexByDithering(bitmap);
    GdiPlusEncoders encoders;
    encoders.Start();
    ASSERT_TRUE(encoders.Save(Picture(Bitmap(bitmap)), ImageFormat::Gif, folder / "wall.gif"));
    EXPECT_TRUE(std::ranges::includes(ColourTable(folder.ContentOf("wall.gif")), ColoursOf(indexed.palette)));
    const Bitmap written = Decoder(folder / "wall.gif").Pixels();
    for (std::size_t i = 0; i < indexed.numbers.size(); ++i)
        ASSERT_EQ(written.Pixels()[i], indexed.palette[indexed.numbers[i]]) << i;
}

TEST(GdiPlus, RunsOnlyBetweenStartAndStop) {
    const test::TemporaryFolder folder;
    GdiPlusEncoders encoders;
    const Picture picture = test::ChartPicture(8, 8);
    EXPECT_FALSE(encoders.Save(picture, ImageFormat::Png, folder / "wall.png"));
    encoders.Start();
    EXPECT_TRUE(encoders.Save(picture, ImageFormat::Png, folder / "wall.png"));
    encoders.Stop();
    EXPECT_FALSE(encoders.Save(picture, ImageFormat::Png, folder / "other.png"));
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(folder / "other.png")));
}

TEST(GdiPlus, ReplacesAFileWholeOrLeavesIt) {
    const test::TemporaryFolder folder;
    folder.MakeFile("wall.png", "old");
    GdiPlusEncoders encoders;
    encoders.Start();
    EXPECT_FALSE(encoders.Save(Picture(), ImageFormat::Png, folder / "wall.png"));
    EXPECT_FALSE(encoders.Save(test::ChartPicture(8, 8), ImageFormat::Png, folder / "none/wall.png"));
    EXPECT_EQ(folder.ContentOf("wall.png"), "old");
    EXPECT_TRUE(encoders.Save(test::ChartPicture(8, 8), ImageFormat::Png, folder / "wall.png"));
    EXPECT_TRUE(folder.ContentOf("wall.png").starts_with("\x89PNG"));
}

} // namespace
} // namespace mirelle
