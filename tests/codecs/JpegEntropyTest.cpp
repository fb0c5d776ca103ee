// Counting symbols, writing blocks and bits.
#include "codecs/jpeg/BitWriter.h"
#include "codecs/jpeg/BlockEncoder.h"
#include "codecs/jpeg/Symbols.h"
#include "tests/codecs/JpegFile.h"
#include "tests/codecs/reference/PlainJpeg.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace mirelle {
namespace {

using jpeg::Component;
using jpeg::Frequencies;
using test::Bytes;
using test::RaisedBy;

// Zig-zag position to value; the others are 0.
using Sparse = std::map<std::size_t, int>;

Component ComponentOf(const std::vector<Sparse>& blocks) {
    Component component;
    component.DcValues = jpeg::Array<std::int16_t>(blocks.size());
    component.BlockSymbols = jpeg::Array<std::span<const jpeg::AcSymbol>>(blocks.size());
    for (std::size_t b = 0; b < blocks.size(); ++b) {
        std::array<std::int16_t, 64> values{};
        std::uint64_t nonZero = 0;
        for (const auto& [k, value] : blocks[b]) {
            values[k] = static_cast<std::int16_t>(value);
            if (value != 0) nonZero |= std::uint64_t{1} << k;
        }
        component.DcValues[b] = values[0];
        component.BlockSymbols[b] = component.AcStore.Add(values.data(), nonZero);
    }
    return component;
}

Frequencies AcSymbols(const Sparse& block) {
    Frequencies frequency{};
    jpeg::AddSymbols(ComponentOf({block}).AcStore.Counts(), frequency);
    return frequency;
}

Frequencies Expected(const std::map<std::size_t, std::int32_t>& counts) {
    Frequencies frequency{};
    for (const auto& [symbol, count] : counts)
        frequency[symbol] = count;
    return frequency;
}

Sparse AllValues(int value) {
    Sparse block;
    for (std::size_t k = 1; k < 64; ++k)
        block[k] = value;
    return block;
}

TEST(JpegSymbols, ABlockOfZerosIsOneEndOfBlock) {
    EXPECT_EQ(AcSymbols({}), Expected({{0, 1}}));
    EXPECT_EQ(AcSymbols({{0, 500}}), Expected({{0, 1}})); // the DC value is no AC symbol
}

TEST(JpegSymbols, ABlockThatEndsInAValueHasNoEndOfBlock) {
    EXPECT_EQ(AcSymbols({{63, 1}}), Expected({{0xF0, 3}, {0xE1, 1}})); // 62 zeros: 3 * 16 + 14
    EXPECT_EQ(AcSymbols(AllValues(-3)), Expected({{0x02, 63}}));
}

TEST(JpegSymbols, RunsOfSixteenZerosAreSymbolsOfTheirOwn) {
    EXPECT_EQ(AcSymbols({{1, 1}}), Expected({{0x01, 1}, {0, 1}}));
    EXPECT_EQ(AcSymbols({{16, -1}}), Expected({{0xF1, 1}, {0, 1}}));           // 15 zeros
    EXPECT_EQ(AcSymbols({{17, 2}}), Expected({{0xF0, 1}, {0x02, 1}, {0, 1}})); // 16 zeros
    EXPECT_EQ(AcSymbols({{18, 4}}), Expected({{0xF0, 1}, {0x13, 1}, {0, 1}}));
    EXPECT_EQ(AcSymbols({{1, 1}, {34, 1}}), Expected({{0x01, 2}, {0xF0, 2}, {0, 1}}));
}

TEST(JpegSymbols, CarryTheBitsThatFollowThem) {
    const auto symbols = [](const Sparse& block) {
        const Component component = ComponentOf({block});
        return std::vector<jpeg::AcSymbol>(component.BlockSymbols[0].begin(),
                                           component.BlockSymbols[0].end());
    };
    // One's complement for negative values.
    EXPECT_EQ(
        symbols({{1, 1}, {2, -1}, {4, 5}, {5, -5}, {38, 32767}, {39, -32767}}),
        (std::vector<jpeg::AcSymbol>{0x101, 0x001, 0x513, 0x203, 0xF0, 0xF0, 0x7FFF0F, 0x00000F, 0x00}));
}

TEST(JpegSymbols, StayWhereTheyAreWhenAStoreIsJoinedToAnEmptyOneThatIsFilledThen) {
    const auto block = [](std::int16_t value) {
        std::array<std::int16_t, 64> values{};
        values[1] = value;
        return values;
    };
    jpeg::AcSymbolStore all;
    jpeg::AcSymbolStore other;
    const auto first = other.Add(block(1).data(), 2);
    all.Join(std::move(other));
    const auto second = all.Add(block(100).data(), 2);
    EXPECT_EQ(first[0], 0x101U);
    EXPECT_EQ(second[0], 0x6407U);
    EXPECT_EQ(all.Counts()[jpeg::kEndOfBlock], 2U);
}

TEST(JpegSymbols, StayWhereTheyAreWhenStoresAreJoined) {
    // More blocks than one chunk of memory holds.
    constexpr std::size_t kBlocks = 700;
    std::vector<std::span<const jpeg::AcSymbol>> blocks;
    const auto fill = [&blocks](jpeg::AcSymbolStore& store) {
        for (std::size_t b = 0; b < kBlocks; ++b) {
            std::array<std::int16_t, 64> values;
            values.fill(static_cast<std::int16_t>(blocks.size() + 1));
            blocks.push_back(store.Add(values.data(), ~std::uint64_t{0}));
        }
    };
    jpeg::AcSymbolStore first;
    jpeg::AcSymbolStore second;
    fill(first);
    fill(second);
    first.Join(std::move(second));
    fill(first);
    std::uint32_t all = 0;
    for (const std::uint32_t count : first.Counts())
        all += count;
    EXPECT_EQ(all, 3 * kBlocks * 63);
    for (std::size_t b = 0; b < blocks.size(); ++b) {
        ASSERT_EQ(blocks[b].size(), 63U);
        const auto size = static_cast<std::uint32_t>(std::bit_width(b + 1));
        const auto own = static_cast<std::uint32_t>(b + 1) << 8;
        for (const jpeg::AcSymbol symbol : blocks[b])
            ASSERT_EQ(symbol, own | size) << b;
    }
}

TEST(JpegSymbols, DcSymbolsAreDifferencesInTheOrderOfTheBlocks) {
    Frequencies frequency{};
    jpeg::CountDcSymbols(ComponentOf({{{0, 5}}, {{0, 5}}, {{0, -1020}}, {{0, 1019}}}), frequency);
    EXPECT_EQ(frequency, Expected({{3, 1}, {0, 1}, {11, 2}})) << "5, 0, -1025, 2039";
}

TEST(JpegSymbols, CountsAddUpOverComponentsUpTo32Bits) {
    Frequencies frequency{};
    frequency[0] = INT32_MAX - 1;
    const Component component = ComponentOf({{}});
    jpeg::AddSymbols(component.AcStore.Counts(), frequency);
    EXPECT_EQ(frequency[0], INT32_MAX);
    EXPECT_EQ(RaisedBy([&] { jpeg::AddSymbols(component.AcStore.Counts(), frequency); }).number, 6);
}

// What a writer stores, seen through a buffer that is large enough.
template <class Write>
Bytes BytesOf(Write write, std::size_t limit = 1 << 20) {
    jpeg::OutBuffer out(limit);
    jpeg::BitWriter writer(out);
    write(writer);
    writer.Flush();
    return {out.Written().begin(), out.Written().end()};
}

TEST(JpegBitWriter, WritesTheHighestBitFirstAndFillsUpWithOnes) {
    EXPECT_EQ(BytesOf([](auto& writer) { writer.WriteBits(0b101, 3); }), (Bytes{0b10111111}));
    EXPECT_EQ(BytesOf([](auto& writer) {
                  writer.WriteBits(0xA, 4);
                  writer.WriteBits(0x5C, 8);
                  writer.WriteBits(0, 4);
              }),
              (Bytes{0xA5, 0xC0}));
    EXPECT_EQ(BytesOf([](auto&) {}), Bytes{});
    EXPECT_EQ(BytesOf([](auto& writer) { writer.WriteBits(0, 0); }), Bytes{});
}

TEST(JpegBitWriter, StuffsAZeroBehindEveryByteOfOnes) {
    EXPECT_EQ(BytesOf([](auto& writer) { writer.WriteBits(0xFF, 8); }), (Bytes{0xFF, 0}));
    EXPECT_EQ(BytesOf([](auto& writer) { writer.WriteBits(0xF, 4); }), (Bytes{0xFF, 0}))
        << "filled up with ones";
    EXPECT_EQ(BytesOf([](auto& writer) { writer.WriteBits(0xFFFF01FF, 32); }),
              (Bytes{0xFF, 0, 0xFF, 0, 1, 0xFF, 0}));
    EXPECT_EQ(BytesOf([](auto& writer) { writer.WriteBits(0xFE00FE7F, 32); }), (Bytes{0xFE, 0, 0xFE, 0x7F}));
}

TEST(JpegBitWriter, WritesWhatThePlainOneWritesBitByBit) {
    std::mt19937 random(8);
    for (int round = 0; round < 50; ++round) {
        reference::PlainOutput plain;
        plain.OutBuffer.resize(1 << 14);
        const Bytes fast = BytesOf([&](auto& writer) {
            for (int i = 0; i < 500; ++i) {
                const unsigned length = random() % 28;
                // Many ones, so that stuffing happens at all places of a word.
                const std::uint32_t bits = (random() | random() | random()) & ((1U << length) - 1);
                writer.WriteBits(bits, length);
                plain.WriteBits(length == 0 ? 0 : 1 << (length - 1), static_cast<std::int32_t>(bits));
            }
        });
        plain.BitWriterFlush();
        plain.OutBuffer.resize(plain.OutPos);
        ASSERT_EQ(fast, plain.OutBuffer);
    }
}

TEST(JpegBitWriter, RaisesSubscriptOutOfRangeBeyondTheLimit) {
    const auto eightBytes = [](auto& writer) {
        writer.WriteBits(0x01020304, 32);
        writer.WriteBits(0x05060708, 32);
    };
    EXPECT_EQ(BytesOf(eightBytes, 8).size(), 8U);
    EXPECT_EQ(RaisedBy([&] { BytesOf(eightBytes, 7); }).number, 9);
    EXPECT_EQ(RaisedBy([&] { BytesOf([](auto& writer) { writer.WriteBits(0xFF, 8); }, 1); }).number, 9)
        << "the stuffed byte counts";
}

// Far beyond it, too: nothing is stored outside of the buffer's memory on the way.
TEST(JpegBitWriter, StopsAtTheLimitHoweverMuchIsWritten) {
    EXPECT_EQ(RaisedBy([] {
                  BytesOf(
                      [](auto& writer) {
                          for (int i = 0; i < 100000; ++i)
                              writer.WriteBits(0xFFFFFFFF, 32);
                      },
                      100);
              }).number,
              9);
}

TEST(JpegBitString, HoldsWhatIsAppendedWhereverItIsCut) {
    std::mt19937 random(9);
    for (int round = 0; round < 100; ++round) {
        std::vector<jpeg::BitString> strings(1);
        jpeg::OutBuffer directOut(1 << 16);
        jpeg::BitWriter direct(directOut);
        for (int i = 0; i < 1000; ++i) {
            if (random() % 50 == 0) strings.emplace_back();
            const unsigned length = random() % 33;
            const auto bits =
                static_cast<std::uint32_t>((random() | random()) & ((std::uint64_t{1} << length) - 1));
            strings.back().Reserve(32);
            strings.back().Append(bits, length);
            direct.WriteBits(bits, length);
        }
        direct.Flush();
        const Bytes joined = BytesOf([&](auto& writer) {
            for (const jpeg::BitString& string : strings)
                writer.Write(string);
        });
        ASSERT_EQ(joined, Bytes(directOut.Written().begin(), directOut.Written().end()));
    }
}

TEST(JpegOutBuffer, RaisesOverflowForWhatIsNoByteAndNineWhenFull) {
    jpeg::OutBuffer out(3);
    EXPECT_EQ(RaisedBy([&] { out.Byte(256); }).number, 6);
    EXPECT_EQ(RaisedBy([&] { out.Byte(-1); }).number, 6);
    EXPECT_EQ(RaisedBy([&] { out.Word(65536); }).number, 6);
    out.Word(0x1234);
    out.Byte(255);
    EXPECT_EQ(out.Remaining(), 0U);
    EXPECT_EQ(RaisedBy([&] { out.Byte(0); }).number, 9);
    EXPECT_EQ(Bytes(out.Written().begin(), out.Written().end()), (Bytes{0x12, 0x34, 0xFF}));
}

template <class Encode>
Bytes BytesOfBlocks(Encode encode) {
    jpeg::BitString bits;
    encode(bits);
    return BytesOf([&bits](auto& writer) { writer.Write(bits); });
}

// Codes by hand: DC 0 is 0, DC 2 is 10; AC 0x00 is 00, 0x01 is 01, 0x13 is 100, 0xF0 is 101.
jpeg::ComponentCodes HandCodes() {
    jpeg::HuffmanTable dc;
    dc.Bits = {1, 1};
    dc.HuffVal = {0, 2};
    jpeg::ExpandHuffman(dc, 11);
    jpeg::HuffmanTable ac;
    ac.Bits = {0, 2, 2};
    ac.HuffVal = {0x00, 0x01, 0x13, 0xF0};
    jpeg::ExpandHuffman(ac, 255);
    return {jpeg::SymbolCodes(dc), jpeg::SymbolCodes(ac)};
}

TEST(JpegBlocks, AreCodedAsDifferenceRunsAndValues) {
    const auto codes = HandCodes();
    const Component component = ComponentOf({{{0, 3}, {1, -1}, {3, 5}, {20, 1}}, {{0, 0}}, {{0, 0}}});
    int lastDc = 0;
    const Bytes written = BytesOfBlocks([&](auto& bits) {
        for (std::size_t b = 0; b < 2; ++b) {
            jpeg::EncodeBlock(bits, component.DcValues[b], component.BlockSymbols[b], lastDc, codes);
        }
    });
    // Block 0: 10 11 (3), 01 0 (-1), 100 101 (one zero, 5), 101 01 1 (16 zeros, 1), 00.
    // Block 1: 10 00 (-3), 00. Then ones.
    EXPECT_EQ(written, (Bytes{0b10110101, 0b00101101, 0b01100100, 0b00011111}));
    EXPECT_EQ(lastDc, 0);
}

TEST(JpegBlocks, ADummyIsNoDifferenceAndAnEndOfBlock) {
    const auto codes = HandCodes();
    EXPECT_EQ(BytesOfBlocks([&](auto& bits) {
                  for (int i = 0; i < 3; ++i)
                      jpeg::EncodeDummyBlock(bits, codes);
              }),
              (Bytes{0b00000000, 0b01111111}));
}

TEST(JpegBlocks, ADummysEndOfBlockWithoutACodeWritesNothing) {
    jpeg::HuffmanTable dc;
    dc.Bits = {1, 0};
    dc.HuffVal = {0};
    jpeg::ExpandHuffman(dc, 11);
    jpeg::HuffmanTable ac;
    ac.Bits = {1};
    ac.HuffVal = {0x01};
    jpeg::ExpandHuffman(ac, 255);
    const jpeg::ComponentCodes codes = {jpeg::SymbolCodes(dc), jpeg::SymbolCodes(ac)};
    EXPECT_EQ(BytesOfBlocks([&](auto& bits) {
                  for (int i = 0; i < 3; ++i)
                      jpeg::EncodeDummyBlock(bits, codes);
              }),
              (Bytes{0b00011111}));
}

} // namespace
} // namespace mirelle
