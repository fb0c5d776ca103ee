// Files that claim more than they hold, or the same thing again and again. A reader that believed them would
// take hours, or more memory than there is.
#include "codecs/tiff/NoOperations.h"
#include "tests/codecs/TiffProgram.h"
#include "tests/support/ErrorOf.h"

#include <gmock/gmock.h>

namespace mirelle {
namespace {

using test::ErrorOf;
using test::FileBytes;
using test::kLong;
using test::kShort;
using test::TiffEntriesEnd;
using test::TiffEntry;
using test::TiffOfEntries;
using testing::Each;

constexpr std::size_t kMostEntries = 32767;
constexpr std::uint32_t kPackBitsTag = 32773;
constexpr std::uint32_t kLongestLength = 1U << 29;

struct ClsTiffClaims : testing::Test, test::TiffProgram {};

// As many numbers of four bytes.
void PutNumbers(FileBytes& bytes, std::size_t count, std::uint32_t number) {
    for (std::size_t i = 0; i < count; ++i)
        test::Put(bytes, number, 4);
}

// One row of `rows` pixels of four bits, which is never shown.
std::vector<TiffEntry> PackBitsEntries(std::uint32_t rows) {
    return {{256, kShort, 1, 1}, {257, kLong, 1, rows}, {258, kShort, 1, 4}, {259, kShort, 1, kPackBitsTag},
            {277, kShort, 1, 1}, {278, kShort, 1, 1}};
}

TEST_F(ClsTiffClaims, OfALongColourMapCostNothingHoweverOftenTheyAreTold) {
    std::vector<TiffEntry> entries(kMostEntries, {320, kShort, kLongestLength - 2, 8});
    entries[0] = {273, kLong, 1, 8};
    entries[1] = {279, kLong, 1, 1};
    Load(TiffOfEntries(entries));
    EXPECT_THAT(Dump(), Each('\xFF')); // the low byte of the number of entries
    EXPECT_EQ(Dump().size(), 1U);
}

TEST_F(ClsTiffClaims, OfALongArrayCostNothingHoweverOftenTheyAreTold) {
    constexpr std::uint32_t kElements = 1 << 20;
    std::vector<TiffEntry> entries(kMostEntries, {273, kLong, kElements, TiffEntriesEnd(kMostEntries)});
    entries.back().tag = 279;
    FileBytes elements;
    PutNumbers(elements, kElements, 0);
    const FileBytes file = TiffOfEntries(entries, elements);
    EXPECT_EQ(ErrorOf([&] { Load(file); }), ErrorNumber::SubscriptOutOfRange); // strips of no bytes
}

TEST_F(ClsTiffClaims, OfPackBitsBehindTheFileCostNothing) {
    constexpr std::uint32_t kStrips = 20'000;
    std::vector<TiffEntry> entries = PackBitsEntries(kStrips);
    const std::uint32_t arrays = TiffEntriesEnd(entries.size() + 2);
    entries.push_back({273, kLong, kStrips, arrays});
    entries.push_back({279, kLong, kStrips, arrays});
    FileBytes elements;
    PutNumbers(elements, kStrips, kLongestLength); // places as well as lengths
    Load(TiffOfEntries(entries, elements));
    EXPECT_EQ(Dump(), FileBytes(kStrips));
}

TEST_F(ClsTiffClaims, OfPackBitsThatShareTheirNoOperationsCostNothing) {
    constexpr std::uint32_t kStrips = 1 << 18;
    std::vector<TiffEntry> entries = PackBitsEntries(kStrips);
    const std::uint32_t arrays = TiffEntriesEnd(entries.size() + 2);
    const std::uint32_t noOperations = arrays + 4 * kStrips;
    entries.push_back({273, kLong, kStrips, arrays});
    entries.push_back({279, kLong, kStrips, arrays});
    FileBytes behind;
    PutNumbers(behind, kStrips, noOperations);
    behind.resize(behind.size() + noOperations - 2, tiff::kNoOperation);
    behind.push_back(0);
    behind.push_back(77);
    Load(TiffOfEntries(entries, behind));
    EXPECT_EQ(Dump(), FileBytes(kStrips, 77));
}

} // namespace
} // namespace mirelle
