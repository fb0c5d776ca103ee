#include "gradient/FormGradient.h"
#include "tests/driver/TestConversation.h"
#include "tests/support/Patterns.h"

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
