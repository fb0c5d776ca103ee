#include "app/Splash.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class StartUpFormsTest : public ::testing::Test {
protected:
    TestProgram program;
    Splash splash{program.desktop.screen, program.desktop.time, program.desktop.process};
    UserManual& manual = program.sampler.manual;
    FrmPicX& form = program.form;
};

TEST_F(StartUpFormsTest, TheSplashTellsTitleAndVersionInTheMiddleOfTheScreen) {
    splash.Load();
    EXPECT_EQ(splash.Caption(), "About Mirelle");
    EXPECT_EQ(splash.lblVersion.Caption(), "Version 1.0.0");
    EXPECT_EQ(splash.Left + splash.Width / 2, 1920 * 15 / 2);
    EXPECT_EQ(splash.Top + splash.Height / 2, 1080 * 15 / 2);
    EXPECT_TRUE(splash.Visible);
}

TEST_F(StartUpFormsTest, TheSplashTellsTheDateOfTheDay) {
    for (const auto& [today, shown] : {std::pair{CalendarDate{2026, 11, 21}, "21 November 2026"},
                                       {CalendarDate{2024, 2, 29}, "29 February 2024"},
                                       {CalendarDate{2027, 1, 5}, "05 January 2027"}}) {
        program.desktop.time.today = today;
        splash.Load();
        EXPECT_EQ(splash.lblDate.Caption(), shown);
    }
}

TEST_F(StartUpFormsTest, TheEleventhTickEndsTheSplash) {
    int finished = 0;
    splash.Finished.Connect([&] { ++finished; });
    splash.Load();
    splash.Timer1.Advance(1099);
    EXPECT_EQ(finished, 0);
    EXPECT_TRUE(splash.Visible);
    splash.Timer1.Advance(1);
    EXPECT_EQ(finished, 1);
    EXPECT_FALSE(splash.Visible);
    splash.Timer1.Advance(10000);
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(program.desktop.time.pumps, 11);
}

TEST_F(StartUpFormsTest, AClickHoldsTheSplashAndASecondLetsItGoOn) {
    int finished = 0;
    splash.Finished.Connect([&] { ++finished; });
    splash.Load();
    splash.Timer1.Advance(500);
    splash.Click();
    EXPECT_EQ(splash.Label1.Caption(), "Click splashscreen to proceed");
    splash.Timer1.Advance(5000);
    EXPECT_EQ(finished, 0);
    splash.Label1.UserClick();
    EXPECT_EQ(splash.Label1.Caption(), "Click splashscreen to view");
    splash.Timer1.Advance(600);
    EXPECT_EQ(finished, 1);
}

TEST_F(StartUpFormsTest, TheManualsFormComesWhileTheMainWindowIsMinimised) {
    form.cmdGetCorvane(1).UserClick();
    EXPECT_FALSE(manual.Visible);
    form.cmdGetCorvane(0).UserClick();
    EXPECT_TRUE(manual.Visible);
    EXPECT_EQ(manual.WindowState, kWindowNormal);
    EXPECT_EQ(form.WindowState, kWindowMinimized);
    manual.UserClose();
    EXPECT_EQ(form.WindowState, kWindowNormal);
    EXPECT_TRUE(form.Visible);
    EXPECT_FALSE(manual.Visible);
}

TEST_F(StartUpFormsTest, ItsButtonsOpenTheManual) {
    EXPECT_EQ(manual.Command1(1).Caption(), "Local");
    EXPECT_EQ(manual.Command1(0).Caption(), "Web");
    manual.Command1(1).UserClick();
    manual.Command1(0).UserClick();
    const auto& opened = program.desktop.viewer.opened;
    ASSERT_EQ(opened.size(), 2U);
    EXPECT_EQ(opened[0].target, "C:\\Mirelle\\Support\\Mirelle1UserManual1.pdf");
    EXPECT_EQ(opened[0].workingFolder, "C:\\");
    EXPECT_EQ(opened[0].showMode, 0);
    EXPECT_TRUE(opened[1].target.starts_with("https://"));
}

TEST_F(StartUpFormsTest, AViewerThatFailsIsNotTold) {
    program.desktop.viewer.failure = ErrorNumber::FileNotFound;
    for (const int button : {0, 1})
        EXPECT_NO_THROW(manual.Command1(button).UserClick()) << button;
    EXPECT_EQ(program.desktop.viewer.opened.size(), 2U);
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

} // namespace
} // namespace mirelle::test
