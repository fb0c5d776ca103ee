#include "codecs/cJPEG.h"
#include "tests/driver/TestConversation.h"
#include "tests/support/TestPictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::driver {
namespace {

using testing::StartsWith;

struct JpegCommands : testing::Test {
    TestConversation say;

    void SetUp() override {
        say.pictures["in.bmp"] = Picture(test::SmoothBitmap(21, 13));
        say.machine.AddFolder("C:\\out");
    }
};

TEST_F(JpegCommands, SampleASurfaceAndSaveItWithTheSettingsAlsoBeforeTheStart) {
    EXPECT_EQ(say("jpeg hdc in.bmp C:\\out\\a.jpg 90 2 1 1 1 1 1 \"a remark\""), "ok [0,0]");
    cJPEG encoder;
    encoder.SetSamplingFrequencies(2, 1, 1, 1, 1, 1);
    encoder.Quality(90);
    encoder.Comment("a remark");
    encoder.SampleHDC(say.pictures["in.bmp"].Pixels(), 21, 13);
    encoder.SaveFileJPG("C:\\out\\b.jpg", say.machine);
    EXPECT_EQ(say.machine.Text("C:\\out\\a.jpg"), say.machine.Text("C:\\out\\b.jpg"));
    EXPECT_NE(say.machine.Text("C:\\out\\a.jpg").find("a remark"), std::string::npos);
}

TEST_F(JpegCommands, SampleDataGivesTheSameFileWhereNothingIsRoundedUp) {
    say.pictures["even.bmp"] = Picture(test::SmoothBitmap(32, 16));
    EXPECT_EQ(say("jpeg hdc even.bmp C:\\out\\a.jpg 80 1 1 1 1 1 1"), "ok [0,0]");
    EXPECT_EQ(say("jpeg data even.bmp C:\\out\\b.jpg 80 1 1 1 1 1 1"), "ok [0,0]");
    EXPECT_EQ(say.machine.Text("C:\\out\\a.jpg"), say.machine.Text("C:\\out\\b.jpg"));
}

TEST_F(JpegCommands, WriteOverNoFile) {
    say.machine.AddFile("C:\\out\\a.jpg", "there");
    EXPECT_EQ(say("jpeg hdc in.bmp C:\\out\\a.jpg 90 2 2 1 1 1 1"), "ok [0,2]");
    EXPECT_EQ(say.machine.Text("C:\\out\\a.jpg"), "there");
    EXPECT_EQ(say("jpeg hdc in.bmp \"\" 90 2 2 1 1 1 1"), "ok [0,1]");
}

TEST_F(JpegCommands, TellWhatTheEncoderRaises) {
    EXPECT_EQ(say("jpeg hdc in.bmp C:\\out\\a.jpg 90 5 1 1 1 1 1"),
              "error run-time 1 Invalid Sampling Value");
    EXPECT_FALSE(say.machine.FileExists("C:\\out\\a.jpg"));
}

TEST_F(JpegCommands, AreTypedWhole) {
    EXPECT_THAT(say("jpeg hdc in.bmp C:\\out\\a.jpg 90 2 2 1 1 1"), StartsWith("error usage "));
    EXPECT_THAT(say("jpeg bits in.bmp C:\\out\\a.jpg 90 2 2 1 1 1 1"), StartsWith("error usage "));
    EXPECT_THAT(say("jpeg hdc in.bmp C:\\out\\a.jpg x 2 2 1 1 1 1"), StartsWith("error usage "));
    EXPECT_THAT(say("jpeg hdc none.bmp C:\\out\\a.jpg 90 2 2 1 1 1 1"), "error can't read none.bmp");
}

} // namespace
} // namespace mirelle::driver
