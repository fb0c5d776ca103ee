#include "gradient/FormGradient.h"
#include "tests/driver/TestConversation.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestTiff.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::driver {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct CallCommands : testing::Test {
    TestConversation say;

    void SetUp() override { ASSERT_EQ(say("start"), "ok"); }
};

TEST_F(CallCommands, RunRoutinesThatNoControlReaches) {
    EXPECT_EQ(say("call ApplyMaterialToLayerFaces"), "ok");
    EXPECT_THAT(say("sent"), HasSubstr("SendKeys"));
    EXPECT_EQ(say("call SendMaterialAfterSave"), "ok");
    EXPECT_THAT(say("sent"), HasSubstr(R"(["AppActivate","")"));
}

TEST_F(CallCommands, KnowTheirRoutinesAndHowManyWordsEachTakes) {
    EXPECT_THAT(say("call"), StartsWith("error usage "));
    EXPECT_THAT(say("call Nothing"), StartsWith("error usage "));
    EXPECT_THAT(say("call ApplyMaterialToLayerFaces now"), StartsWith("error usage "));
    EXPECT_THAT(say("call SaveImageGDIPlus picSmall"), StartsWith("error usage "));
    EXPECT_THAT(say("call SaveImageGDIPlus Command5 a.png"), StartsWith("error usage "));
}

TEST_F(CallCommands, SaveTheAssignedPictureOrElseTheImage) {
    const Picture chart = test::ChartPicture(5, 3);
    say.Form().picSmall.Picture = chart;
    EXPECT_EQ(say("call SaveImageGDIPlus picSmall /tmp/a.png"), "ok true");
    say.Form().picSmall.Picture = Picture();
    EXPECT_EQ(say("call SaveImageGDIPlus picSmall /tmp/b.tif"), "ok true");
    ASSERT_EQ(say.encoders.saved.size(), 2U);
    EXPECT_TRUE(say.encoders.saved[0].picture.SharesPixelsWith(chart));
    EXPECT_EQ(say.encoders.saved[0].path, "/tmp/a.png");
    EXPECT_FALSE(say.encoders.saved[1].picture.IsEmpty());
    EXPECT_EQ(say.encoders.saved[1].format, ImageFormat::Tiff);
    EXPECT_EQ(say.encoders.starts, 2);
    EXPECT_EQ(say.encoders.stops, 2);
    EXPECT_EQ(say("call SaveImageGDIPlus picSmall /tmp/b.psd"), "ok false");
}

TEST_F(CallCommands, PaintTheFormGradientOnAnyHolder) {
    PictureBox& box = say.Form().PicImage;
    box.Move(0, 0, 20, 30);
    EXPECT_EQ(say("call FormGradient PicImage 200 100 50 10 20 30"), "ok");
    const GradientColors colors{200, 100, 50, 10, 20, 30};
    Bitmap expected(20, 30);
    PaintFormGradient(expected, colors, false);
    EXPECT_EQ(box.Image().Pixels(), expected);
    say("set ckFormDirection.Value 1");
    EXPECT_EQ(say("call FormGradient PicImage 200 100 50 10 20 30"), "ok");
    PaintFormGradient(expected, colors, true);
    EXPECT_EQ(box.Image().Pixels(), expected);
    EXPECT_THAT(say("call FormGradient Image1 1 2 3 4 5 6"), StartsWith("error usage "));
    EXPECT_THAT(say("call FormGradient PicImage 1 2 3 4 5"), StartsWith("error usage "));
    EXPECT_EQ(say("call FormGradient PicImage 1 2 3 4 5 40000"), "error run-time 6 Overflow");
}

TEST_F(CallCommands, TellAColourInHexadecimal) {
    EXPECT_EQ(say("call HexRGB 255 128 0"), R"(ok "&H0080FF&")");
}

TEST_F(CallCommands, LoadATiffFileOfTheMachineAndTellItsFields) {
    const test::TestTiff file{test::TiffFields(2, 1, 8, 1, 1, 1, 1), {{5, 6}}};
    say.machine.AddFile("C:\\scan.tif", test::TiffBytes(file));
    EXPECT_EQ(say("call LoadTIFF C:\\scan.tif"),
              R"(ok {"width":2,"height":1,"bitsPerPixel":8,"compression":1})");
    EXPECT_EQ(say("point picSmall 1 0"), "ok " + std::to_string(RGB(6, 6, 6)));
    EXPECT_EQ(say.files.Text("C:\\komp.txt"), "\5\6"); // in the program's own world
    EXPECT_FALSE(say.machine.FileExists("C:\\komp.txt"));
    EXPECT_EQ(say("call LoadTIFF C:\\none.tif"), "error run-time 53 File not found");
    EXPECT_TRUE(say.Form().picSmall.Picture().IsEmpty());
}

TEST_F(CallCommands, OpenAnyKindOfFileByItsExtension) {
    const test::TestTiff file{test::TiffFields(2, 1, 8, 1, 1, 1, 1), {{5, 6}}};
    say.machine.AddFile("C:\\scan.TIF", test::TiffBytes(file));
    EXPECT_EQ(say("call OpenFileByExtension C:\\scan.TIF"), "ok");
    EXPECT_EQ(say.Form().picSmall.Picture().Width(), 2);
    say.loader.pictures["C:\\a.bmp"] = test::ChartPicture(5, 4);
    EXPECT_EQ(say("call OpenFileByExtension C:\\a.bmp"), "ok");
    EXPECT_EQ(say.Form().picSmall.Picture().Width(), 5);
    EXPECT_THAT(say("call OpenFileByExtension C:\\a.png"), StartsWith("error run-time 91 "));
}

TEST_F(CallCommands, OpenAnyKindOfFileFromTheDialog) {
    say.loader.pictures["C:\\a.bmp"] = test::ChartPicture(5, 4);
    EXPECT_EQ(say("answer open C:\\a.bmp"), "ok");
    EXPECT_EQ(say("call OpenAnyImage"), "ok");
    EXPECT_EQ(say.Form().picSmall.Picture().Width(), 5);
    EXPECT_THAT(say("dialogs"), HasSubstr("*.pcx"));
}

TEST_F(CallCommands, SwapTheBytesOfANumber) {
    EXPECT_EQ(say("call SwapBytesLong 1"), "ok 16777216");
    EXPECT_EQ(say("call SwapBytesLong 128"), "ok -2147483648");
    EXPECT_EQ(say("call SwapBytesLong -2"), "ok -16777217");
}

TEST(NamedFilesTest, LeadOneNameToTheMachineForAWhile) {
    test::MemoryFileSystem program;
    test::MemoryFileSystem machine;
    program.AddFile("C:\\a.txt", "program");
    machine.AddFile("C:\\a.txt", "machine");
    program.AddFile("C:\\b.txt", "program");
    NamedFiles files(program, machine);
    const auto text = [&](const std::string& path) {
        const auto bytes = files.ReadFile(path);
        return std::string(bytes.begin(), bytes.end());
    };
    {
        const NamedFiles::Naming naming(files, "C:\\a.txt");
        EXPECT_EQ(text("C:\\a.txt"), "machine");
        EXPECT_EQ(text("C:\\b.txt"), "program");
        files.WriteFile("C:\\a.txt", std::vector<std::uint8_t>{'x'});
        EXPECT_EQ(machine.Text("C:\\a.txt"), "x");
    }
    EXPECT_EQ(text("C:\\a.txt"), "program");
}

} // namespace
} // namespace mirelle::driver
