// Colour, forward transform and quantisation.
#include "codecs/jpeg/Colour.h"
#include "codecs/jpeg/ForwardDCT.h"
#include "codecs/jpeg/Quantiser.h"
#include "codecs/jpeg/Tables.h"
#include "codecs/jpeg/Transform.h"
#include "codecs/jpeg/TransformBlocks.h"
#include "tests/codecs/reference/PlainJpeg.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace mirelle {
namespace {

using Block = std::array<std::int32_t, 64>;

// In natural order on both sides.
Block Transformed(const Block& block) {
    jpeg::Lanes lanes;
    for (std::size_t n = 0; n < 64; ++n)
        lanes.value[n / 8][n % 8] = block[n];
    jpeg::ForwardDCT(lanes);
    Block result{};
    for (std::size_t n = 0; n < 64; ++n)
        result[n] = lanes.value[n % 8][n / 8];
    return result;
}

Block RandomBlock(std::mt19937& random, std::int32_t limit, bool onlyEnds) {
    Block block{};
    for (std::int32_t& value : block) {
        value = onlyEnds ? (random() % 2 == 0 ? limit : -limit)
                         : static_cast<std::int32_t>(random() % static_cast<unsigned>(2 * limit + 1)) - limit;
    }
    return block;
}

TEST(JpegColour, RowsAreTheConversionsFormulas) {
    for (const int blue : {0, 1, 100, 255}) {
        for (const int green : {0, 2, 128, 255}) {
            for (const int red : {0, 3, 200, 255}) {
                for (int component = 0; component < 3; ++component) {
                    EXPECT_EQ(jpeg::ColourValue(jpeg::kColourRows[static_cast<std::size_t>(component)], blue,
                                                green, red),
                              reference::ColourValue(component, blue, green, red));
                }
            }
        }
    }
    EXPECT_EQ(jpeg::ColourValue(jpeg::kColourRows[0], 255, 255, 255), 127 * 65536);
    EXPECT_EQ(jpeg::ColourValue(jpeg::kColourRows[0], 0, 0, 0), -128 * 65536);
    EXPECT_EQ(jpeg::ColourValue(jpeg::kColourRows[1], 77, 77, 77), 0);
    EXPECT_EQ(jpeg::ColourValue(jpeg::kColourRows[2], 77, 77, 77), 0);
}

TEST(JpegForwardDCT, IsThePlainFormToTheBit) {
    std::mt19937 random(4);
    for (int round = 0; round < 3000; ++round) {
        const Block block = RandomBlock(random, 1 << (round % 24), round % 3 == 0);
        Block plain = block;
        reference::ForwardDCT(plain);
        ASSERT_EQ(Transformed(block), plain) << round;
    }
}

TEST(JpegForwardDCT, TruncatesTowardZero) {
    // One column, the others 0: x0 = -1 gives y0 = -1, and y4 = y0 / 2 - s1 = 0, where a shift would give -1.
    Block block{};
    block[0] = -1;
    const Block result = Transformed(block);
    EXPECT_EQ(result[0], -1);
    EXPECT_EQ(result[32], 0);
    // d0 = -31: /8 = -3, /4 = -7, /32 = 0.
    block[0] = -31;
    EXPECT_EQ(Transformed(block)[48], -10);
}

TEST(JpegForwardDCT, TimesItsScaleIsTheCosineTransform) {
    std::mt19937 random(6);
    const double pi = std::numbers::pi;
    for (int round = 0; round < 50; ++round) {
        const Block block = RandomBlock(random, 8388608, round % 2 == 0);
        const Block result = Transformed(block);
        for (std::size_t v = 0; v < 8; ++v) {
            for (std::size_t u = 0; u < 8; ++u) {
                double exact = 0;
                for (std::size_t n = 0; n < 64; ++n) {
                    exact += block[n] * std::cos((2.0 * (n % 8) + 1) * u * pi / 16) *
                             std::cos((2.0 * (n / 8) + 1) * v * pi / 16);
                }
                exact *= 0.25 * (u == 0 ? std::sqrt(0.5) : 1) * (v == 0 ? std::sqrt(0.5) : 1) / 65536;
                const double scaled = double(result[u + 8 * v]) * jpeg::FDCTScale[u + 8 * v] / 8589934592.0;
                // The shifts stand for sines and tangents with two or three binary digits.
                EXPECT_NEAR(scaled, exact, 24.0) << u << ' ' << v;
            }
        }
    }
}

// What the symbols say of a block's AC values: ITU T.81, F.2.2.
void ReadAcValues(std::span<const jpeg::AcSymbol> symbols, std::span<std::int16_t> values) {
    std::size_t k = 1;
    for (const jpeg::AcSymbol symbol : symbols) {
        const std::size_t run = symbol >> 4 & 15;
        const int size = symbol & 15;
        const int own = static_cast<int>(symbol >> 8);
        k += run;
        if (size == 0) {
            EXPECT_TRUE(run == 15 || symbol == jpeg::kEndOfBlock) << symbol;
        } else {
            const bool negative = own >> (size - 1) == 0;
            ASSERT_LT(k, 64U);
            values[k] = static_cast<std::int16_t>(negative ? own - (1 << size) + 1 : own);
        }
        ++k;
    }
}

// 64 values for each block.
std::vector<std::int16_t> Coefficients(const jpeg::Component& component) {
    std::vector<std::int16_t> values(64 * component.Blocks());
    for (std::size_t block = 0; block < component.Blocks(); ++block) {
        const auto ofBlock = std::span(values).subspan(64 * block, 64);
        ofBlock[0] = component.DcValues[block];
        ReadAcValues(component.BlockSymbols[block], ofBlock);
    }
    return values;
}

// Those of all pixels of a plane.
std::vector<std::int16_t> Coefficients(const Bitmap& bitmap, std::size_t index,
                                       const jpeg::QuantTable& table) {
    const int width = bitmap.Width();
    const int height = bitmap.Height();
    jpeg::Component component;
    const auto stride = static_cast<std::size_t>(width) * 4;
    jpeg::TransformComponent(component, index, table, {width, height, width, height},
                             {&bitmap.At(0, 0).blue, 4, stride, width, height, 0, 0});
    return Coefficients(component);
}

jpeg::QuantTable TableOf(std::int16_t value) {
    jpeg::QuantTable table;
    table.Qk.fill(value);
    jpeg::ScaleQuantTable(table, 8);
    return table;
}

// A flat block has its value times 8 as the only coefficient; both divisions truncate toward zero, so that a
// half and more above a whole number is rounded up for a positive value and down to it for a negative one.
TEST(JpegTransform, QuantisesWithTwoTruncatingDivisions) {
    struct Row {
        std::uint8_t grey;
        std::int16_t step, dc;
    };
    constexpr Row kRows[] = {
        {255, 1, 1016}, //
        {128, 1, 0},    //
        {0, 1, -1023},  // -1024 + 1/2
        {127, 1, -7},   // -8 + 1/2
        {131, 16, 2},   // 24 / 16 = 1.5, plus 1/2
        {125, 16, 0},   // -1.5 was cut by the first division already, plus 1/2
        {132, 16, 2},   //
        {124, 16, -1},  // -2 + 1/2
        {130, 16, 1},   //
        {126, 16, 0},   // -1 + 1/2
    };
    for (const Row& row : kRows) {
        const auto values =
            Coefficients(Bitmap(8, 8, {row.grey, row.grey, row.grey, 0}), 0, TableOf(row.step));
        EXPECT_EQ(values[0], row.dc) << int{row.grey};
        for (std::size_t k = 1; k < 64; ++k)
            EXPECT_EQ(values[k], 0);
    }
}

TEST(JpegTransform, PutsValuesInZigZagOrder) {
    Bitmap across(8, 8);
    Bitmap down(8, 8);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const auto value =
                static_cast<std::uint8_t>(128.0 + 100.0 * std::cos((2 * x + 1) * std::numbers::pi / 16));
            across.At(x, y) = {value, value, value, 0};
            down.At(y, x) = {value, value, value, 0};
        }
    }
    const auto a = Coefficients(across, 0, TableOf(16));
    const auto d = Coefficients(down, 0, TableOf(16));
    EXPECT_GT(a[1], 15); // column 1, row 0
    EXPECT_EQ(a[2], 0);
    EXPECT_GT(d[2], 15); // column 0, row 1
    EXPECT_EQ(d[1], 0);
}

TEST(JpegTransform, TakesBlocksLeftToRightThenDown) {
    Bitmap bitmap(16, 16);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            const auto value = static_cast<std::uint8_t>(128 + x / 8 * 10 + y / 8 * 40);
            bitmap.At(x, y) = {value, value, value, 0};
        }
    }
    const auto values = Coefficients(bitmap, 0, TableOf(1));
    EXPECT_EQ(values[0], 0);
    EXPECT_EQ(values[64], 80);
    EXPECT_EQ(values[128], 320);
    EXPECT_EQ(values[192], 400);
}

// Whatever the processor can do: the same values.
TEST(JpegTransform, AllVersionsGiveTheSameValues) {
    std::mt19937 random(12);
    constexpr std::size_t kBlocks = 5;
    for (int round = 0; round < 300; ++round) {
        jpeg::BlockRow row;
        row.pixelBytes = round % 2 == 0 ? 3 : 4;
        row.component = static_cast<std::size_t>(round % 3);
        row.blocks = kBlocks;
        std::vector<std::uint8_t> bytes(8 * 8 * kBlocks * row.pixelBytes);
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(round % 5 == 0 ? random() % 2 * 255 : random());
        }
        for (std::size_t i = 0; i < 8; ++i)
            row.pixels[i] = &bytes[8 * kBlocks * row.pixelBytes * i];
        const auto factors = jpeg::Transposed(TableOf(static_cast<std::int16_t>(1 + round % 40)));
        struct Result {
            std::vector<std::int16_t> values = std::vector<std::int16_t>(64 * kBlocks);
            std::array<std::uint64_t, kBlocks> nonZero{};
            bool operator==(const Result&) const = default;
        };
        const auto in = [&](Registers registers) {
            Result result;
            jpeg::TransformBlocks(row, factors, result.values.data(), result.nonZero.data(), registers);
            return result;
        };
        const Result plainest = in(Registers::Of16Bytes);
        for (const Registers wider : {Registers::Of32Bytes, Registers::Of64Bytes}) {
            if (wider <= WidestRegisters()) {
                ASSERT_TRUE(in(wider) == plainest) << round;
            }
        }
    }
}

TEST(JpegTransform, ReadsTheNearestEdgePixelBeyondTheMemory) {
    const Bitmap bitmap(3, 2, {200, 200, 200, 0});
    jpeg::Component component;
    jpeg::TransformComponent(component, 0, TableOf(1), {16, 8, 16, 8},
                             {&bitmap.At(0, 0).blue, 4, 12, 3, 2, -5, 1});
    std::vector<std::int16_t> expected(128);
    expected[0] = expected[64] = 576;
    EXPECT_EQ(Coefficients(component), expected);
}

} // namespace
} // namespace mirelle
