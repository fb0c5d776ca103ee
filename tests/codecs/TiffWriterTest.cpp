#include "codecs/TiffWriter.h"

#include "codecs/LittleEndian.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

#include <map>

namespace mirelle {
namespace {

using test::ErrorOf;
using FileBytes = std::vector<std::uint8_t>;

struct Field {
    std::uint32_t type = 0;
    std::uint32_t count = 0;
    std::vector<std::uint32_t> values; // of a rational the upper number, then the lower one
};

// A reader that knows only what the format's description says.
std::map<std::uint32_t, Field> FieldsOf(const FileBytes& file) {
    EXPECT_EQ(file.at(0), 'I');
    EXPECT_EQ(file.at(1), 'I');
    EXPECT_EQ(U16At(file, 2), 42);
    const std::uint32_t directory = U32At(file, 4);
    EXPECT_EQ(directory % 2, 0u);
    const std::uint32_t count = U16At(file, directory);
    std::map<std::uint32_t, Field> fields;
    std::uint32_t lastTag = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t at = directory + 2 + 12 * i;
        const std::uint32_t tag = U16At(file, at);
        EXPECT_GT(tag, lastTag) << "entries stand in order";
        lastTag = tag;
        Field field{U16At(file, at + 2), U32At(file, at + 4), {}};
        const std::uint32_t numbers = field.type == 5 ? 2 * field.count : field.count;
        const std::uint32_t size = field.type == 3 ? 2 : 4;
        const std::uint32_t place = numbers * size <= 4 ? at + 8 : U32At(file, at + 8);
        for (std::uint32_t n = 0; n < numbers; ++n)
            field.values.push_back(size == 2 ? U16At(file, place + 2 * n) : U32At(file, place + 4 * n));
        fields[tag] = field;
    }
    EXPECT_EQ(U32At(file, directory + 2 + 12 * count), 0u);
    return fields;
}

Bitmap PixelsOf(const FileBytes& file) {
    auto fields = FieldsOf(file);
    Bitmap bitmap(static_cast<int>(fields[256].values.at(0)), static_cast<int>(fields[257].values.at(0)));
    FileBytes samples;
    for (std::size_t i = 0; i < fields[273].values.size(); ++i) {
        const auto strip = PartOf(file, fields[273].values[i], fields[279].values.at(i));
        EXPECT_LE(strip.size(), std::size_t{3} * fields[256].values[0] * fields[278].values.at(0));
        samples.insert(samples.end(), strip.begin(), strip.end());
    }
    EXPECT_EQ(samples.size(), 3 * bitmap.Pixels().size());
    for (std::size_t i = 0; i < bitmap.Pixels().size(); ++i)
        bitmap.Pixels()[i] = {samples.at(3 * i + 2), samples.at(3 * i + 1), samples.at(3 * i), 0};
    return bitmap;
}

Bitmap Opaque(Bitmap bitmap) {
    for (Pixel& pixel : bitmap.Pixels())
        pixel.fourth = 0;
    return bitmap;
}

TEST(TiffWriter, WritesTheFieldsOfABaselineColourImage) {
    const FileBytes file = TiffFile(test::NoiseBitmap(5, 3, 1));
    auto fields = FieldsOf(file);
    const auto value = [&](std::uint32_t tag) { return fields[tag].values.at(0); };
    EXPECT_EQ(value(256), 5u);
    EXPECT_EQ(value(257), 3u);
    EXPECT_EQ(fields[258].values, (std::vector<std::uint32_t>{8, 8, 8}));
    EXPECT_EQ(value(259), 1u);
    EXPECT_EQ(value(262), 2u);
    EXPECT_EQ(value(277), 3u);
    EXPECT_EQ(fields[273].count, 1u);
    EXPECT_EQ(fields[279].values, (std::vector<std::uint32_t>{45}));
    EXPECT_EQ(fields[282].values, (std::vector<std::uint32_t>{96, 1}));
    EXPECT_EQ(fields[283].values, (std::vector<std::uint32_t>{96, 1}));
    EXPECT_EQ(value(296), 2u);
}

TEST(TiffWriter, IsReadBack) {
    for (const auto& [width, height] :
         {std::pair{1, 1}, {1, 300}, {300, 1}, {17, 9}, {400, 300}, {30'000, 3}}) {
        const Bitmap bitmap = test::NoiseBitmap(width, height, 7);
        const FileBytes file = TiffFile(bitmap);
        EXPECT_EQ(file.size(), TiffFileSize(width, height));
        EXPECT_EQ(PixelsOf(file), Opaque(bitmap)) << width << " by " << height;
    }
}

TEST(TiffWriter, WritesALargePictureInSeveralStrips) {
    auto fields = FieldsOf(TiffFile(Bitmap(400, 300)));
    EXPECT_EQ(fields[278].values.at(0), 54u); // rows of 1200 bytes in 64 KiB
    EXPECT_EQ(fields[273].count, 6u);
    EXPECT_EQ(fields[279].values.back(), 30u * 1200u);
}

TEST(TiffWriter, RefusesTheEmptyPicture) {
    EXPECT_EQ(ErrorOf([] { TiffFile(Bitmap()); }), ErrorNumber::InvalidPicture);
}

TEST(TiffWriter, RefusesWhatItsOffsetsCannotTell) {
    EXPECT_EQ(ErrorOf([] { TiffFileSize(30'000, 47'000); }), std::nullopt);
    EXPECT_EQ(ErrorOf([] { TiffFileSize(40'000, 40'000); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { TiffFileSize(INT32_MAX, INT32_MAX); }), ErrorNumber::Overflow);
}

} // namespace
} // namespace mirelle
