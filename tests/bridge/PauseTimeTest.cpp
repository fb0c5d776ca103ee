#include "bridge/PauseTime.h"

#include "tests/bridge/SentTexts.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class PauseTimeTest : public ::testing::Test {
protected:
    TestProgram program;
    ScriptedDesktop& desktop = program.desktop;
    Ports& ports = program.form.ports;
};

TEST_F(PauseTimeTest, WaitsOneSecondAndOneAndAQuarter) {
    double before = desktop.time.seconds;
    PauseTime(ports);
    EXPECT_GE(desktop.time.seconds - before, 1.0);
    EXPECT_LT(desktop.time.seconds - before, 1.2);
    before = desktop.time.seconds;
    PauseTime2(ports);
    EXPECT_GE(desktop.time.seconds - before, 1.25);
    EXPECT_LT(desktop.time.seconds - before, 1.45);
    EXPECT_EQ(TakeSent(desktop.console), (std::vector<std::string>{"Pause 1", "Pause 1.25"}));
}

TEST_F(PauseTimeTest, PumpsEventsThatCanRunHandlers) {
    int ran = 0;
    desktop.time.duringPause.push_back([&] { ++ran; });
    desktop.time.duringPause.push_back([&] { ++ran; });
    PauseTime(ports);
    EXPECT_EQ(ran, 1);
    EXPECT_GT(desktop.time.pumps, 10);
    PauseTime(ports);
    EXPECT_EQ(ran, 2);
}

TEST_F(PauseTimeTest, EscapeEndsThePauseThatIsGoing) {
    desktop.time.duringPause.push_back([&] { desktop.keyboard.escapePressed = true; });
    const double before = desktop.time.seconds;
    PauseTime(ports);
    EXPECT_LT(desktop.time.seconds - before, 0.3);
    PauseTime(ports);
    EXPECT_GE(desktop.time.seconds - before, 1.0);
}

TEST_F(PauseTimeTest, APauseBegunInTheLastSecondBeforeMidnightEndsOnlyByEscape) {
    desktop.time.seconds = 86399.5;
    int looks = 0;
    // Far beyond a second of looks the clock has fallen back to zero and the pause still goes on.
    class CountingKeyboard : public Keyboard {
    public:
        explicit CountingKeyboard(int& count) : looks(count) {}
        bool EscapeWentDown() override { return ++looks == 500; }
        int& looks;
    } keyboard(looks);
    Ports withKeyboard{ports.clipboard, ports.dialogs, ports.files,  ports.loader, ports.encoders, ports.pump,
                       keyboard,        ports.console, ports.viewer, ports.screen, ports.process};
    PauseTime(withKeyboard);
    EXPECT_EQ(looks, 500);
    EXPECT_LT(desktop.time.seconds, 60);
}

TEST_F(PauseTimeTest, ClosingTheWindowInsideEndsTheProgramThere) {
    desktop.time.duringPause.push_back([&] { program.form.UserClose(); });
    EXPECT_THROW(PauseTime(ports), ProgramEnded);
}

} // namespace
} // namespace mirelle::test
