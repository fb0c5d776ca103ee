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

TEST(ScriptShell, AnyOtherFailureRaisesTheRunTimeErrorThatItNames) {
    ScriptedShell system;
    const std::unique_ptr<ScriptShell> shell = ScriptShell::Create();
    const auto raised = [&](HRESULT result, HRESULT exception = S_OK, WORD code = 0) {
        system.runResult = result;
        system.exception = exception;
        system.code = code;
        return ErrorOf([&] { shell->SendKeys("a"); });
    };
    constexpr auto kOf70 = static_cast<HRESULT>(0x800A0046);
    EXPECT_EQ(raised(kOf70), ErrorNumber::PermissionDenied);
    EXPECT_EQ(raised(DISP_E_EXCEPTION, kOf70), ErrorNumber::PermissionDenied);
    EXPECT_EQ(raised(DISP_E_EXCEPTION, S_OK, 70), ErrorNumber::PermissionDenied);
    EXPECT_EQ(raised(static_cast<HRESULT>(0x800A0005)), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(raised(static_cast<HRESULT>(0x800AFFFF)), static_cast<ErrorNumber>(0xFFFF));
}

TEST(ScriptShell, AFailureThatNamesNoRunTimeErrorRaises440) {
    ScriptedShell system;
    const std::unique_ptr<ScriptShell> shell = ScriptShell::Create();
    for (const HRESULT result : {E_ACCESSDENIED, E_FAIL, static_cast<HRESULT>(0x800A0000)}) {
        system.runResult = result;
        EXPECT_EQ(ErrorOf([&] { shell->SendKeys("a"); }), ErrorNumber::AutomationError) << result;
        system.runResult = DISP_E_EXCEPTION;
        system.exception = result;
        EXPECT_EQ(ErrorOf([&] { shell->SendKeys("a"); }), ErrorNumber::AutomationError) << result;
    }
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
