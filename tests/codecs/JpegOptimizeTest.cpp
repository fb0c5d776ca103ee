// The tables that are made for a frame, and the symbols that may stand in them.
#include "codecs/jpeg/OptimizeTables.h"
#include "tests/codecs/JpegFile.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

using jpeg::Frame;
using test::RaisedBy;

constexpr std::array<std::int16_t, 64> kZeros{};

// A grey picture of one block with nothing but its first value, and that of so many bits.
Frame FrameWithDcOf(int bits, int precision) {
    Frame frame;
    frame.P = precision;
    frame.X = 8;
    frame.Y = 8;
    jpeg::Component& component = frame.Components.emplace_back();
    component.Ci = 1;
    component.DcValues = jpeg::Array<std::int16_t>(1);
    component.DcValues[0] = static_cast<std::int16_t>((1 << bits) - 1);
    component.AcStore.Add(kZeros.data(), 0);
    return frame;
}

test::Raised RaisedForDcOf(int bits, int precision) {
    const Frame frame = FrameWithDcOf(bits, precision);
    jpeg::HuffmanTables tables;
    return RaisedBy([&] { jpeg::OptimizeTables(frame, jpeg::GroupComponents(frame), tables); });
}

TEST(JpegOptimize, DifferencesOfElevenBitsAreTheLargestOfEightBitSamples) {
    EXPECT_EQ(RaisedForDcOf(11, 8).number, 0);
    for (const int bits : {12, 15}) {
        const test::Raised raised = RaisedForDcOf(bits, 8);
        EXPECT_EQ(raised.number, 1) << bits;
        EXPECT_EQ(raised.description, "Bad Huffman Table") << bits;
    }
}

TEST(JpegOptimize, DifferencesOfFifteenBitsAreTheLargestOfTwelveBitSamples) {
    for (const int bits : {11, 12, 15})
        EXPECT_EQ(RaisedForDcOf(bits, 12).number, 0) << bits;
    // From -32768 to 32767 are sixteen.
    Frame frame = FrameWithDcOf(15, 12);
    jpeg::Component& component = frame.Components[0];
    component.DcValues = jpeg::Array<std::int16_t>(2);
    component.DcValues[0] = 32767;
    component.DcValues[1] = -32768;
    component.AcStore.Add(kZeros.data(), 0);
    frame.X = 16;
    jpeg::HuffmanTables tables;
    const test::Raised raised =
        RaisedBy([&] { jpeg::OptimizeTables(frame, jpeg::GroupComponents(frame), tables); });
    EXPECT_EQ(raised.number, 1);
    EXPECT_EQ(raised.description, "Bad Huffman Table");
}

} // namespace
} // namespace mirelle
