// Which components share a scan, and the order of its blocks.
#include "codecs/jpeg/Geometry.h"
#include "codecs/jpeg/ScanGroups.h"
#include "codecs/jpeg/Symbols.h"
#include "tests/codecs/JpegFile.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

using jpeg::Frame;
using jpeg::ScanGroup;

Frame FrameOf(const std::array<int, 6>& f) {
    Frame frame;
    jpeg::SetSamplingFrequencies(frame, f[0], f[1], f[2], f[3], f[4], f[5]);
    return frame;
}

TEST(JpegScanGroups, HoldThreeComponentsOrTenBlocks) {
    struct Row {
        std::array<int, 6> factors;
        std::vector<ScanGroup> groups;
    };
    const Row rows[] = {
        {{2, 2, 1, 1, 1, 1}, {{0, 2}}},         // 6
        {{4, 2, 1, 1, 1, 1}, {{0, 2}}},         // 10
        {{4, 4, 1, 1, 1, 1}, {{0, 0}, {1, 2}}}, // 16 alone
        {{3, 3, 1, 1, 1, 1}, {{0, 1}, {2, 2}}}, // 9 + 1, then 11
        {{3, 3, 2, 1, 1, 1}, {{0, 0}, {1, 2}}}, // 9 + 2 is too many
        {{1, 1, 4, 4, 1, 1}, {{0, 0}, {1, 1}, {2, 2}}},
        {{1, 1, 1, 1, 4, 4}, {{0, 1}, {2, 2}}},
        {{4, 4, 4, 4, 4, 4}, {{0, 0}, {1, 1}, {2, 2}}},
        {{4, 3, 2, 2, 1, 1}, {{0, 0}, {1, 2}}},
        {{1, 1, 0, 0, 0, 0}, {{0, 0}}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(jpeg::GroupComponents(FrameOf(row.factors)), row.groups);
}

constexpr int kDummy = -1;

// The order of a component's blocks, MCU by MCU, for a frame of X by Y pixels.
std::vector<int> Order(const std::array<int, 6>& factors, int x, int y, std::size_t k, std::size_t blocks) {
    Frame frame = FrameOf(factors);
    frame.X = x;
    frame.Y = y;
    frame.Components[k].DcValues = jpeg::Array<std::int16_t>(blocks);
    const jpeg::InterleavedBlocks interleaved(frame, frame.Components[k]);
    const jpeg::McuCount mcus = jpeg::CountMcus(frame);
    std::vector<int> order;
    for (int row = 0; row < mcus.down; ++row) {
        for (int column = 0; column < mcus.across; ++column) {
            interleaved.ForEachInMcu(row, column, [&order](std::size_t block) {
                order.push_back(block == jpeg::kDummyBlock ? kDummy : static_cast<int>(block));
            });
        }
    }
    return order;
}

TEST(JpegInterleaving, TakesHiByViBlocksOfEachMcu) {
    // 32 x 32 pixels, four blocks across and four down.
    EXPECT_EQ(Order({2, 2, 1, 1, 1, 1}, 32, 32, 0, 16),
              (std::vector<int>{0, 1, 4, 5, 2, 3, 6, 7, 8, 9, 12, 13, 10, 11, 14, 15}));
    EXPECT_EQ(Order({2, 2, 1, 1, 1, 1}, 32, 32, 1, 4), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(Order({2, 1, 1, 1, 1, 1}, 32, 16, 0, 8), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(Order({1, 2, 1, 1, 1, 1}, 16, 32, 0, 8), (std::vector<int>{0, 2, 1, 3, 4, 6, 5, 7}));
}

TEST(JpegInterleaving, OnePixelIsOneBlockAndThreeDummies) {
    EXPECT_EQ(Order({2, 2, 1, 1, 1, 1}, 1, 1, 0, 1), (std::vector<int>{0, kDummy, kDummy, kDummy}));
    EXPECT_EQ(Order({2, 2, 1, 1, 1, 1}, 1, 1, 1, 1), (std::vector<int>{0}));
}

TEST(JpegInterleaving, TheLastColumnAndTheLastRowAreFilledWithDummies) {
    // 24 x 24: three blocks across and down in two MCUs.
    EXPECT_EQ(Order({2, 2, 1, 1, 1, 1}, 24, 24, 0, 9),
              (std::vector<int>{0, 1, 3, 4, 2, kDummy, 5, kDummy, 6, 7, kDummy, kDummy, 8, kDummy, kDummy,
                                kDummy}));
}

TEST(JpegInterleaving, ACountedDummyIsNoDifference) {
    Frame frame = FrameOf({2, 2, 1, 1, 1, 1});
    frame.X = frame.Y = 24;
    jpeg::Component& component = frame.Components[0];
    component.DcValues = jpeg::Array<std::int16_t>(9);
    for (std::size_t b = 0; b < 9; ++b)
        component.DcValues[b] = static_cast<std::int16_t>(1 << b);
    // 1 2 8 16 | 4 d 32 d | 64 128 d d | 256 d d d: differences 1 1 6 8 -12 28 32 64 128.
    jpeg::Frequencies frequency{};
    jpeg::CountDcSymbolsMCU(frame, component, frequency);
    jpeg::Frequencies expected{};
    expected[0] = 7;
    expected[1] = 2;
    expected[3] = 1;
    expected[4] = 2;
    expected[5] = 1;
    expected[6] = 1;
    expected[7] = 1;
    expected[8] = 1;
    EXPECT_EQ(frequency, expected);
}

} // namespace
} // namespace mirelle
