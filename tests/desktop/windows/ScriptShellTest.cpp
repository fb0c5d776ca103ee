// The system's own shell object is given the text as it stands; where it can't type, the keys are played.
#include "desktop/windows/ScriptShell.h"

#include "desktop/windows/WindowsConsole.h"
#include "tests/desktop/windows/ConsoleProcess.h"
#include "tests/desktop/windows/ScriptedShell.h"
#include "tests/support/ErrorOf.h"

#include <gmock/gmock.h>

namespace mirelle::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using windows::ScriptShell;

TEST(ScriptShell, GivesTheTextAsTheOneArgumentOfSendKeys) {
    ScriptedShell system;
    const std::unique_ptr<ScriptShell> shell = ScriptShell::Create();
    ASSERT_NE(shell, nullptr);
    EXPECT_TRUE(shell->SendKeys("pt1 = [1,1,0]\r"));
    EXPECT_TRUE(shell->SendKeys("wall + \"ü字😀\"~"));
    EXPECT_THAT(system.calls, ElementsAre("SendKeys(pt1 = [1,1,0]\r)", "SendKeys(wall + \"ü字😀\"~)"));
}

TEST(ScriptShell, LetsTheObjectGo) {
    ScriptedShell system;
    std::unique_ptr<ScriptShell> shell = ScriptShell::Create();
    EXPECT_EQ(system.inUse, 1);
    shell.reset();
    EXPECT_EQ(system.inUse, 0);
}

TEST(ScriptShell, TellsThatTheObjectCannotType) {
    ScriptedShell system;
    const std::unique_ptr<ScriptShell> shell = ScriptShell::Create();
    for (const HRESULT missing : {E_NOTIMPL, DISP_E_UNKNOWNNAME, DISP_E_MEMBERNOTFOUND}) {
        system.runResult = missing;
        EXPECT_FALSE(shell->SendKeys("a")) << missing;
        system.runResult = DISP_E_EXCEPTION;
        system.exception = missing;
        EXPECT_FALSE(shell->SendKeys("a")) << missing;
    }
    system.runResult = S_OK;
    system.nameResult = DISP_E_UNKNOWNNAME;
    EXPECT_FALSE(shell->SendKeys("a"));
}

TEST(ScriptShell, AnyOtherFailureRaisesError5) {
    ScriptedShell system;
    const std::unique_ptr<ScriptShell> shell = ScriptShell::Create();
    system.runResult = E_ACCESSDENIED;
    EXPECT_EQ(ErrorOf([&] { shell->SendKeys("a"); }), ErrorNumber::InvalidProcedureCall);
    system.runResult = DISP_E_EXCEPTION;
    EXPECT_EQ(ErrorOf([&] { shell->SendKeys("a"); }), ErrorNumber::InvalidProcedureCall);
    system.exception = E_ACCESSDENIED;
    EXPECT_EQ(ErrorOf([&] { shell->SendKeys("a"); }), ErrorNumber::InvalidProcedureCall);
}

class ConsoleOverShell : public testing::Test {
protected:
    void Type(const std::string& text) {
        console_.AppActivate("Ruby Console");
        console_.CreateObject("WScript.Shell")->SendKeys(text);
    }

    ScriptedShell system_;
    ConsoleProcess process_{"Ruby Console"};
    WindowsConsole console_;
};

TEST_F(ConsoleOverShell, TheShellTypesWhatTheLayoutHasKeysForAndNothingIsTypedTwice) {
    Type("model = Sketchup::active_model\r");
    EXPECT_THAT(system_.calls, ElementsAre("SendKeys(model = Sketchup::active_model\r)"));
    Type("ж"); // played: it comes behind whatever else was typed
    EXPECT_TRUE(Await([&] { return !process_.Text().empty(); }));
    EXPECT_EQ(process_.Text(), "ж");
}

TEST_F(ConsoleOverShell, TextWithACharacterThatTheLayoutLacksIsPlayedWhole) {
    Type("a ж b");
    EXPECT_TRUE(Await([&] { return process_.Text() == "a ж b"; })) << process_.Text();
    EXPECT_THAT(system_.calls, IsEmpty());
}

TEST_F(ConsoleOverShell, AShellThatCannotTypeIsAskedOnceAndTheKeysArePlayed) {
    system_.runResult = E_NOTIMPL;
    console_.AppActivate("Ruby Console");
    const std::unique_ptr<ShellObject> shell = console_.CreateObject("WScript.Shell");
    shell->SendKeys("first\r");
    shell->SendKeys("second");
    EXPECT_TRUE(Await([&] { return process_.Text() == "first\nsecond"; })) << process_.Text();
    EXPECT_EQ(system_.calls.size(), 1u);
}

TEST_F(ConsoleOverShell, AMalformedTextReachesNoShell) {
    EXPECT_EQ(ErrorOf([&] { Type("wall (old"); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_THAT(system_.calls, IsEmpty());
}

} // namespace
} // namespace mirelle::test
