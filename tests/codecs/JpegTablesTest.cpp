#include "codecs/jpeg/Quantiser.h"
#include "codecs/jpeg/Tables.h"
#include "tests/codecs/JpegFile.h"
#include "tests/codecs/LibJpeg.h"
#include "tests/codecs/reference/PlainJpeg.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

using test::RaisedBy;

TEST(JpegTables, ZigZagIsTheWalkOverTheGrid) {
    const auto walked = reference::WalkedZigZag();
    for (std::size_t n = 0; n < 64; ++n)
        EXPECT_EQ(jpeg::ZigZag[n], walked[n]) << n;
}

TEST(JpegTables, BaseTablesAreThoseOfTheStandardInZigZagOrder) {
    const auto walked = reference::WalkedZigZag();
    for (std::size_t n = 0; n < 64; ++n) {
        const auto z = static_cast<std::size_t>(walked[n]);
        EXPECT_EQ(jpeg::QLuminance[z], reference::kNaturalLuminance[n]) << n;
        EXPECT_EQ(jpeg::QChrominance[z], reference::kNaturalChrominance[n]) << n;
    }
}

TEST(JpegTables, BaseTablesAreThoseOfAForeignEncoder) {
    const auto walked = reference::WalkedZigZag();
    const test::BaseTables foreign = test::ForeignBaseTables();
    for (std::size_t n = 0; n < 64; ++n) {
        const auto z = static_cast<std::size_t>(walked[n]);
        EXPECT_EQ(jpeg::QLuminance[z], foreign.luminance[n]) << n;
        EXPECT_EQ(jpeg::QChrominance[z], foreign.chrominance[n]) << n;
    }
}

TEST(JpegTables, FDCTScaleFollowsItsFormula) {
    EXPECT_EQ(jpeg::FDCTScale, reference::ComputedFdctScale());
}

// S by hand, for the formula's edges.
TEST(JpegQuality, ScaleOfQualityFollowsTheFormula) {
    struct Row {
        int quality, scale;
    };
    for (const Row& row : {Row{1, 5000}, Row{2, 2500}, Row{3, 1666}, Row{49, 102}, Row{50, 100}, Row{75, 50},
                           Row{99, 2}, Row{100, 0}}) {
        EXPECT_EQ(jpeg::ScaleOfQuality(row.quality), row.scale) << row.quality;
    }
}

TEST(JpegQuality, AValueOutsideOfTheRangeCountsAs75) {
    cJPEG jpeg;
    EXPECT_EQ(jpeg.Quality(), 75);
    for (const int value : {0, 101, -1, 1000, -2147483647}) {
        jpeg.Quality(30);
        EXPECT_EQ(jpeg.Quality(), 30);
        jpeg.Quality(value);
        EXPECT_EQ(jpeg.Quality(), 75) << value;
    }
    jpeg.Quality(1);
    EXPECT_EQ(jpeg.Quality(), 1);
    jpeg.Quality(100);
    EXPECT_EQ(jpeg.Quality(), 100);
}

// The tables that the files carry, for every quality.
TEST(JpegQuality, FilesCarryTheBaseTablesScaledAndClamped) {
    const Bitmap surface(8, 8, {10, 20, 30, 0});
    for (int quality = 1; quality <= 100; ++quality) {
        cJPEG jpeg;
        jpeg.Quality(quality);
        ASSERT_EQ(jpeg.SampleHDC(surface, 8, 8), 0);
        const auto tables = test::SegmentsOf(test::Saved(jpeg), 0xDB);
        ASSERT_EQ(tables.size(), 2U);
        const int scale = quality < 50 ? 5000 / quality : quality < 100 ? 200 - 2 * quality : 0;
        const auto walked = reference::WalkedZigZag();
        for (std::size_t t = 0; t < 2; ++t) {
            const auto& base = t == 0 ? reference::kNaturalLuminance : reference::kNaturalChrominance;
            ASSERT_EQ(tables[t].content.size(), 65U);
            EXPECT_EQ(tables[t].content[0], t);
            for (std::size_t n = 0; n < 64; ++n) {
                const int expected = std::clamp((base[n] * scale + 50) / 100, 1, 255);
                EXPECT_EQ(tables[t].content[1 + static_cast<std::size_t>(walked[n])], expected);
            }
        }
    }
}

TEST(JpegQuality, OneHundredGivesTablesOfOnes) {
    jpeg::QuantTable table;
    jpeg::ScaleBaseTable(table, jpeg::QLuminance, jpeg::ScaleOfQuality(100), 8);
    for (const int value : table.Qk)
        EXPECT_EQ(value, 1);
    jpeg::ScaleQuantTable(table, 8);
    for (std::size_t n = 0; n < 64; ++n)
        EXPECT_EQ(table.Fdtbl[jpeg::ZigZag[n]], jpeg::FDCTScale[n]);
}

TEST(JpegQuality, ReciprocalFactorsAreRounded) {
    jpeg::QuantTable table;
    table.Qk.fill(3);
    table.Qk[jpeg::ZigZag[9]] = 5;
    jpeg::ScaleQuantTable(table, 8);
    EXPECT_EQ(table.Fdtbl[0], 5461);                 // (16384 + 1) \ 3
    EXPECT_EQ(table.Fdtbl[jpeg::ZigZag[2]], 8360);   // (25080 + 1) \ 3
    EXPECT_EQ(table.Fdtbl[jpeg::ZigZag[36]], 21845); // (65536 + 1) \ 3
    EXPECT_EQ(table.Fdtbl[jpeg::ZigZag[9]], 3277);   // (16384 + 2) \ 5
}

TEST(JpegQuality, AValueOutsideOfThePrecisionIsABadTable) {
    jpeg::QuantTable table;
    for (const std::int16_t value : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{256}}) {
        table.Qk.fill(255);
        table.Qk[40] = value;
        const auto raised = RaisedBy([&] { jpeg::ScaleQuantTable(table, 8); });
        EXPECT_EQ(raised.number, 1);
        EXPECT_EQ(raised.description, "Bad Quantization Table");
    }
    table.Qk[40] = 256;
    EXPECT_EQ(RaisedBy([&] { jpeg::ScaleQuantTable(table, 12); }).number, 0);
    table.Qk[40] = 0;
    EXPECT_EQ(RaisedBy([&] { jpeg::ScaleQuantTable(table, 12); }).description, "Bad Quantization Table");
}

TEST(JpegQuality, APrecisionOfTwelveClampsAt65535) {
    jpeg::QuantTable table;
    jpeg::ScaleBaseTable(table, jpeg::QLuminance, jpeg::ScaleOfQuality(1), 12);
    EXPECT_EQ(table.Qk[0], 800); // (16 * 5000 + 50) \ 100
    jpeg::ScaleBaseTable(table, jpeg::QLuminance, jpeg::ScaleOfQuality(1), 8);
    EXPECT_EQ(table.Qk[0], 255);
}

} // namespace
} // namespace mirelle
