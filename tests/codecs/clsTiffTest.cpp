// What the TIFF reader shows, and what it silently does not.
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
using test::TiffOfEntries;
using testing::ElementsAre;

constexpr std::uint32_t kPackBitsTag = 32773;
constexpr Pixel kBlack{};
constexpr Pixel kWhite{255, 255, 255, 0};

Pixel Grey(int value) {
    const auto byte = static_cast<std::uint8_t>(value);
    return {byte, byte, byte, 0};
}

struct ClsTiff : testing::Test, test::TiffProgram {};

TEST_F(ClsTiff, ShowsAPictureOfRedGreenAndBlue) {
    TestTiff file{TiffFields(3, 2, 0, 1, 2, 3, 2),
                  {{1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 14, 15, 16, 17, 18, 19}}};
    file.fields[2].values = {8, 8, 8};
    Load(file);
    EXPECT_EQ(tiff.ImageWidth(), 3);
    EXPECT_EQ(tiff.ImageHeight(), 2);
    EXPECT_EQ(tiff.BitsPerPixel(), 24);
    EXPECT_EQ(tiff.Compression(), 1);
    EXPECT_THAT(Shown().Row(0), ElementsAre(Pixel{3, 2, 1, 0}, Pixel{6, 5, 4, 0}, Pixel{9, 8, 7, 0}));
    EXPECT_THAT(Shown().Row(1),
                ElementsAre(Pixel{13, 12, 11, 0}, Pixel{16, 15, 14, 0}, Pixel{19, 18, 17, 0}));
    EXPECT_EQ(picSmall.Width, 3);
    EXPECT_EQ(picSmall.Height, 2);
}

TEST_F(ClsTiff, LosesTheRedOfTheTopRightPixelWhereRowsNeedNoPadding) {
    TestTiff file{TiffFields(4, 1, 0, 1, 2, 3, 1), {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}}};
    file.fields[2].values = {8, 8, 8};
    Load(file);
    EXPECT_THAT(Shown().Row(0),
                ElementsAre(Pixel{3, 2, 1, 0}, Pixel{6, 5, 4, 0}, Pixel{9, 8, 7, 0}, Pixel{12, 11, 0, 0}));
}

TEST_F(ClsTiff, ShowsAGreyRampWhateverThePhotometricValueSays) {
    for (const std::uint32_t photometric : {0U, 1U, 3U}) {
        Load(TestTiff{TiffFields(3, 2, 8, 1, photometric, 1, 2), {{0, 7, 255, 100, 101, 102}}});
        EXPECT_EQ(tiff.BitsPerPixel(), 8);
        EXPECT_THAT(Shown().Row(0), ElementsAre(Grey(0), Grey(7), Grey(255))) << photometric;
        EXPECT_THAT(Shown().Row(1), ElementsAre(Grey(100), Grey(101), Grey(102))) << photometric;
    }
}

TEST_F(ClsTiff, CutsAColourMapToItsHighBytes) {
    TestTiff file{TiffFields(3, 1, 8, 1, 3, 1, 1), {{0, 1, 255}}};
    std::vector<std::uint32_t> map(768);
    map[0] = 0x12FF, map[256] = 0x34FF, map[512] = 0x56FF;
    map[1] = 0xFF00, map[257] = 0x8001, map[513] = 0x00FE;
    map[255] = 0x0A00, map[511] = 0x0B00, map[767] = 0x0C00;
    file.fields.push_back({320, kShort, map});
    Load(file);
    EXPECT_THAT(Shown().Row(0), ElementsAre(Pixel{0x56, 0x34, 0x12, 0}, Pixel{0x00, 0x80, 0xFF, 0},
                                            Pixel{0x0C, 0x0B, 0x0A, 0}));
}

TEST_F(ClsTiff, ShowsBlackBeyondAShortColourMap) {
    TestTiff file{TiffFields(2, 1, 8, 1, 3, 1, 1), {{0, 5}}};
    file.fields.push_back({320, kShort, {0x0100, 0x0200, 0x0300, 0x0400, 0x0500, 0x0600}});
    Load(file);
    EXPECT_THAT(Shown().Row(0), ElementsAre(Pixel{5, 3, 1, 0}, kBlack));
}

TEST_F(ClsTiff, RemembersThatAFileHadAColourMap) {
    TestTiff file{TiffFields(2, 1, 8, 1, 3, 1, 1), {{0, 200}}};
    file.fields.push_back({320, kShort, {0x0100, 0x0200, 0x0300}});
    Load(file);
    EXPECT_THAT(Shown().Row(0), ElementsAre(Pixel{3, 2, 1, 0}, kBlack));
    file.fields.pop_back();
    Load(file); // and takes the map of none
    EXPECT_THAT(Shown().Row(0), ElementsAre(kBlack, kBlack));
    clsTiff fresh(picSmall, files);
    fresh.LoadTIFF(kFile);
    EXPECT_THAT(Shown().Row(0), ElementsAre(kBlack, Grey(200)));
}

TEST_F(ClsTiff, TakesTheLastOfTwoColourMapsAlone) {
    TestTiff file{TiffFields(2, 1, 8, 1, 3, 1, 1), {{0, 1}}};
    file.fields.push_back({320, kShort, {0x0100, 0x0200, 0x0300, 0x0400, 0x0500, 0x0600}});
    file.fields.push_back({320, kShort, {0x0700, 0x0800, 0x0900, 0x0A00}}); // a triple and a number
    Load(file);
    EXPECT_THAT(Shown().Row(0), ElementsAre(Pixel{9, 8, 7, 0}, kBlack));
}

TEST_F(ClsTiff, TakesTheFirstColoursOfALongerColourMap) {
    TestTiff file{TiffFields(2, 1, 8, 1, 3, 1, 1), {{0, 255}}};
    std::vector<std::uint32_t> map(900); // 300 colours
    map[0] = 0x0100, map[300] = 0x0200, map[600] = 0x0300;
    map[255] = 0x0400, map[555] = 0x0500, map[855] = 0x0600;
    file.fields.push_back({320, kShort, map});
    Load(file);
    EXPECT_THAT(Shown().Row(0), ElementsAre(Pixel{3, 2, 1, 0}, Pixel{6, 5, 4, 0}));
}

TEST_F(ClsTiff, ShowsOneBitPixelsByThePhotometricValue) {
    // Pixels 0, 1, 0 in the first row, 1, 0, 1 in the second.
    TestTiff file{TiffFields(3, 2, 1, 1, 0, 1, 2), {{0x40, 0xA0}}};
    Load(file);
    EXPECT_EQ(tiff.BitsPerPixel(), 1);
    EXPECT_THAT(Shown().Row(0), ElementsAre(kWhite, kBlack, kWhite));
    EXPECT_THAT(Shown().Row(1), ElementsAre(kBlack, kWhite, kBlack));
    file.fields[4].values = {1};
    Load(file);
    EXPECT_THAT(Shown().Row(0), ElementsAre(kBlack, kWhite, kBlack));
    file.fields[4].values = {2};
    Load(file);
    EXPECT_THAT(Shown().Row(0), ElementsAre(kBlack, kBlack, kBlack));
}

TEST_F(ClsTiff, ShowsOneBitRowsOfMoreThanAByte) {
    Load(TestTiff{TiffFields(9, 2, 1, 1, 1, 1, 2), {{0x80, 0x80, 0x01, 0x00}}});
    EXPECT_EQ(Shown().At(0, 0), kWhite);
    EXPECT_EQ(Shown().At(8, 0), kWhite);
    EXPECT_EQ(Shown().At(7, 1), kWhite);
    EXPECT_EQ(Shown().At(8, 1), kBlack);
}

TEST_F(ClsTiff, PutsStripsTogether) {
    Load(TestTiff{TiffFields(2, 3, 8, 1, 1, 1, 1), {{1, 2}, {3, 4}, {5, 6}}});
    EXPECT_THAT(Shown().Pixels(), ElementsAre(Grey(1), Grey(2), Grey(3), Grey(4), Grey(5), Grey(6)));
    EXPECT_THAT(Dump(), ElementsAre(1, 2, 3, 4, 5, 6));
}

TEST_F(ClsTiff, UnpacksPackBitsOfEightBits) {
    Load(TestTiff{TiffFields(3, 2, 8, kPackBitsTag, 1, 1, 2), {{254, 9, 2, 1, 2, 3}}});
    EXPECT_EQ(tiff.Compression(), -32763);
    EXPECT_THAT(Shown().Row(0), ElementsAre(Grey(9), Grey(9), Grey(9)));
    EXPECT_THAT(Shown().Row(1), ElementsAre(Grey(1), Grey(2), Grey(3)));
    EXPECT_THAT(Dump(), ElementsAre(9, 9, 9, 1, 2, 3));
}

TEST_F(ClsTiff, UnpacksTheRowsThatAreLeftInTheLastStrip) {
    Load(TestTiff{TiffFields(2, 3, 8, kPackBitsTag, 1, 1, 2), {{253, 5}, {1, 6, 7}}});
    EXPECT_THAT(Shown().Pixels(), ElementsAre(Grey(5), Grey(5), Grey(5), Grey(5), Grey(6), Grey(7)));
    // Neither a strip too many nor one with more rows than the picture makes it longer.
    Load(TestTiff{TiffFields(2, 1, 8, kPackBitsTag, 1, 1, 100), {{1, 6, 7, 1, 8, 9}}});
    EXPECT_THAT(Dump().size(), 6U); // the tail of the longer dump
    EXPECT_THAT(Shown().Pixels(), ElementsAre(Grey(6), Grey(7)));
}

TEST_F(ClsTiff, UnpacksOneStripOfOneBitPixels) {
    Load(TestTiff{TiffFields(10, 2, 1, kPackBitsTag, 1, 1, 2), {{255, 0x80, 1, 0x00, 0x40}}});
    EXPECT_EQ(Dump().size(), 20U); // a byte for each pixel
    EXPECT_EQ(Shown().At(0, 0), kWhite);
    EXPECT_EQ(Shown().At(8, 0), kWhite);
    EXPECT_EQ(Shown().At(0, 1), kBlack);
    EXPECT_EQ(Shown().At(9, 1), kWhite);
}

TEST_F(ClsTiff, PutsOneBitRowsOutOfStepFromTheSecondStripOn) {
    // Each strip of one row grows to 8 bytes, so that the second strip's row would be the ninth.
    Load(TestTiff{TiffFields(8, 3, 1, kPackBitsTag, 1, 1, 1), {{0, 0xFF}, {0, 0xFF}, {0, 0xFF}}});
    EXPECT_EQ(Dump().size(), 24U);
    EXPECT_EQ(Shown().At(0, 0), kWhite);
    EXPECT_EQ(Shown().At(0, 1), kBlack);
    EXPECT_EQ(Shown().At(0, 2), kBlack);
}

TEST_F(ClsTiff, DumpsACompressionThatItDoesNotReadAndShowsNothing) {
    Load(TestTiff{TiffFields(4, 1, 8, 5, 1, 1, 1), {{128, 0, 1}, {2, 3}}});
    EXPECT_EQ(tiff.Compression(), 5);
    EXPECT_EQ(tiff.ImageWidth(), 4);
    EXPECT_EQ(tiff.BitsPerPixel(), 8);
    EXPECT_TRUE(ShowsNothing());
    EXPECT_THAT(Dump(), ElementsAre(128, 0, 1, 2, 3));
}

TEST_F(ClsTiff, NeverTakesPackBitsFromANumberOfFourBytes) {
    TestTiff file{TiffFields(2, 1, 8, kPackBitsTag, 1, 1, 1), {{255, 9}}};
    file.fields[3].type = kLong;
    Load(file);
    EXPECT_EQ(tiff.Compression(), 32773);
    EXPECT_TRUE(ShowsNothing());
    EXPECT_THAT(Dump(), ElementsAre(255, 9)); // not unpacked either
}

TEST_F(ClsTiff, CountsSamplesForBitsWhereThereAreSeveral) {
    TestTiff file{TiffFields(1, 1, 0, 1, 2, 4, 1), {{1, 2, 3, 4}}};
    file.fields[2].values = {8, 8, 8, 8};
    Load(file);
    EXPECT_EQ(tiff.BitsPerPixel(), 16);
    EXPECT_TRUE(ShowsNothing());
    EXPECT_THAT(Dump(), ElementsAre(1, 2, 3, 4));
    file.fields[2].values = {8, 8, 8};
    file.fields[5].values = {1};
    Load(file);
    EXPECT_EQ(tiff.BitsPerPixel(), 8);
    file.fields[5].values = {2}; // leaves what was found before
    Load(file);
    EXPECT_EQ(tiff.BitsPerPixel(), 8);
    clsTiff fresh(picSmall, files);
    fresh.LoadTIFF(kFile);
    EXPECT_EQ(fresh.BitsPerPixel(), 0);
}

TEST_F(ClsTiff, CountsNoBitsWhereTheirFieldHasNoValues) {
    TestTiff file{TiffFields(1, 1, 8, 1, 1, 1, 1), {{7}}};
    Load(file);
    EXPECT_EQ(tiff.BitsPerPixel(), 8);
    FileBytes bytes = TiffBytes(file);
    bytes[8 + 1 + 2 + 2 * 12 + 4] = 0; // header, strip, number of entries, two entries, tag and type
    Load(bytes);
    EXPECT_EQ(tiff.BitsPerPixel(), 0);
    EXPECT_TRUE(ShowsNothing());
}

TEST_F(ClsTiff, ShowsNothingWithoutTheNumberOfSamples) {
    TestTiff file{TiffFields(1, 1, 8, 1, 1, 1, 1), {{7}}};
    file.fields.erase(file.fields.begin() + 5);
    Load(file);
    EXPECT_EQ(tiff.BitsPerPixel(), 0);
    EXPECT_TRUE(ShowsNothing());
    EXPECT_THAT(Dump(), ElementsAre(7));
}

TEST_F(ClsTiff, ReadsShortValuesWithTheirSign) {
    Load(TestTiff{TiffFields(40000, 32768, 8, 5, 1, 1, 1), {{7}}});
    EXPECT_EQ(tiff.ImageWidth(), 40000 - 65536);
    EXPECT_EQ(tiff.ImageHeight(), -32768);
    TestTiff file{TiffFields(40000, 1, 8, 5, 1, 1, 1), {{7}}};
    file.fields[0].type = kLong;
    Load(file);
    EXPECT_EQ(tiff.ImageWidth(), 40000);
}

TEST_F(ClsTiff, ReadsTwoBytesOfSmallTypesAndFourOfAllOthers) {
    struct Row {
        std::uint32_t type;
        std::int32_t width;
    };
    for (const Row row : {Row{1, 0x0201},
                          {2, 0x0201},
                          {3, 0x0201},
                          {4, 0x04030201},
                          {5, 0x04030201},
                          {6, 0x0201},
                          {7, 0x0201},
                          {8, 0x04030201},
                          {9, 0x04030201},
                          {0, 0x04030201},
                          {99, 0x04030201}}) {
        FileBytes file = TiffBytes(TestTiff{TiffFields(0, 1, 8, 5, 1, 1, 1), {{7}}});
        const std::size_t entry = 8 + 1 + 2; // header, strip, number of entries
        file[entry + 2] = static_cast<std::uint8_t>(row.type);
        for (std::uint8_t i = 0; i < 4; ++i)
            file[entry + 8 + i] = static_cast<std::uint8_t>(i + 1);
        Load(file);
        EXPECT_EQ(tiff.ImageWidth(), row.width) << row.type;
    }
}

TEST_F(ClsTiff, DoesNotSwapTheValuesOfABigEndianFile) {
    TestTiff file{TiffFields(3, 2, 8, 1, 1, 1, 2), {{0, 7, 255, 100, 101, 102}}};
    file.isBigEndian = true;
    file.stripFieldType = kShort;
    Load(file);
    EXPECT_EQ(tiff.ImageWidth(), 0x0300);
    EXPECT_EQ(tiff.ImageHeight(), 0x0200);
    EXPECT_EQ(tiff.Compression(), 0x0100);
    EXPECT_EQ(tiff.BitsPerPixel(), 0x0100 * 0x0800);
    EXPECT_TRUE(ShowsNothing());
    // 6 bytes at 8 became 0x600 bytes at 0x800, beyond the end.
    EXPECT_EQ(Dump(), FileBytes(0x600));
}

TEST_F(ClsTiff, SwapsTheStripArraysOfABigEndianFile) {
    TestTiff file{TiffFields(1, 2, 8, 5, 1, 1, 1), {{7}, {8, 9}}};
    file.isBigEndian = true;
    FileBytes bytes = TiffBytes(file);
    // The arrays' places are values too: written the other way round they are found.
    const std::size_t directory = bytes[6] * 256U + bytes[7];
    for (const std::size_t entry : {directory + 2 + 12 * 7, directory + 2 + 12 * 8})
        std::reverse(bytes.begin() + static_cast<std::ptrdiff_t>(entry) + 8,
                     bytes.begin() + static_cast<std::ptrdiff_t>(entry) + 12);
    Load(bytes);
    EXPECT_THAT(Dump(), ElementsAre(7, 8, 9));
}

TEST_F(ClsTiff, ReadsStripArraysAsNumbersOfFourBytesWhateverTheirType) {
    TestTiff file{TiffFields(1, 4, 8, 5, 1, 1, 1), {{1}, {2}, {3}, {4}}};
    file.stripFieldType = kShort;
    file.hasStripByteCounts = false;
    file.fields.push_back({279, kLong, {1, 1, 1, 1}});
    Load(file);
    // Places 8 and 9, and 10 and 11, are one number each; behind them stand four lengths of the next array.
    EXPECT_EQ(Dump().size(), 4U);
    EXPECT_EQ(Dump()[0], 0);
}

TEST_F(ClsTiff, IgnoresOrientationPlanesAndPredictor) {
    TestTiff file{TiffFields(3, 1, 8, 1, 1, 1, 1), {{5, 6, 7}}};
    file.fields.push_back({274, kShort, {3}});
    file.fields.push_back({284, kShort, {2}});
    file.fields.push_back({317, kShort, {2}});
    file.fields.push_back({33432, 2, {65}}); // beyond the known ones
    file.fields.push_back({254, kLong, {1}});
    Load(file);
    EXPECT_THAT(Shown().Row(0), ElementsAre(Grey(5), Grey(6), Grey(7)));
}

TEST_F(ClsTiff, SwapsTheNumberOfEntriesOfABigEndianFile) {
    // What looks like a second entry stands behind the only one.
    const FileBytes decoy = {1, 0, 0, 3, 0, 0, 0, 1, 9, 0, 0, 0};
    const auto error = test::ErrorOf([&] { Load(TiffOfEntries({{256, kShort, 1, 7}}, decoy, true)); });
    EXPECT_EQ(error, ErrorNumber::SubscriptOutOfRange); // of strips that were never told
    EXPECT_EQ(tiff.ImageWidth(), 7);
}

TEST_F(ClsTiff, SwapsTheTypesOfABigEndianFile) {
    // As a SHORT the value is 5, as four bytes it would be more.
    Load(TiffOfEntries({{256, kShort, 1, 0x00070005},
                        {257, kLong, 1, 0x00070005},
                        {259, kShort, 1, 5},
                        {273, kLong, 1, 8},
                        {279, kLong, 1, 1}},
                       {}, true));
    EXPECT_EQ(tiff.ImageWidth(), 5);
    EXPECT_EQ(tiff.ImageHeight(), 0x00070005);
}

TEST_F(ClsTiff, ReadsTheFirstDirectoryAlone) {
    const TestTiff file{TiffFields(2, 1, 8, 1, 1, 1, 1), {{5, 6}}};
    FileBytes bytes = TiffBytes(file);
    const FileBytes other = TiffBytes(TestTiff{TiffFields(9, 9, 8, 1, 1, 1, 1), {}});
    const auto next = static_cast<std::uint8_t>(bytes.size());
    bytes[bytes.size() - 4] = next; // a next directory, with another width
    bytes.insert(bytes.end(), other.begin() + 8, other.end());
    Load(bytes);
    EXPECT_EQ(tiff.ImageWidth(), 2);
    EXPECT_THAT(Shown().Row(0), ElementsAre(Grey(5), Grey(6)));
}

TEST_F(ClsTiff, EndsSilentlyOnAFileThatIsNone) {
    const FileBytes good = TiffBytes(TestTiff{TiffFields(2, 1, 8, 1, 1, 1, 1), {{5, 6}}});
    for (const auto& [at, byte] : {std::pair{0, 'J'}, {1, 'M'}, {2, '+'}, {3, '\1'}}) {
        FileBytes bad = good;
        bad[static_cast<std::size_t>(at)] = static_cast<std::uint8_t>(byte);
        picSmall.Picture = test::ChartPicture(4, 4);
        Load(bad);
        EXPECT_TRUE(ShowsNothing()) << at;
        EXPECT_EQ(tiff.ImageWidth(), 0) << at;
        EXPECT_FALSE(HasDump()) << at;
    }
    for (const FileBytes& shortFile :
         {FileBytes{}, FileBytes{'I'}, FileBytes{'I', 'I', 43}, FileBytes{'M', 'M', 0}}) {
        Load(shortFile);
        EXPECT_TRUE(ShowsNothing());
        EXPECT_FALSE(HasDump());
    }
}

TEST_F(ClsTiff, KeepsWhatAFileLeavesOut) {
    Load(TestTiff{TiffFields(2, 1, 8, 1, 1, 1, 1), {{5, 6}}});
    Load(TestTiff{{{257, kShort, {2}}}, {{5, 6, 7, 8}}});
    EXPECT_EQ(tiff.ImageWidth(), 2);
    EXPECT_EQ(tiff.ImageHeight(), 2);
    EXPECT_THAT(Shown().Row(1), ElementsAre(Grey(7), Grey(8)));
}

TEST_F(ClsTiff, KeepsTheTailOfALongerDump) {
    files.AddFile(kDump, "abcdefgh");
    Load(TestTiff{TiffFields(2, 1, 8, 1, 1, 1, 1), {{'5', '6'}}});
    EXPECT_EQ(files.Text(kDump), "56cdefgh");
}

TEST_F(ClsTiff, DropsBytesBehindTheLastRow) {
    Load(TestTiff{TiffFields(2, 1, 8, 1, 1, 1, 1), {{5, 6, 7, 8, 9}}});
    EXPECT_THAT(Shown().Pixels(), ElementsAre(Grey(5), Grey(6)));
    EXPECT_THAT(Dump(), ElementsAre(5, 6, 7, 8, 9));
}

TEST_F(ClsTiff, SwapsTheBytesOfANumber) {
    std::int32_t number = 0x01020304;
    clsTiff::SwapBytesLong(number);
    EXPECT_EQ(number, 0x04030201);
}

} // namespace
} // namespace mirelle
