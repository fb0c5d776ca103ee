// The run-time errors that pass through the TIFF reader to its caller, and what they leave behind.
#include "tests/codecs/TiffProgram.h"
#include "tests/support/ErrorOf.h"

#include <gmock/gmock.h>

namespace mirelle {
namespace {

using test::FileBytes;
using test::kLong;
using test::kShort;
using test::TestTiff;
using test::TiffFields;
using testing::ElementsAre;

struct ClsTiffFailures : testing::Test, test::TiffProgram {
    std::optional<ErrorNumber> ErrorOfLoading(const TestTiff& file) {
        return test::ErrorOf([&] { Load(file); });
    }
    static TestTiff TwoGreys() { return {TiffFields(2, 1, 8, 1, 1, 1, 1), {{5, 6}}}; }
};

TEST_F(ClsTiffFailures, ClearTheMaterialImageBeforeTheFileIsLookedFor) {
    EXPECT_EQ(test::ErrorOf([&] { tiff.LoadTIFF("C:\\none.tif"); }), ErrorNumber::FileNotFound);
    EXPECT_TRUE(ShowsNothing());
}

TEST_F(ClsTiffFailures, ArePassedOnFromADumpThatCannotBeWritten) {
    files.AddFolder("C:\\komp.txt");
    EXPECT_EQ(ErrorOfLoading(TwoGreys()), ErrorNumber::PathFileAccess);
    EXPECT_TRUE(ShowsNothing());
    files.RemoveFolder("C:\\komp.txt");
    files.FailWritesWith(ErrorNumber::DiskFull);
    EXPECT_EQ(ErrorOfLoading(TwoGreys()), ErrorNumber::DiskFull);
    EXPECT_TRUE(ShowsNothing());
}

TEST_F(ClsTiffFailures, ShowInPackBitsOfThreeSamples) {
    TestTiff file{TiffFields(2, 2, 0, 32773, 2, 3, 2), {{245, 9}}};
    file.fields[2].values = {8, 8, 8};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange);
    EXPECT_TRUE(ShowsNothing());
    EXPECT_THAT(Dump(), ElementsAre(9, 9, 9, 9)); // a byte for each pixel
}

TEST_F(ClsTiffFailures, ShowInAPictureThatIsShorterThanItsRows) {
    TestTiff file = TwoGreys();
    file.strips = {{5}};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange);
    EXPECT_TRUE(HasDump());
    EXPECT_TRUE(ShowsNothing());
}

TEST_F(ClsTiffFailures, ShowInATripleThatIsNotWhole) {
    TestTiff file{TiffFields(1, 1, 0, 1, 2, 3, 1), {{1, 2, 3, 4, 5}}};
    file.fields[2].values = {8, 8, 8};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange);
    file.strips = {{1, 2, 3, 4}};
    EXPECT_EQ(ErrorOfLoading(file), std::nullopt);
    EXPECT_THAT(Shown().Pixels(), ElementsAre(Pixel{3, 2, 1, 0}));
}

TEST_F(ClsTiffFailures, LeaveTheImageEmptyWhereStripsAndLengthsDoNotMatch) {
    TestTiff file = TwoGreys();
    file.hasStripByteCounts = false;
    file.fields.push_back({279, kLong, {1, 1}});
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange);
    EXPECT_TRUE(HasDump());
    EXPECT_EQ(Dump().size(), 0U);
    file.fields[3].values = {5}; // not shown anyway
    EXPECT_EQ(ErrorOfLoading(file), std::nullopt);
    file.fields[3].values = {1};
    file.fields[2].values = {8, 8, 8};
    file.fields[5].values = {3};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(ClsTiffFailures, ShowWhereAFileDoesNotTellItsStrips) {
    TestTiff file = TwoGreys();
    file.hasStripOffsets = false;
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(tiff.ImageWidth(), 2);
    file.hasStripOffsets = true;
    file.hasStripByteCounts = false;
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange);
    EXPECT_FALSE(HasDump());
}

TEST_F(ClsTiffFailures, ShowInStripsWithoutLength) {
    TestTiff file = TwoGreys();
    file.strips = {{}};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange);
    file.hasStripByteCounts = false;
    file.fields.push_back({279, kLong, {0xFFFFFFFF}});
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange);
    file.fields.back().values = {(1U << 29) + 1};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::OutOfMemory);
}

TEST_F(ClsTiffFailures, ShowInPlacesAheadOfTheFile) {
    TestTiff file = TwoGreys();
    file.hasStripOffsets = false;
    file.fields.push_back({273, kLong, {0xFFFFFFFE}});
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::BadRecordNumber);
    file.fields.back().values = {0x7FFFFFFF};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::Overflow);
    FileBytes bytes = TiffBytes(TwoGreys());
    bytes[7] = 0x80; // the directory's place
    EXPECT_EQ(test::ErrorOf([&] { Load(bytes); }), ErrorNumber::BadRecordNumber);
}

TEST_F(ClsTiffFailures, ReadZerosWhereAStripLeavesTheFile) {
    TestTiff file = TwoGreys();
    file.hasStripOffsets = false;
    file.fields.push_back({273, kLong, {0x7FFFFFFE}});
    EXPECT_EQ(ErrorOfLoading(file), std::nullopt);
    EXPECT_THAT(Shown().Pixels(), ElementsAre(Pixel{}, Pixel{}));
}

TEST_F(ClsTiffFailures, ShowInNumbersThatLeaveTheirRange) {
    TestTiff file = TwoGreys();
    file.fields[4] = {262, kLong, {40000}};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::Overflow);
    file = TwoGreys();
    file.fields[2] = {258, kLong, {1U << 20}};
    file.fields[5] = {277, kLong, {1U << 20}};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::Overflow);
    EXPECT_FALSE(HasDump());
    file = TwoGreys();
    file.fields[0] = {256, kLong, {0x7FFFFFFF}};
    file.fields[2].values = {8, 8, 8};
    file.fields[5].values = {3};
    file.strips = {{1, 2, 3}};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::Overflow);
    file.fields[2].values = {1};
    file.fields[5].values = {1};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::Overflow);
}

TEST_F(ClsTiffFailures, ShowInSizesThatAreNone) {
    for (const std::uint32_t wrong : {0U, 0xFFFFU, 0x8000U}) {
        for (const std::size_t field : {std::size_t{0}, std::size_t{1}}) {
            for (const std::uint32_t bits : {1U, 8U}) {
                TestTiff file = TwoGreys();
                file.fields[field].values = {wrong};
                file.fields[2].values = {bits};
                EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange) << wrong << " " << bits;
                EXPECT_TRUE(ShowsNothing());
            }
        }
    }
}

TEST_F(ClsTiffFailures, AreNoneOfTwoNegativeSizes) {
    for (const std::uint32_t bits : {1U, 8U, 24U}) {
        picSmall.Picture = test::ChartPicture(9, 9);
        const TestTiff file{TiffFields(65536 - 40, 65536 - 30, bits, 1, 1, 1, 1), {{1, 2, 3, 4}}};
        EXPECT_EQ(ErrorOfLoading(file), std::nullopt) << bits;
        // Nothing is drawn into the box, which keeps its size.
        EXPECT_EQ(Shown(), Bitmap(9, 9, PixelOf(picSmall.BackColor))) << bits;
    }
}

TEST_F(ClsTiffFailures, ShowInColourMapsThatAreNoTriples) {
    struct Row {
        std::size_t count;
        std::optional<ErrorNumber> error;
    };
    constexpr auto kOutOfRange = ErrorNumber::SubscriptOutOfRange;
    for (const Row row : {Row{0, kOutOfRange},
                          {1, kOutOfRange},
                          {2, kOutOfRange},
                          {3, {}},
                          {4, {}},
                          {5, kOutOfRange},
                          {6, {}},
                          {7, {}},
                          {8, kOutOfRange}}) {
        TestTiff file = TwoGreys();
        file.fields.push_back({320, kShort, std::vector<std::uint32_t>(row.count, 0x0700)});
        EXPECT_EQ(ErrorOfLoading(file), row.error) << row.count;
    }
}

TEST_F(ClsTiffFailures, ShowInAColourMapThatIsTooLong) {
    FileBytes bytes = TiffBytes([] {
        TestTiff file = TwoGreys();
        file.fields.insert(file.fields.begin(), {320, kShort, {1, 1, 1}});
        return file;
    }());
    const std::size_t entry = bytes[4] + 256U * bytes[5] + 2;
    bytes[entry + 7] = 0x7F; // the count
    EXPECT_EQ(test::ErrorOf([&] { Load(bytes); }), ErrorNumber::OutOfMemory);
    bytes[entry + 7] = 0x80;
    EXPECT_EQ(test::ErrorOf([&] { Load(bytes); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(ClsTiffFailures, ReadNoEntriesWhereTheirNumberIsNegative) {
    FileBytes bytes = TiffBytes(TwoGreys());
    const std::size_t directory = bytes[4] + 256U * bytes[5];
    bytes[directory + 1] = 0x80;
    EXPECT_EQ(test::ErrorOf([&] { Load(bytes); }),
              ErrorNumber::SubscriptOutOfRange); // strips that were never told
    EXPECT_EQ(tiff.ImageWidth(), 0);
}

TEST_F(ClsTiffFailures, ShowInPackBitsStripsOfNoRows) {
    TestTiff file{TiffFields(2, 2, 8, 32773, 1, 1, 0), {{255, 9}, {255, 9}}};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange); // two single bytes are no two rows
    EXPECT_THAT(Dump(), ElementsAre(0, 0));
    file.fields[6].values = {0xFFFF};
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(ClsTiffFailures, KeepArraysWithinTheLimitOfTheReader) {
    clsTiff limited(picSmall, files, {.longestArray = 4});
    files.AddFile(kFile, TiffBytes(TestTiff{TiffFields(2, 2, 8, 1, 1, 1, 1), {{1, 2}, {3, 4}}}));
    EXPECT_EQ(test::ErrorOf([&] { limited.LoadTIFF(kFile); }), ErrorNumber::OutOfMemory); // rows of 4 bytes
    files.AddFile(kFile, TiffBytes(TestTiff{TiffFields(2, 1, 8, 1, 1, 1, 1), {{1, 2}, {3, 4}}}));
    EXPECT_EQ(test::ErrorOf([&] { limited.LoadTIFF(kFile); }), std::nullopt);
    files.AddFile(kFile, TiffBytes(TestTiff{TiffFields(2, 1, 8, 1, 1, 1, 1), {{1, 2}, {3, 4, 5}}}));
    EXPECT_EQ(test::ErrorOf([&] { limited.LoadTIFF(kFile); }), ErrorNumber::OutOfMemory);
}

TEST_F(ClsTiffFailures, ShowInAPictureThatIsTooLarge) {
    for (const std::uint32_t bits : {1U, 8U, 24U}) {
        TestTiff file{TiffFields(3, 2, bits, 1, 1, 1, 1), {FileBytes(18)}};
        clsTiff wide(picSmall, files, {.mostPixels = 6});
        files.AddFile(kFile, TiffBytes(file));
        EXPECT_EQ(test::ErrorOf([&] { wide.LoadTIFF(kFile); }), std::nullopt) << bits;
        EXPECT_EQ(Shown().Width(), 3) << bits;
        clsTiff narrow(picSmall, files, {.mostPixels = 5});
        picSmall.Picture = test::ChartPicture(9, 9);
        EXPECT_EQ(test::ErrorOf([&] { narrow.LoadTIFF(kFile); }), ErrorNumber::OutOfMemory) << bits;
        EXPECT_TRUE(ShowsNothing()) << bits;
        EXPECT_EQ(picSmall.PixelWidth(), 9) << bits; // the box was never sized
        EXPECT_TRUE(HasDump()) << bits;
    }
}

TEST_F(ClsTiffFailures, AreNoneOfAPictureThatIsTooLargeToBeShownButIsNot) {
    clsTiff narrow(picSmall, files, {.mostPixels = 5});
    files.AddFile(kFile, TiffBytes(TestTiff{TiffFields(3, 2, 8, 5, 1, 1, 2), {FileBytes(6)}}));
    EXPECT_EQ(test::ErrorOf([&] { narrow.LoadTIFF(kFile); }), std::nullopt);
}

// A quarter of a gibibyte of pixels is as large as pictures get; a row more shows nothing at all.
TEST_F(ClsTiffFailures, ShowInMorePixelsThanAnyPictureHas) {
    TestTiff file{TiffFields(16384, 16385, 1, 1, 1, 1, 1), {FileBytes{0}}};
    file.hasStripByteCounts = false;
    file.fields.push_back({279, kLong, {16384 / 8 * 16385}});
    EXPECT_EQ(ErrorOfLoading(file), ErrorNumber::OutOfMemory);
    EXPECT_TRUE(ShowsNothing());
    EXPECT_EQ(picSmall.PixelWidth(), 9);
}

} // namespace
} // namespace mirelle
