// The encoder as its users see it: calls, results, errors, and the file.
#include "tests/codecs/JpegFile.h"
#include "codecs/cJPEG.h"
#include "codecs/jpeg/AnsiText.h"
#include "tests/codecs/FlatSpectrum.h"
#include "tests/codecs/reference/PlainJpeg.h"
#include "tests/support/TestPictures.h"

#include <gtest/gtest.h>

#include <climits>

namespace mirelle {
namespace {

using test::Bytes;
using test::MemoryFileSystem;
using test::NoiseBitmap;
using test::RaisedBy;
using test::Saved;
using test::Segment;
using test::SegmentsOf;
using test::SmoothBitmap;

const std::string kName = "C:\\Mirelle\\a.jpg";

cJPEG Sampled(const Bitmap& surface) {
    cJPEG jpeg;
    EXPECT_EQ(jpeg.SampleHDC(surface, surface.Width(), surface.Height()), 0);
    return jpeg;
}

std::vector<int> MarkersOf(const Bytes& file) {
    std::vector<int> markers;
    for (const Segment& segment : SegmentsOf(file))
        markers.push_back(segment.marker);
    return markers;
}

TEST(JpegFile, SegmentsStandInTheirOrder) {
    cJPEG jpeg = Sampled(SmoothBitmap(20, 10));
    EXPECT_EQ(MarkersOf(Saved(jpeg)),
              (std::vector<int>{0xD8, 0xE0, 0xDB, 0xDB, 0xC0, 0xC4, 0xC4, 0xC4, 0xC4, 0xDA, 0xD9}));
    jpeg.Comment("x");
    const Bytes file = Saved(jpeg);
    EXPECT_EQ(MarkersOf(file),
              (std::vector<int>{0xD8, 0xE0, 0xFE, 0xDB, 0xDB, 0xC0, 0xC4, 0xC4, 0xC4, 0xC4, 0xDA, 0xD9}));
    std::vector<int> tables;
    for (const Segment& segment : SegmentsOf(file, 0xC4))
        tables.push_back(segment.content[0]);
    EXPECT_EQ(tables, (std::vector<int>{0, 0x10, 1, 0x11}));
    EXPECT_EQ(SegmentsOf(file, 0xC0)[0].content,
              (Bytes{8, 0, 10, 0, 20, 3, 1, 0x22, 0, 2, 0x11, 1, 3, 0x11, 1}));
    EXPECT_EQ(SegmentsOf(file, 0xDA)[0].content, (Bytes{3, 1, 0, 2, 0x11, 3, 0x11, 0, 0x3F, 0}));
}

TEST(JpegFile, AGreyPictureHasOneComponentAndOneTableOfEachKind) {
    cJPEG jpeg;
    jpeg.SetSamplingFrequencies(2, 2, 0, 0, 0, 0);
    ASSERT_EQ(jpeg.SampleHDC(SmoothBitmap(20, 10), 20, 10), 0);
    const Bytes file = Saved(jpeg);
    EXPECT_EQ(MarkersOf(file), (std::vector<int>{0xD8, 0xE0, 0xDB, 0xC0, 0xC4, 0xC4, 0xDA, 0xD9}));
    EXPECT_EQ(SegmentsOf(file, 0xC0)[0].content, (Bytes{8, 0, 10, 0, 20, 1, 1, 0x11, 0}));
    EXPECT_EQ(SegmentsOf(file, 0xDA)[0].content, (Bytes{1, 1, 0, 0, 0x3F, 0}));
}

TEST(JpegFile, FactorsOfMoreThanTenBlocksMakeTwoScans) {
    cJPEG jpeg;
    jpeg.SetSamplingFrequencies(4, 4, 1, 1, 1, 1);
    ASSERT_EQ(jpeg.SampleHDC(SmoothBitmap(20, 10), 20, 10), 0);
    const auto scans = SegmentsOf(Saved(jpeg), 0xDA);
    ASSERT_EQ(scans.size(), 2U);
    EXPECT_EQ(scans[0].content, (Bytes{1, 1, 0, 0, 0x3F, 0}));
    EXPECT_EQ(scans[1].content, (Bytes{2, 2, 0x11, 3, 0x11, 0, 0x3F, 0}));
}

// The whole of a small file by hand: one grey pixel, 8 x 8 blocks without any AC value.
TEST(JpegFile, OneGreyPixelInFull) {
    cJPEG jpeg;
    jpeg.Quality(100);
    ASSERT_EQ(jpeg.SampleHDC(Bitmap(1, 1, {128, 128, 128, 0}), 1, 1), 0);
    Bytes expected = {0xFF, 0xD8, 0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F', 0, 1, 1, 0, 0, 1, 0, 1, 0, 0};
    for (const std::uint8_t table : {0, 1}) {
        for (const int byte : {0xFF, 0xDB, 0, 67, int{table}})
            expected.push_back(static_cast<std::uint8_t>(byte));
        expected.insert(expected.end(), 64, 1);
    }
    for (const int byte : {0xFF, 0xC0, 0, 17, 8, 0, 1, 0, 1, 3, 1, 0x22, 0, 2, 0x11, 1, 3, 0x11, 1}) {
        expected.push_back(static_cast<std::uint8_t>(byte));
    }
    // Every table knows symbol 0 alone, its code is one 0.
    for (const int table : {0x00, 0x10, 0x01, 0x11}) {
        for (const int byte : {0xFF, 0xC4, 0, 20, table, 1})
            expected.push_back(static_cast<std::uint8_t>(byte));
        expected.insert(expected.end(), 16, 0);
    }
    for (const int byte : {0xFF, 0xDA, 0, 12, 3, 1, 0, 2, 0x11, 3, 0x11, 0, 0x3F, 0}) {
        expected.push_back(static_cast<std::uint8_t>(byte));
    }
    // Six blocks of two bits, then ones.
    for (const int byte : {0x00, 0x0F, 0xFF, 0xD9})
        expected.push_back(static_cast<std::uint8_t>(byte));
    EXPECT_EQ(Saved(jpeg), expected);
}

TEST(JpegFile, TheSameInputGivesTheSameBytes) {
    const Bitmap surface = NoiseBitmap(50, 37, 1);
    cJPEG one = Sampled(surface);
    cJPEG two = Sampled(surface);
    EXPECT_EQ(Saved(one), Saved(two));
}

TEST(JpegFile, ASecondSaveUnderAnotherNameGivesTheSameBytes) {
    cJPEG jpeg = Sampled(NoiseBitmap(50, 37, 1));
    MemoryFileSystem files;
    EXPECT_EQ(jpeg.SaveFileJPG(kName, files), 0);
    EXPECT_EQ(jpeg.SaveFileJPG("C:\\Mirelle\\b.jpg", files), 0);
    EXPECT_EQ(files.ReadFile(kName), files.ReadFile("C:\\Mirelle\\b.jpg"));
}

TEST(JpegFile, TheFourthByteOfAPixelPlaysNoPart) {
    Bitmap surface = NoiseBitmap(33, 21, 1);
    cJPEG one = Sampled(surface);
    for (Pixel& pixel : surface.Pixels())
        pixel.fourth = static_cast<std::uint8_t>(~pixel.fourth);
    cJPEG two = Sampled(surface);
    EXPECT_EQ(Saved(one), Saved(two));
}

TEST(JpegFile, AnArrayOfRowsFromBelowGivesTheSurfacesFile) {
    const Bitmap surface = NoiseBitmap(40, 24, 9);
    Bytes data;
    for (int y = 23; y >= 0; --y) {
        for (const Pixel& pixel : surface.Row(y))
            data.insert(data.end(), {pixel.blue, pixel.green, pixel.red});
    }
    cJPEG one = Sampled(surface);
    cJPEG two;
    one.SetSamplingFrequencies(1, 1, 1, 1, 1, 1);
    two.SetSamplingFrequencies(1, 1, 1, 1, 1, 1);
    ASSERT_EQ(one.SampleHDC(surface, 40, 24), 0);
    ASSERT_EQ(two.SampleDATA(data, 40, 24, 40, 24, 0, 0), 0);
    EXPECT_EQ(Saved(one), Saved(two));
}

TEST(JpegFile, TheEmptyNameGivesOne) {
    cJPEG jpeg = Sampled(SmoothBitmap(8, 8));
    MemoryFileSystem files;
    EXPECT_EQ(jpeg.SaveFileJPG("", files), 1);
    EXPECT_EQ(files.WriteCount(), 0);
}

TEST(JpegFile, AFileThatExistsGivesTwoAndIsLeftAlone) {
    using Attribute = MemoryFileSystem::Attribute;
    cJPEG jpeg = Sampled(SmoothBitmap(8, 8));
    for (const Attribute attribute : {Attribute::Normal, Attribute::ReadOnly, Attribute::Hidden}) {
        MemoryFileSystem files;
        files.AddFile(kName, Bytes{1, 2}, attribute);
        EXPECT_EQ(jpeg.SaveFileJPG("c:\\mirelle\\A.JPG", files), 2);
        EXPECT_EQ(files.ReadFile(kName), (Bytes{1, 2}));
        EXPECT_EQ(files.WriteCount(), 0);
    }
}

TEST(JpegFile, IsWrittenInOneWrite) {
    cJPEG jpeg = Sampled(SmoothBitmap(300, 200));
    MemoryFileSystem files;
    EXPECT_EQ(jpeg.SaveFileJPG(kName, files), 0);
    EXPECT_EQ(files.WriteCount(), 1);
}

TEST(JpegFile, WhatTheFileSystemRaisesGoesThrough) {
    cJPEG jpeg = Sampled(SmoothBitmap(8, 8));
    MemoryFileSystem files;
    EXPECT_EQ(RaisedBy([&] { jpeg.SaveFileJPG("C:\\nowhere\\a.jpg", files); }).number, 76);
    files.FailWritesWith(ErrorNumber::DiskFull);
    EXPECT_EQ(RaisedBy([&] { jpeg.SaveFileJPG(kName, files); }).number, 61);
}

TEST(JpegFile, WithoutASampleThereIsNothingToSave) {
    cJPEG jpeg;
    EXPECT_EQ(RaisedBy([&] { Saved(jpeg); }).number, 9);
    cJPEG sampled = Sampled(SmoothBitmap(8, 8));
    sampled.SetSamplingFrequencies(1, 1, 1, 1, 1, 1);
    EXPECT_EQ(RaisedBy([&] { Saved(sampled); }).number, 9);
}

TEST(JpegFile, ARefusedFactorChangesNothing) {
    cJPEG jpeg = Sampled(NoiseBitmap(30, 20, 1));
    const Bytes before = Saved(jpeg);
    const auto raised = RaisedBy([&] { jpeg.SetSamplingFrequencies(5, 1, 1, 1, 1, 1); });
    EXPECT_EQ(raised.number, 1);
    EXPECT_EQ(raised.description, "Invalid Sampling Value");
    EXPECT_EQ(Saved(jpeg), before);
}

TEST(JpegSampling, WithoutASurfaceGivesOne) {
    cJPEG jpeg = Sampled(SmoothBitmap(8, 8));
    EXPECT_EQ(jpeg.SampleHDC(Bitmap(), 8, 8), 1);
    EXPECT_EQ(RaisedBy([&] { Saved(jpeg); }).number, 9) << "what was sampled before is gone";
    const Bitmap surface(4, 4);
    EXPECT_EQ(jpeg.SampleHDC(surface, 0, 8), 1);
    EXPECT_EQ(jpeg.SampleHDC(surface, 8, 0), 1);
    EXPECT_EQ(jpeg.SampleHDC(surface, -8, 8), 1);
    EXPECT_EQ(jpeg.SampleHDC(surface, INT_MIN, INT_MIN), 1);
    EXPECT_EQ(jpeg.SampleHDC(surface, 40000, 40000), 1) << "more bytes than 32 bits can count";
}

TEST(JpegSampling, AWidthBeyondTheNumberRangeRaisesOverflow) {
    cJPEG jpeg;
    EXPECT_EQ(RaisedBy([&] { jpeg.SampleHDC(Bitmap(4, 4), INT_MAX, 1); }).number, 6);
}

TEST(JpegSampling, APlaneOfMoreBytesThan32BitsCountRaisesOverflow) {
    for (const int side : {30000, 2147483640}) {
        cJPEG jpeg;
        jpeg.SetSamplingFrequencies(1, 1, 1, 1, 1, 1);
        EXPECT_EQ(RaisedBy([&] { jpeg.SampleDATA({}, 0, 0, side, side, 0, 0); }).number, 6) << side;
    }
}

TEST(JpegSampling, AnEmptyPictureOfAnArrayRaisesOverflow) {
    cJPEG jpeg;
    const Bytes data(300);
    for (const auto& [width, height] :
         {std::pair{0, 8}, std::pair{8, 0}, std::pair{-9, 8}, std::pair{8, -9}}) {
        EXPECT_EQ(RaisedBy([&] { jpeg.SampleDATA(data, 10, 10, width, height, 0, 0); }).number, 6);
    }
}

TEST(JpegSampling, AFailedSampleLeavesNothingToSave) {
    cJPEG jpeg = Sampled(SmoothBitmap(64, 64));
    const Bytes data(300);
    EXPECT_EQ(RaisedBy([&] { jpeg.SampleDATA(data, 10, 10, 300, 300, 0, 0); }).number, 9);
    EXPECT_EQ(RaisedBy([&] { Saved(jpeg); }).number, 9);
}

TEST(JpegSampling, ASideAbove65535IsSampledButCantBeSaved) {
    cJPEG jpeg;
    ASSERT_EQ(jpeg.SampleHDC(Bitmap(4, 4), 65536, 1), 0);
    EXPECT_EQ(RaisedBy([&] { Saved(jpeg); }).number, 6);
    ASSERT_EQ(jpeg.SampleHDC(Bitmap(4, 4), 1, 65536), 0);
    EXPECT_EQ(RaisedBy([&] { Saved(jpeg); }).number, 6);
    ASSERT_EQ(jpeg.SampleHDC(NoiseBitmap(65535, 1, 1), 65535, 1), 0);
    EXPECT_EQ(RaisedBy([&] { Saved(jpeg); }).number, 0);
}

TEST(JpegComment, IsReadBackAndWrittenInTheAnsiCodePage) {
    cJPEG jpeg = Sampled(SmoothBitmap(8, 8));
    EXPECT_EQ(jpeg.Comment(), "");
    EXPECT_TRUE(SegmentsOf(Saved(jpeg), 0xFE).empty());
    jpeg.Comment("Bl\xC3\xA4tter \xE2\x82\xAC \xE2\x9C\x93");
    EXPECT_EQ(jpeg.Comment(), "Bl\xC3\xA4tter \xE2\x82\xAC \xE2\x9C\x93");
    const auto comments = SegmentsOf(Saved(jpeg), 0xFE);
    ASSERT_EQ(comments.size(), 1U);
    EXPECT_EQ(std::string(comments[0].content.begin(), comments[0].content.end()), "Bl\xE4tter \x80 ?");
    jpeg.Comment("");
    EXPECT_TRUE(SegmentsOf(Saved(jpeg), 0xFE).empty());
}

TEST(JpegComment, OfMoreThan65535CharactersIsRefused) {
    cJPEG jpeg;
    jpeg.Comment("kept");
    const auto raised = RaisedBy([&] { jpeg.Comment(std::string(65536, 'x')); });
    EXPECT_EQ(raised.number, 1);
    EXPECT_EQ(raised.description, "Illegal Comment Length");
    EXPECT_EQ(jpeg.Comment(), "kept");
    std::string letters;
    for (int i = 0; i < 65535; ++i)
        letters += "\xC3\xA4"; // characters are counted, not bytes
    EXPECT_EQ(RaisedBy([&] { jpeg.Comment(letters); }).number, 0);
    letters += 'x';
    EXPECT_EQ(RaisedBy([&] { jpeg.Comment(letters); }).number, 1);
}

TEST(JpegComment, OfTheTwoLongestLengthsOverflowsItsSegment) {
    cJPEG jpeg = Sampled(SmoothBitmap(8, 8));
    MemoryFileSystem files;
    for (const std::size_t length : {65534U, 65535U}) {
        jpeg.Comment(std::string(length, 'x'));
        EXPECT_EQ(jpeg.Comment().size(), length);
        EXPECT_EQ(RaisedBy([&] { jpeg.SaveFileJPG(kName, files); }).number, 6) << length;
    }
    EXPECT_EQ(files.WriteCount(), 0);
    jpeg.Comment(std::string(65533, 'x'));
    const auto comments = SegmentsOf(Saved(jpeg), 0xFE);
    ASSERT_EQ(comments.size(), 1U);
    EXPECT_EQ(comments[0].content.size(), 65533U);
}

// No block of the luma ends in zeros, so its end of block has no code; the dummies of an 8 x 8 picture want
// one.
TEST(JpegFile, ADummysEndOfBlockMayHaveNoCode) {
    const Bitmap surface = test::FlatSpectrumBitmap(1, 1, 40);
    cJPEG jpeg;
    jpeg.Quality(100);
    ASSERT_EQ(jpeg.SampleHDC(surface, 8, 8), 0);
    const Bytes file = Saved(jpeg);
    const Bytes ac = SegmentsOf(file, 0xC4)[1].content;
    ASSERT_EQ(ac[0], 0x10);
    EXPECT_EQ(std::count(ac.begin() + 17, ac.end(), 0), 0);

    reference::PlainJpeg plain;
    plain.Quality(100);
    plain.SampleHDC(surface, 8, 8);
    EXPECT_EQ(file, plain.File());
}

// Nearly every AC value has seven or eight bits of its own, of which the estimate sees three or four.
TEST(JpegFile, OneThatOutgrowsItsEstimateHasRoomAllTheSame) {
    const Bitmap surface = test::FlatSpectrumBitmap(32, 32, 90);
    cJPEG jpeg;
    jpeg.SetSamplingFrequencies(1, 1, 0, 0, 0, 0);
    jpeg.Quality(100);
    ASSERT_EQ(jpeg.SampleHDC(surface, surface.Width(), surface.Height()), 0);

    reference::PlainJpeg plain;
    plain.SetSamplingFrequencies(1, 1, 0, 0, 0, 0);
    plain.Quality(100);
    plain.SampleHDC(surface, surface.Width(), surface.Height());
    EXPECT_EQ(Saved(jpeg), plain.File());
}

// One colour needs two codes of one bit for each block, which the estimate counts as none.
TEST(JpegFile, OneLargeAreaOfOneColourIsSaved) {
    const Bitmap surface(1200, 900, {40, 90, 200, 0});
    cJPEG jpeg = Sampled(surface);
    const Bytes file = Saved(jpeg);
    EXPECT_EQ(file.front(), 0xFF);
    EXPECT_EQ(file.back(), 0xD9);
    EXPECT_GT(file.size(), 2000U);
}

TEST(JpegAnsiText, HasAByteForEachCharacter) {
    struct Row {
        const char* text;
        const char* bytes;
    };
    const Row rows[] = {
        {"plain", "plain"},
        {"\xC2\xA0\xC3\xBF", "\xA0\xFF"},
        {"\xE2\x82\xAC\xC5\xB8\xE2\x84\xA2", "\x80\x9F\x99"}, // euro, Y diaeresis, trade mark
        {"\xC2\x81\xC2\x80", "\x81?"},                        // the control characters 81 and 80
        {"\xC4\x80", "?"},                                    // A macron
        {"\xF0\x9F\x98\x80", "??"},                           // beyond 16 bits
        {"\xFF\xC3", "??"},                                   // no UTF-8
        {"\xC0\x80x", "??x"},                                 // longer than needed
        {"\xED\xA0\x80", "???"},                              // half a surrogate pair
        {"\xE2\x82", "??"},                                   // cut off
        {"\xF4\x90\x80\x80", "????"},                         // beyond the last character
    };
    for (const Row& row : rows)
        EXPECT_EQ(jpeg::AnsiBytes(row.text), row.bytes);
}

} // namespace
} // namespace mirelle
