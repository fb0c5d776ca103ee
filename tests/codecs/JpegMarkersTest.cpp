#include "codecs/jpeg/Geometry.h"
#include "codecs/jpeg/Markers.h"
#include "tests/codecs/JpegFile.h"

#include <gtest/gtest.h>

#include <numeric>

namespace mirelle {
namespace {

using jpeg::OutBuffer;
using test::Bytes;
using test::RaisedBy;

template <class Write>
Bytes BytesOf(Write write, std::size_t limit = 100000) {
    OutBuffer out(limit);
    write(out);
    return {out.Written().begin(), out.Written().end()};
}

TEST(JpegMarkers, APP0IsJfifOfSquarePixelsWithoutAThumbnail) {
    const Bytes expected = {0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F', 0, 1, 1, 0, 0, 1, 0, 1, 0, 0};
    EXPECT_EQ(BytesOf(jpeg::WriteAPP0), expected);
    EXPECT_EQ(BytesOf(jpeg::WriteAPP0, 18), expected);
    EXPECT_EQ(RaisedBy([] { BytesOf(jpeg::WriteAPP0, 17); }).number, 9);
}

TEST(JpegMarkers, ACommentHasItsLengthAheadAndAnEmptyOneNothing) {
    EXPECT_EQ(BytesOf([](auto& out) { jpeg::WriteCOM(out, "Ab\xE9"); }),
              (Bytes{0xFF, 0xFE, 0, 5, 'A', 'b', 0xE9}));
    EXPECT_EQ(BytesOf([](auto& out) { jpeg::WriteCOM(out, ""); }), Bytes{});
}

TEST(JpegMarkers, QuantisationTablesOfBytesStandAsTheyAreHeld) {
    jpeg::QuantTable table;
    std::iota(table.Qk.begin(), table.Qk.end(), std::int16_t{192});
    Bytes expected = {0xFF, 0xDB, 0, 67, 1};
    for (int value = 192; value < 256; ++value)
        expected.push_back(static_cast<std::uint8_t>(value));
    EXPECT_EQ(BytesOf([&](auto& out) { jpeg::WriteDQT(out, table, 1, 8); }), expected);
    EXPECT_EQ(BytesOf([&](auto& out) { jpeg::WriteDQT(out, table, 1, 12); }), expected);
}

TEST(JpegMarkers, QuantisationTablesOfTwoByteEntriesNeedAPrecisionOfTwelve) {
    jpeg::QuantTable table;
    table.Qk.fill(3);
    table.Qk[1] = 300;
    const auto raised = RaisedBy([&] { BytesOf([&](auto& out) { jpeg::WriteDQT(out, table, 0, 8); }); });
    EXPECT_EQ(raised.number, 1);
    EXPECT_EQ(raised.description, "Illegal precision in Quantization Table");
    const Bytes written = BytesOf([&](auto& out) { jpeg::WriteDQT(out, table, 1, 12); });
    ASSERT_EQ(written.size(), 2U + 131);
    EXPECT_EQ(Bytes(written.begin(), written.begin() + 9), (Bytes{0xFF, 0xDB, 0, 131, 17, 0, 3, 1, 44}));
}

TEST(JpegMarkers, TheFrameTellsItsSizeAndComponents) {
    jpeg::Frame frame;
    jpeg::SetSamplingFrequencies(frame, 2, 1, 1, 3, 4, 1);
    frame.X = 0x0203;
    frame.Y = 0xFFFF;
    EXPECT_EQ(BytesOf([&](auto& out) { jpeg::WriteSOF(out, frame); }),
              (Bytes{0xFF, 0xC0, 0, 17, 8, 0xFF, 0xFF, 2, 3, 3, 1, 0x21, 0, 2, 0x13, 1, 3, 0x41, 1}));
    frame.X = 65536;
    EXPECT_EQ(RaisedBy([&] { BytesOf([&](auto& out) { jpeg::WriteSOF(out, frame); }); }).number, 6);
}

TEST(JpegMarkers, HuffmanTablesTellTheirClassAndOnlyUsedSymbols) {
    jpeg::HuffmanTable table;
    table.Bits[1] = 2;
    table.Bits[15] = 1;
    table.HuffVal = {9, 8, 7, 6};
    const Bytes content = {0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 9, 8, 7};
    Bytes dc = {0xFF, 0xC4, 0, 22, 1};
    Bytes ac = {0xFF, 0xC4, 0, 22, 0x11};
    dc.insert(dc.end(), content.begin(), content.end());
    ac.insert(ac.end(), content.begin(), content.end());
    EXPECT_EQ(BytesOf([&](auto& out) { jpeg::WriteDHT(out, table, jpeg::TableClass::Dc, 1); }), dc);
    EXPECT_EQ(BytesOf([&](auto& out) { jpeg::WriteDHT(out, table, jpeg::TableClass::Ac, 1); }), ac);
}

TEST(JpegMarkers, ScanHeadersNameTheirComponentsAndTables) {
    jpeg::Frame frame;
    jpeg::SetSamplingFrequencies(frame, 2, 2, 1, 1, 1, 1);
    EXPECT_EQ(BytesOf([&](auto& out) {
                  jpeg::WriteSOS(out, frame, {0, 2});
              }),
              (Bytes{0xFF, 0xDA, 0, 12, 3, 1, 0, 2, 0x11, 3, 0x11, 0, 0x3F, 0}));
    EXPECT_EQ(BytesOf([&](auto& out) {
                  jpeg::WriteSOS(out, frame, {0, 0});
              }),
              (Bytes{0xFF, 0xDA, 0, 8, 1, 1, 0, 0, 0x3F, 0}));
    EXPECT_EQ(BytesOf([&](auto& out) {
                  jpeg::WriteSOS(out, frame, {1, 2});
              }),
              (Bytes{0xFF, 0xDA, 0, 10, 2, 2, 0x11, 3, 0x11, 0, 0x3F, 0}));
}

} // namespace
} // namespace mirelle
