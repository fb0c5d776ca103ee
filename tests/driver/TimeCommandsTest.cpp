#include "tests/driver/TestConversation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::driver {
namespace {

using testing::ElementsAre;

struct TimeCommands : testing::Test {
    TestConversation say;

    void SetUp() override { ASSERT_EQ(say("start"), "ok"); }
    Ports& Desktop() { return say.Form().ports; }

    // A pause as the program makes it.
    void Pause(double delay) {
        EventPump& pump = Desktop().pump;
        pump.PauseBegins(delay);
        const double start = pump.Timer();
        while (pump.Timer() < start + delay) {
            pump.DoEvents(PumpSite::Pause);
            if (Desktop().keyboard.EscapeWentDown()) break;
        }
        pump.PauseEnds();
    }
};

TEST_F(TimeCommands, TheClockStandsStillButInPausesAndAtAdvance) {
    EXPECT_EQ(say("time 1000"), "ok");
    EXPECT_EQ(Desktop().pump.Timer(), 1000.0);
    EXPECT_EQ(Desktop().pump.Timer(), 1000.0);
    EXPECT_EQ(say("advance 2500"), "ok");
    EXPECT_EQ(Desktop().pump.Timer(), 1002.5);
    Pause(1);
    EXPECT_GE(Desktop().pump.Timer(), 1003.5);
    EXPECT_LT(Desktop().pump.Timer(), 1003.7);
}

TEST_F(TimeCommands, TheClockFallsBackToZeroAtMidnight) {
    say("time 86399.5");
    say("advance 1000");
    EXPECT_EQ(Desktop().pump.Timer(), 0.5);
}

TEST(SplashCommand, ShowsTheSplashWhichMakesWayForTheMainForm) {
    TestConversation say;
    EXPECT_EQ(say("splash"), "ok");
    EXPECT_EQ(say("get frmSplasholaSUNDIAL.Caption"), R"(ok "About Mirelle")");
    EXPECT_EQ(say("get Timer1.Interval"), "ok 100");
    EXPECT_EQ(say("get Timer1.Enabled"), "ok true");
    EXPECT_THAT(say("get Form.Caption"), testing::StartsWith("error usage "));
    EXPECT_THAT(say("start"), testing::StartsWith("error usage "));
    EXPECT_EQ(say("advance 1000"), "ok");
    EXPECT_EQ(say("get frmSplasholaSUNDIAL.Visible"), "ok true");
    EXPECT_EQ(say("click Label1"), "ok");
    EXPECT_EQ(say("advance 5000"), "ok");
    EXPECT_EQ(say("get frmSplasholaSUNDIAL.Visible"), "ok true");
    EXPECT_EQ(say("click frmSplasholaSUNDIAL"), "ok");
    EXPECT_EQ(say("advance 99"), "ok");
    EXPECT_EQ(say("get frmSplasholaSUNDIAL.Visible"), "ok true");
    EXPECT_EQ(say("advance 1"), "ok");
    EXPECT_EQ(say("get frmSplasholaSUNDIAL.Visible"), "ok false");
    EXPECT_EQ(say("get Form.Visible"), "ok true");
    EXPECT_EQ(say("get Combo5.ListIndex"), "ok 0");
}

TEST_F(TimeCommands, ThePassedOverSplashIsNotThere) {
    EXPECT_THAT(say("get frmSplasholaSUNDIAL.Caption"), testing::StartsWith("error usage "));
    EXPECT_EQ(say("set Form.Caption other"), "ok");
    EXPECT_EQ(say("advance 2000"), "ok");
    EXPECT_EQ(say("get Form.Caption"), R"(ok "other")");
}

TEST_F(TimeCommands, TheManualsFormOpensAndCloses) {
    EXPECT_EQ(say("click cmdGetCorvane(0)"), "ok");
    EXPECT_EQ(say("get zFormUM.Visible"), "ok true");
    EXPECT_EQ(say("get Form.WindowState"), "ok 1");
    EXPECT_EQ(say("click Command1(1)"), "ok");
    EXPECT_EQ(say("opened"), R"(ok [["C:\\Mirelle\\Support\\Mirelle1UserManual1.pdf","C:\\",0]])");
    EXPECT_EQ(say("close zFormUM"), "ok");
    EXPECT_EQ(say("get zFormUM.Visible"), "ok false");
    EXPECT_EQ(say("get Form.WindowState"), "ok 0");
    EXPECT_FALSE(say.conversation.Ended());
}

TEST_F(TimeCommands, OneLinedUpCommandRunsInEachPause) {
    FrmPicX& form = say.Form();
    form.Command5.Click.Connect([this] { Pause(1); });
    EXPECT_EQ(say("during pause set TextMatSize.Text first"), "ok");
    EXPECT_EQ(say("during pause set TextMatSize.Text second"), "ok");
    EXPECT_EQ(say("get TextMatSize.Text"), R"(ok "5")");
    EXPECT_EQ(say("click Command5"), "ok");
    EXPECT_EQ(say("get TextMatSize.Text"), R"(ok "first")");
    EXPECT_EQ(say("click Command5"), "ok");
    EXPECT_EQ(say("get TextMatSize.Text"), R"(ok "second")");
}

TEST_F(TimeCommands, APauseInsideAPauseTakesTheNextCommand) {
    FrmPicX& form = say.Form();
    std::vector<std::string> order;
    form.Command5.Click.Connect([&] {
        order.push_back("outer begins");
        Pause(1);
        order.push_back("outer ends");
    });
    form.Command6.Click.Connect([&] {
        order.push_back("inner begins");
        Pause(1);
        order.push_back("inner ends");
    });
    form.Command4.Click.Connect([&] { order.push_back("innermost"); });
    say("during pause click Command6");
    say("during pause click Command4");
    EXPECT_EQ(say("click Command5"), "ok");
    EXPECT_THAT(order, testing::IsSupersetOf(
                           {"outer begins", "inner begins", "innermost", "inner ends", "outer ends"}));
    EXPECT_EQ(order.front(), "outer begins");
    EXPECT_EQ(order.back(), "outer ends");
}

TEST_F(TimeCommands, WhatGoesWrongInAnEventIsNotThePausesAffair) {
    FrmPicX& form = say.Form();
    bool finished = false;
    form.Command5.Click.Connect([&] {
        Pause(1);
        finished = true;
    });
    form.Command4.Click.Connect([] { throw RunTimeError(ErrorNumber::Overflow); });
    say("during pause click Command4");
    EXPECT_EQ(say("click Command5"), "ok");
    EXPECT_TRUE(finished);
    EXPECT_EQ(say.conversation.ExitStatus(), 0);
    say("during pause click Nobody");
    EXPECT_EQ(say("click Command5"), "ok");
    EXPECT_EQ(say.conversation.ExitStatus(), 2);
}

TEST_F(TimeCommands, ClosingTheWindowInAPauseEndsTheProgramThere) {
    FrmPicX& form = say.Form();
    bool finished = false;
    form.Command5.Click.Connect([&] {
        Pause(1);
        finished = true;
    });
    say("during pause close");
    EXPECT_EQ(say("click Command5"), "ok ended");
    EXPECT_FALSE(finished);
    EXPECT_TRUE(say.conversation.Ended());
}

TEST_F(TimeCommands, ThePassesOfASmudgerAreCountedFromOneInEachCommand) {
    FrmPicX& form = say.Form();
    std::vector<std::string> seen;
    form.Command5.Click.Connect([&] {
        for (int pass = 1; pass <= 3; ++pass) {
            seen.push_back("pass " + std::to_string(pass));
            Desktop().pump.DoEvents(PumpSite::Pass);
        }
    });
    form.TextMatSize.Change.Connect([&] { seen.push_back(form.TextMatSize.Text()); });
    say("during pass 2 set TextMatSize.Text a");
    say("during pass 3 set TextMatSize.Text b");
    say("during pass 2 set TextMatSize.Text c");
    say("click Command5");
    EXPECT_THAT(seen, ElementsAre("pass 1", "pass 2", "a", "c", "pass 3", "b"));
    seen.clear();
    say("during pass 1 set TextMatSize.Text d");
    say("click Command5");
    EXPECT_THAT(seen, ElementsAre("pass 1", "d", "pass 2", "pass 3"));
}

TEST_F(TimeCommands, APauseThatMidnightMakesEndlessIsTold) {
    say.Form().Command5.Click.Connect([this] { Pause(1); });
    say("time 86399.5");
    EXPECT_EQ(say("click Command5"), "error the pause does not end");
    say("time 100");
    EXPECT_EQ(Desktop().pump.Timer(), 100.0); // no pause is open any more
    EXPECT_EQ(Desktop().pump.Timer(), 100.0);
}

TEST_F(TimeCommands, EscapeEndsThePauseThatMidnightWouldMakeEndless) {
    say.Form().Command5.Click.Connect([this] { Pause(1); });
    say("time 86399.5");
    say("during pause key esc");
    EXPECT_EQ(say("click Command5"), "ok");
}

} // namespace
} // namespace mirelle::driver
