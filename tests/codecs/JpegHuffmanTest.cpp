#include "codecs/jpeg/Huffman.h"
#include "tests/codecs/JpegFile.h"
#include "tests/codecs/reference/PlainJpeg.h"

#include <gtest/gtest.h>

#include <functional>
#include <numeric>
#include <queue>
#include <random>

namespace mirelle {
namespace {

using jpeg::Frequencies;
using jpeg::HuffmanTable;
using test::RaisedBy;

HuffmanTable TableFor(Frequencies frequency) {
    HuffmanTable table;
    jpeg::OptimizeHuffman(table, frequency);
    jpeg::ExpandHuffman(table, 255);
    return table;
}

int LengthOf(const HuffmanTable& table, std::size_t symbol) {
    return table.Mask[symbol] == 0 ? 0 : table.Size[symbol] + 1;
}

int CodeCount(const HuffmanTable& table) {
    return std::accumulate(table.Bits.begin(), table.Bits.end(), 0);
}

// Frequencies of many shapes: flat, steep, sparse, full, with ties.
Frequencies RandomFrequencies(std::mt19937& random) {
    Frequencies frequency{};
    const unsigned symbols = 1 + random() % 256;
    const unsigned shape = random() % 5;
    std::int32_t fibonacci[2] = {1, 1};
    for (unsigned i = 0; i < symbols; ++i) {
        std::int32_t& f = frequency[random() % 256];
        switch (shape) {
        case 0:
            f = 1 + static_cast<std::int32_t>(random() % 1000);
            break;
        case 1:
            f = 1 + static_cast<std::int32_t>(random() % 3);
            break;
        case 2:
            f = std::int32_t{1} << random() % 17;
            break;
        case 3:
            f = 7;
            break;
        default:
            f = fibonacci[0];
            if (fibonacci[1] < 5000000) {
                const std::int32_t next = fibonacci[0] + fibonacci[1];
                fibonacci[0] = fibonacci[1];
                fibonacci[1] = next;
            } else {
                return frequency;
            }
            break;
        }
    }
    return frequency;
}

bool SumFits(const Frequencies& frequency) {
    return std::accumulate(frequency.begin(), frequency.end(), std::int64_t{1}) <= INT32_MAX;
}

// No code begins with another one, none is all ones, none is longer than 16 bits, and exactly the symbols
// that occur have one.
void ExpectValidCodes(const HuffmanTable& table, const Frequencies& frequency) {
    std::uint64_t room = 0; // in codes of 16 bits
    for (std::size_t symbol = 0; symbol < 256; ++symbol) {
        const int length = LengthOf(table, symbol);
        ASSERT_EQ(length != 0, frequency[symbol] != 0) << symbol;
        if (length == 0) {
            ASSERT_EQ(table.Code[symbol], -1);
            continue;
        }
        ASSERT_LE(length, 16);
        ASSERT_EQ(table.Mask[symbol], 1 << (length - 1));
        ASSERT_LT(table.Code[symbol], (1 << length) - 1) << symbol;
        room += std::uint64_t{1} << (16 - length);
        for (std::size_t other = 0; other < symbol; ++other) {
            const int otherLength = LengthOf(table, other);
            if (otherLength == 0) continue;
            const int common = std::min(length, otherLength);
            ASSERT_NE(table.Code[symbol] >> (length - common), table.Code[other] >> (otherLength - common));
        }
    }
    ASSERT_LT(room, std::uint64_t{1} << 16);
}

TEST(JpegHuffman, CodesAreValidForRandomFrequencies) {
    std::mt19937 random(1);
    for (int round = 0; round < 400; ++round) {
        const Frequencies frequency = RandomFrequencies(random);
        if (!SumFits(frequency)) continue;
        ASSERT_NO_FATAL_FAILURE(ExpectValidCodes(TableFor(frequency), frequency)) << round;
    }
}

TEST(JpegHuffman, TablesAreThoseOfThePlainForm) {
    std::mt19937 random(2);
    for (int round = 0; round < 400; ++round) {
        Frequencies frequency = RandomFrequencies(random);
        if (!SumFits(frequency)) continue;
        const HuffmanTable table = TableFor(frequency);
        reference::HuffmanRecord plain;
        const Frequencies copy = frequency;
        reference::OptimizeHuffman(plain, frequency);
        reference::ExpandHuffman(plain, 255);
        for (std::size_t l = 0; l < 16; ++l)
            ASSERT_EQ(table.Bits[l], plain.Bits[l]);
        for (int k = 0; k < CodeCount(table); ++k) {
            ASSERT_EQ(table.HuffVal[static_cast<std::size_t>(k)], plain.HuffVal[static_cast<std::size_t>(k)]);
        }
        ASSERT_EQ(table.Code, plain.Code);
        ASSERT_EQ(table.Mask, plain.Mask);
        ASSERT_EQ(jpeg::CountScanBytes(table, copy), reference::CountScanBytes(plain, copy));
    }
}

// The cost of the best code by merging the two rarest again and again.
std::int64_t BestCost(const Frequencies& frequency) {
    std::priority_queue<std::int64_t, std::vector<std::int64_t>, std::greater<>> queue;
    for (const std::int32_t f : frequency) {
        if (f != 0) queue.push(f);
    }
    queue.push(1);
    std::int64_t cost = 0;
    while (queue.size() > 1) {
        std::int64_t sum = queue.top();
        queue.pop();
        sum += queue.top();
        queue.pop();
        queue.push(sum);
        cost += sum;
    }
    return cost;
}

TEST(JpegHuffman, CodesWithinSixteenBitsAreTheBestThereAre) {
    std::mt19937 random(3);
    int compared = 0;
    for (int round = 0; round < 300; ++round) {
        const Frequencies frequency = RandomFrequencies(random);
        if (!SumFits(frequency)) continue;
        const HuffmanTable table = TableFor(frequency);
        std::int64_t cost = 0;
        int longest = 0;
        for (std::size_t symbol = 0; symbol < 256; ++symbol) {
            cost += std::int64_t{frequency[symbol]} * LengthOf(table, symbol);
            longest = std::max(longest, LengthOf(table, symbol));
        }
        if (longest >= 15) continue; // may have been limited
        // The reserved code is as long as the longest or, where it stood alone at its length, one bit longer.
        const std::int64_t reserved = BestCost(frequency) - cost;
        EXPECT_TRUE(reserved == longest || reserved == longest + 1) << reserved << ' ' << longest;
        ++compared;
    }
    EXPECT_GT(compared, 100);
}

TEST(JpegHuffman, LeavesTheFrequenciesAllZero) {
    Frequencies frequency{};
    frequency[3] = 5;
    frequency[200] = 9;
    HuffmanTable table;
    jpeg::OptimizeHuffman(table, frequency);
    EXPECT_EQ(frequency, Frequencies{});
}

TEST(JpegHuffman, ALonelySymbolGetsACodeThanksToTheReservedOne) {
    Frequencies frequency{};
    frequency[0] = 12345;
    const HuffmanTable table = TableFor(frequency);
    EXPECT_EQ(table.Bits[0], 1);
    EXPECT_EQ(CodeCount(table), 1);
    EXPECT_EQ(table.HuffVal[0], 0);
    EXPECT_EQ(table.Code[0], 0);
    EXPECT_EQ(table.Mask[0], 1);
    EXPECT_EQ(table.Size[0], 0);
}

TEST(JpegHuffman, AmongTiesTheHigherSymbolIsTheRarer) {
    Frequencies frequency{};
    frequency[0] = 1;
    frequency[1] = 1;
    const HuffmanTable two = TableFor(frequency);
    EXPECT_EQ(LengthOf(two, 0), 1); // 1 is merged with the reserved symbol first
    EXPECT_EQ(LengthOf(two, 1), 2);

    frequency[0] = 3;
    frequency[1] = 3;
    frequency[2] = 3;
    const HuffmanTable three = TableFor(frequency); // (256 2) = 4, then (1 0) = 6, then both
    EXPECT_EQ(LengthOf(three, 0), 2);
    EXPECT_EQ(LengthOf(three, 1), 2);
    EXPECT_EQ(LengthOf(three, 2), 2);

    frequency[0] = 2;
    frequency[1] = 2;
    frequency[2] = 1;
    const HuffmanTable chain = TableFor(frequency); // (256 2) = 2, then (256 1) = 4, then (0 256)
    EXPECT_EQ(LengthOf(chain, 0), 1);
    EXPECT_EQ(LengthOf(chain, 1), 2);
    EXPECT_EQ(LengthOf(chain, 2), 3);
}

TEST(JpegHuffman, SymbolsOfOneLengthStandInAscendingOrder) {
    Frequencies frequency{};
    for (const std::size_t symbol : {250U, 17U, 3U, 99U})
        frequency[symbol] = 100;
    const HuffmanTable table = TableFor(frequency);
    for (int k = 1; k < CodeCount(table); ++k) {
        const std::uint8_t before = table.HuffVal[static_cast<std::size_t>(k) - 1];
        const std::uint8_t here = table.HuffVal[static_cast<std::size_t>(k)];
        EXPECT_TRUE(table.Size[before] != table.Size[here] || before < here);
        EXPECT_LE(table.Size[before], table.Size[here]);
    }
    EXPECT_EQ(CodeCount(table), 4);
}

TEST(JpegHuffman, CodesAreLimitedToSixteenBits) {
    Frequencies frequency{};
    std::int32_t a = 1;
    std::int32_t b = 1;
    for (std::size_t symbol = 0; symbol < 40; ++symbol) {
        frequency[symbol] = a;
        b += a;
        std::swap(a, b);
    }
    const HuffmanTable table = TableFor(frequency); // 40 codes deep without the limit
    ASSERT_NO_FATAL_FAILURE(ExpectValidCodes(table, frequency));
    EXPECT_GT(table.Bits[15], 0);
    EXPECT_EQ(CodeCount(table), 40);
    for (std::size_t symbol = 1; symbol < 40; ++symbol) {
        EXPECT_LE(LengthOf(table, symbol), LengthOf(table, symbol - 1));
    }
}

TEST(JpegHuffman, NoSymbolAtAllIsABadTable) {
    Frequencies frequency{};
    HuffmanTable table;
    jpeg::OptimizeHuffman(table, frequency);
    const auto raised = RaisedBy([&] { jpeg::ExpandHuffman(table, 255); });
    EXPECT_EQ(raised.number, 1);
    EXPECT_EQ(raised.description, "Bad Huffman Table");
}

TEST(JpegHuffman, SumsBeyond32BitsRaiseOverflow) {
    Frequencies frequency{};
    frequency[1] = INT32_MAX;
    HuffmanTable table;
    EXPECT_EQ(RaisedBy([&] { jpeg::OptimizeHuffman(table, frequency); }).number, 6);
    frequency = {};
    frequency[1] = INT32_MAX / 2;
    table = TableFor(frequency);
    table.Size[1] = 15;
    EXPECT_EQ(RaisedBy([&] { jpeg::CountScanBytes(table, frequency); }).number, 6);
}

struct BadTable {
    const char* name;
    std::vector<int> bits;
    std::vector<int> values;
    int largest;
};

void PrintTo(const BadTable& table, std::ostream* out) {
    *out << table.name;
}

class JpegBadHuffman : public testing::TestWithParam<BadTable> {};

INSTANTIATE_TEST_SUITE_P(
    Tables, JpegBadHuffman,
    testing::Values(BadTable{"NoCode", {}, {}, 255}, BadTable{"TwoCodesOfOneBit", {2}, {0, 1}, 255},
                    BadTable{"AllOnesOfTwoBits", {1, 2}, {0, 1, 2}, 255},
                    BadTable{"SymbolTwice", {0, 2}, {7, 7}, 255},
                    BadTable{"SymbolAboveTheLargest", {1}, {12}, 11},
                    BadTable{"MoreThan256Codes", {0, 0, 0, 0, 0, 0, 0, 0, 200, 57}, {}, 255}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(JpegBadHuffman, Raises) {
    HuffmanTable table;
    for (std::size_t i = 0; i < GetParam().bits.size(); ++i) {
        table.Bits[i] = static_cast<std::uint8_t>(GetParam().bits[i]);
    }
    for (std::size_t k = 0; k < 256; ++k)
        table.HuffVal[k] = static_cast<std::uint8_t>(k);
    for (std::size_t i = 0; i < GetParam().values.size(); ++i) {
        table.HuffVal[i] = static_cast<std::uint8_t>(GetParam().values[i]);
    }
    const auto raised = RaisedBy([&] { jpeg::ExpandHuffman(table, GetParam().largest); });
    EXPECT_EQ(raised.number, 1);
    EXPECT_EQ(raised.description, "Bad Huffman Table");
}

TEST(JpegHuffman, TheLargestSymbolItselfIsGood) {
    HuffmanTable table;
    table.Bits[0] = 1;
    table.HuffVal[0] = 11;
    EXPECT_EQ(RaisedBy([&] { jpeg::ExpandHuffman(table, 11); }).number, 0);
}

// The estimate takes the code's length minus one and the bit length of the symbol's own number.
TEST(JpegHuffman, ScanBytesAreEstimatedFromTheSymbols) {
    HuffmanTable table;
    table.Size[0] = 0;
    table.Size[5] = 3;
    table.Size[0xF0] = 9;
    Frequencies frequency{};
    frequency[0] = 100;  // 0 + 0 bits each
    frequency[5] = 10;   // 3 + 3
    frequency[0xF0] = 1; // 9 + 8
    frequency[256] = 77; // the reserved symbol does not count
    EXPECT_EQ(jpeg::CountScanBytes(table, frequency), (60 + 17 + 7) / 8);
}

TEST(JpegHuffman, BitLengthCountsSignificantBits) {
    EXPECT_EQ(jpeg::BitLength(0), 0);
    for (int length = 1; length <= 16; ++length) {
        EXPECT_EQ(jpeg::BitLength(1 << (length - 1)), length);
        EXPECT_EQ(jpeg::BitLength((1 << length) - 1), length);
        EXPECT_EQ(jpeg::BitLength(-(1 << (length - 1))), length);
        EXPECT_EQ(jpeg::BitLength(1 - (1 << length)), length);
    }
}

} // namespace
} // namespace mirelle
