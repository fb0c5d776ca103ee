// The tables that are made for a frame, and the symbols that may stand in them.
#include "codecs/jpeg/OptimizeTables.h"
#include "tests/codecs/JpegFile.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

using jpeg::Frame;
using test::RaisedBy;

// A grey picture of one block with nothing but its first value, and that of so many bits.
Frame FrameWithDcOf(int bits, int precision) {
    Frame frame;
    frame.P = precision;
    frame.X = 8;
    frame.Y = 8;
    jpeg::Component& component = frame.Components.emplace_back();
    component.Ci = 1;
    component.Coefficients = jpeg::Array<std::int16_t>(64);
    component.NonZero = jpeg::Array<std::uint64_t>(1);
    component.DcValues = jpeg::Array<std::int16_t>(1);
    for (std::size_t k = 0; k < 64; ++k)
        component.Coefficients[k] = 0;
    component.Coefficients[0] = component.DcValues[0] = static_cast<std::int16_t>((1 << bits) - 1);
    component.NonZero[0] = 1;
    component.AcSymbols[0] = 1;
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
    component.Coefficients = jpeg::Array<std::int16_t>(128);
    component.NonZero = jpeg::Array<std::uint64_t>(2);
    component.DcValues = jpeg::Array<std::int16_t>(2);
    for (std::size_t k = 0; k < 128; ++k)
        component.Coefficients[k] = 0;
    component.Coefficients[0] = component.DcValues[0] = 32767;
    component.Coefficients[64] = component.DcValues[1] = -32768;
    component.NonZero[0] = component.NonZero[1] = 1;
    component.AcSymbols[0] = 2;
    frame.X = 16;
    jpeg::HuffmanTables tables;
    const test::Raised raised =
        RaisedBy([&] { jpeg::OptimizeTables(frame, jpeg::GroupComponents(frame), tables); });
    EXPECT_EQ(raised.number, 1);
    EXPECT_EQ(raised.description, "Bad Huffman Table");
}

} // namespace
} // namespace mirelle
