// Loads TIFF files while memory runs out, at each place where a load asks for some, and counts what it asks
// for.
#include "tests/codecs/ScarceMemory.h"
#include "tests/codecs/TiffProgram.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>

#include <string>

namespace mirelle::test {
namespace {

constexpr std::uint32_t kPackBitsTag = 32773;

// Made before memory runs out.
const std::string path = TiffProgram::kFile;

struct Way {
    const char* name;
    TestTiff file;
    // Unpacking goes on without memory: a strip comes out as zeros.
    bool isPacked = false;
};

TestTiff WithColourMap() {
    TestTiff file{TiffFields(2, 1, 8, 1, 3, 1, 1), {{0, 1}}};
    file.fields.push_back({320, kShort, {0x0100, 0x0200, 0x0300, 0x0400, 0x0500, 0x0600}});
    return file;
}

TestTiff WithThreeSamples() {
    TestTiff file{TiffFields(2, 2, 8, 1, 2, 3, 1), {{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}}};
    file.fields[2].values = {8, 8, 8};
    return file;
}

class ClsTiffMemoryTest : public testing::TestWithParam<Way>, protected TiffProgram {
protected:
    ClsTiffMemoryTest() { files.AddFile(kFile, TiffBytes(GetParam().file)); }

    std::optional<ErrorNumber> ErrorOfLoading() {
        return ErrorOf([&] { clsTiff(picSmall, files).LoadTIFF(path); });
    }

    bool MayBeShown(const Picture& whole) const {
        return Shown() == whole.Pixels() ||
               (GetParam().isPacked && Shown() == Bitmap(whole.Width(), whole.Height()));
    }

    void FailEachAllocation(Scarcity scarcity) {
        ASSERT_EQ(ErrorOfLoading(), std::nullopt);
        const Picture whole = picSmall.Picture();
        int told = 0;
        for (long allocations = 0;; ++allocations) {
            std::optional<ErrorNumber> error;
            {
                const MemoryFor memory(allocations, scarcity);
                error = ErrorOfLoading();
            }
            if (error) {
                ASSERT_EQ(error, ErrorNumber::OutOfMemory) << "after " << allocations;
                ++told;
            } else {
                ASSERT_TRUE(MayBeShown(whole)) << "after " << allocations;
            }
            if (!MemoryFor::RanOut()) break;
        }
        EXPECT_GT(told, 3);
        EXPECT_EQ(Shown(), whole.Pixels());
    }
};

TEST_P(ClsTiffMemoryTest, EveryAllocationThatFailsIsToldOrDoneWithout) {
    FailEachAllocation(Scarcity::FromThereOn);
    FailEachAllocation(Scarcity::OneAlone);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, ClsTiffMemoryTest,
    testing::Values(
        Way{"Grey", {TiffFields(2, 2, 8, 1, 1, 1, 1), {{5, 6}, {7, 8}}}}, Way{"Colours", WithColourMap()},
        Way{"RedGreenBlue", WithThreeSamples()},
        Way{"Bits", {TiffFields(9, 2, 1, 1, 0, 1, 2), {{0x80, 0x80, 0x01, 0x00}}}},
        Way{"PackBits", {TiffFields(3, 2, 8, kPackBitsTag, 1, 1, 2), {{254, 9, 2, 1, 2, 3}}}, true}),
    [](const auto& way) { return std::string(way.param.name); });

struct ClsTiffWithoutMemory : testing::Test, TiffProgram {
    std::optional<ErrorNumber> ErrorOfLoadingOnce(const FileBytes& bytes) {
        files.AddFile(kFile, bytes);
        return ErrorOf([&] { tiff.LoadTIFF(path); });
    }
};

// An error takes memory too, for its text.
TEST_F(ClsTiffWithoutMemory, TellsAnErrorOrThatThereIsNoMemory) {
    const FileBytes bytes = TiffBytes({TiffFields(2, 2, 8, 1, 1, 1, 1), {{5}}});
    ASSERT_EQ(ErrorOfLoadingOnce(bytes), ErrorNumber::SubscriptOutOfRange);
    for (long allocations = 0;; ++allocations) {
        std::optional<ErrorNumber> error;
        {
            const MemoryFor memory(allocations);
            error = ErrorOf([&] { tiff.LoadTIFF(path); });
        }
        if (!MemoryFor::RanOut()) break;
        ASSERT_EQ(error, ErrorNumber::OutOfMemory) << "after " << allocations;
    }
}

TEST_F(ClsTiffWithoutMemory, TakesNoneForWhatAFileMerelyClaims) {
    constexpr std::uint32_t kLength = (1U << 29) - 2;
    const std::vector<TiffEntry> picture = {{256, kShort, 1, 4}, {257, kShort, 1, 1},
                                            {258, kShort, 1, 8}, {259, kShort, 1, kPackBitsTag},
                                            {277, kShort, 1, 1}, {278, kShort, 1, 1}};
    std::vector<TiffEntry> map = picture;
    map.insert(map.end(), {{320, kShort, kLength, 8}, {273, kLong, 1, 8}, {279, kLong, 1, 2}});
    std::vector<TiffEntry> strip = picture;
    strip.insert(strip.end(), {{273, kLong, 1, 8}, {279, kLong, 1, kLength}});
    std::vector<TiffEntry> arrays = picture;
    arrays.insert(arrays.end(), {{273, kLong, 1 << 28, 8}, {279, kLong, 1 << 28, 8}});
    for (const auto& [entries, error] : {std::pair(map, std::optional<ErrorNumber>()),
                                         {strip, std::nullopt},
                                         {arrays, ErrorNumber::SubscriptOutOfRange}}) {
        const FileBytes bytes = TiffOfEntries(entries);
        const CountedMemory memory;
        EXPECT_EQ(ErrorOfLoadingOnce(bytes), error);
        EXPECT_LT(memory.Bytes(), 1U << 16);
    }
}

} // namespace
} // namespace mirelle::test
