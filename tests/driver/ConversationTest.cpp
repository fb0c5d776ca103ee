#include "tests/driver/TestConversation.h"

#include "tests/driver/LineReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::driver {
namespace {

using testing::StartsWith;

TEST(Conversation, AnswersEveryCommandInOneLine) {
    TestConversation say;
    EXPECT_EQ(say("start"), "ok");
    EXPECT_EQ(say("get Form.Caption"), R"(ok "Mirelle")");
    EXPECT_EQ(say("quit"), "ok");
    EXPECT_TRUE(say.conversation.Ended());
    EXPECT_EQ(say.conversation.ExitStatus(), 0);
}

TEST(Conversation, SaysNothingToEmptyLinesAndRemarks) {
    TestConversation say;
    EXPECT_FALSE(say.conversation.Answer("").has_value());
    EXPECT_FALSE(say.conversation.Answer("  ").has_value());
    EXPECT_FALSE(say.conversation.Answer("# start").has_value());
    EXPECT_EQ(say.conversation.ExitStatus(), 0);
}

class UsageFault : public testing::TestWithParam<const char*> {};

TEST_P(UsageFault, IsToldAndShowsInTheExitStatus) {
    TestConversation say;
    say("start");
    const std::string answer = say(GetParam());
    EXPECT_THAT(answer, StartsWith("error usage "));
    EXPECT_EQ(answer.find('\n'), std::string::npos);
    EXPECT_FALSE(say.conversation.Ended());
    EXPECT_EQ(say.conversation.ExitStatus(), 2);
}

INSTANTIATE_TEST_SUITE_P(
    Conversation, UsageFault,
    testing::Values(
        "clik Command5", "\"a\\nb\"", "\"\"", "get", "get Command5", "get Command99.Text",
        "get Label8(3).Caption", "get Label8.Caption", "get Command5(0).Caption", "get Command5.Text",
        "get .", "get Form.Colour", "get File5.List(x)", "set Text2x(0).Text", "set Text2x(0).Text a b",
        "set ckKeep.Value x", "set ckKeep.Visible 1", "set File5.FileName a.jpg", "set HSImage.Value \"\"",
        "click", "click Nobody", "spin Command5 up", "spin UpDown4 left", "mouse over Form 1 2 3",
        "mouse down Form 3 2 3", "mouse down Form 1 2", "mouse down Form 1 x 3", "mouse over Nobody 1 2 3",
        "drag Frame3 1 2", "drag Command5 1 2", "key enter", "select Command5 0", "opendir File5 C:\\",
        "window large", "window normal 100", "window normal -1 100", "window normal 100 99999",
        "close Dialog", "clipboard", "clipboard load", "clipboard kind now", "answer open", "answer file a",
        "answer msg cancel", "answer color red", "console gone", "load Command5 a.png", "dump PicImage a",
        "dump PicImage.Mask a", "dump Image1.Image a", "point Image1 1 1", "point PicImage a 1", "time x",
        "time -1", "time 86400", "advance -5", "advance 1.5", "during", "during pause",
        "during pass 0 click Command5", "during pass 1", "during sleep click Command5",
        "during pause clik Command5", "during pause click", "start", "quit now"));

TEST(Conversation, KnowsNoControlBeforeTheStart) {
    TestConversation say;
    EXPECT_THAT(say("click Command5"), StartsWith("error usage "));
    EXPECT_THAT(say("get Form.Caption"), StartsWith("error usage "));
    EXPECT_THAT(say("window maximized"), StartsWith("error usage "));
    EXPECT_THAT(say("activate"), StartsWith("error usage "));
}

TEST(Conversation, ArrangesTheDesktopBeforeTheStart) {
    TestConversation say;
    EXPECT_EQ(say("clipboard text a"), "ok");
    EXPECT_EQ(say("answer msg yes"), "ok");
    EXPECT_EQ(say("time 100"), "ok");
    EXPECT_EQ(say("advance 100"), "ok");
    EXPECT_EQ(say("messages"), "ok []");
    EXPECT_EQ(say("start"), "ok");
}

TEST(Conversation, TellsARunTimeErrorThatLeavesAHandlerAndGoesOn) {
    TestConversation say;
    say("start");
    say.Form().Command5.Click.Connect([] { throw RunTimeError(ErrorNumber::FileNotFound); });
    EXPECT_EQ(say("click Command5"), "error run-time 53 File not found");
    EXPECT_EQ(say("get Form.Caption"), R"(ok "Mirelle")");
    EXPECT_EQ(say.conversation.ExitStatus(), 0);
}

TEST(Conversation, KeepsADescriptionInOneLine) {
    TestConversation say;
    say("start");
    say.Form().Command5.Click.Connect([] { throw RunTimeError(ErrorNumber::CodecFailure, "two\r\nlines"); });
    EXPECT_EQ(say("click Command5"), "error run-time 1 two  lines");
}

TEST(Conversation, TellsAnyOtherFaultWithoutEnding) {
    TestConversation say;
    say("start");
    say.Form().Command5.Click.Connect([] { throw std::bad_alloc(); });
    EXPECT_THAT(say("click Command5"), StartsWith("error "));
    EXPECT_EQ(say("get Form.Caption"), R"(ok "Mirelle")");
    EXPECT_EQ(say.conversation.ExitStatus(), 0);
}

TEST(Conversation, EndsWithTheProgram) {
    TestConversation say;
    say("start");
    EXPECT_EQ(say("close"), "ok ended");
    EXPECT_TRUE(say.conversation.Ended());
    EXPECT_EQ(say.conversation.ExitStatus(), 0);
}

TEST(Conversation, RefusesALineThatIsTooLong) {
    TestConversation say;
    EXPECT_THAT(say(std::string(kLongestLine + 1, 'x')), StartsWith("error usage "));
}

TEST(Conversation, AnswersInAsciiWhereANameIsNoUtf8) {
    TestConversation say;
    say("start");
    say("set textProfileName.Text M\xff"
        "x");
    EXPECT_EQ(say.Form().textProfileName.Text(), "M\xff"
                                                 "x");
    EXPECT_EQ(say("get textProfileName.Text"), "ok \"M\uFFFDx\"");
    EXPECT_EQ(say("get \"\xff\n.Text\""), "error usage a JSON string with a control character");
}

} // namespace
} // namespace mirelle::driver
