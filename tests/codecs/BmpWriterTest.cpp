#include "codecs/BmpWriter.h"

#include "codecs/BmpReader.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TestPictures.h"

#include <gmock/gmock.h>

namespace mirelle {
namespace {

using test::ErrorOf;
using testing::ElementsAre;

TEST(BmpWriter, WritesHeadersAndRowsFromTheBottomOnFourByteBoundaries) {
    Bitmap bitmap(2, 2);
    bitmap.At(0, 0) = {1, 2, 3, 99};
    bitmap.At(1, 0) = {4, 5, 6, 99};
    bitmap.At(0, 1) = {7, 8, 9, 99};
    bitmap.At(1, 1) = {10, 11, 12, 99};
    EXPECT_THAT(BmpFile(bitmap),
                ElementsAre('B', 'M', 70, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,   // file header
                            40, 0, 0, 0, 2, 0, 0, 0, 2, 0, 0, 0, 1, 0, 24, 0, // size, planes, depth
                            0, 0, 0, 0, 16, 0, 0, 0, 0xC4, 0x0E, 0, 0, 0xC4, 0x0E, 0,
                            0,                      // 96 pixels to the inch
                            0, 0, 0, 0, 0, 0, 0, 0, // no palette
                            7, 8, 9, 10, 11, 12, 0, 0, 1, 2, 3, 4, 5, 6, 0, 0));
}

TEST(BmpWriter, IsReadBackForEveryPaddingOfRows) {
    for (int width = 1; width <= 9; ++width) {
        Bitmap bitmap = test::NoiseBitmap(width, 5, static_cast<std::uint32_t>(width));
        const Bitmap read = ReadBmp(BmpFile(bitmap));
        for (Pixel& pixel : bitmap.Pixels())
            pixel.fourth = 0;
        EXPECT_EQ(read, bitmap) << width;
    }
}

TEST(BmpWriter, RefusesTheEmptyPicture) {
    EXPECT_EQ(ErrorOf([] { BmpFile(Bitmap()); }), ErrorNumber::InvalidPicture);
}

TEST(BmpWriter, RefusesWhatAHeaderCannotCount) {
    EXPECT_EQ(BmpFileSize(30'000, 47'000), 54u + 90'000u * 47'000u);
    EXPECT_EQ(ErrorOf([] { BmpFileSize(40'000, 40'000); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { BmpFileSize(INT32_MAX, INT32_MAX); }), ErrorNumber::Overflow);
}

} // namespace
} // namespace mirelle
