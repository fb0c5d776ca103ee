// Which window a title finds, and that it then has the focus and lies on top.
#include "tests/desktop/x11/X11Desktop.h"

#include "desktop/x11/Receiver.h"
#include "desktop/x11/WindowFinder.h"
#include "forms/RunTimeError.h"
#include "tests/support/ErrorOf.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <algorithm>

namespace mirelle::test {
namespace {

class AppActivate : public X11Desktop {
protected:
    // Starts a console, and returns when the window manager knows its window.
    std::unique_ptr<ConsoleProcess> Open(const std::string& title,
                                         const std::vector<std::string>& options = {}) {
        auto console = std::make_unique<ConsoleProcess>(title, options);
        WaitUntil([&] { return std::ranges::count(Stack(), console->Window()) == 1; });
        return console;
    }

    // The windows from the lowest to the uppermost.
    std::vector<unsigned long> Stack() const {
        return x11::NumbersOf(Server(), Server().Root(), "_NET_CLIENT_LIST_STACKING", XA_WINDOW);
    }

    unsigned long Focused() const { return x11::FocusedWindow(Server()); }

    X11Console console_;
};

TEST_F(AppActivate, BringsACoveredWindowToTheFront) {
    const auto console = Open("Ruby Console");
    const auto cover = Open("Cover");
    console_.AppActivate("Cover");
    ASSERT_EQ(Stack().back(), cover->Window());
    console_.AppActivate("Ruby Console");
    EXPECT_EQ(Focused(), console->Window());
    EXPECT_EQ(Stack().back(), console->Window());
    console_.CreateObject("WScript.Shell")->SendKeys("here");
    EXPECT_EQ(console->TakeRecord(), "here");
    EXPECT_EQ(cover->TakeRecord(), "");
}

TEST_F(AppActivate, BringsBackAMinimisedWindow) {
    const auto console = Open("Ruby Console");
    XIconifyWindow(Server().Server(), console->Window(), DefaultScreen(Server().Server()));
    Server().Sync();
    WaitUntil([&] { return Focused() != console->Window(); });
    console_.AppActivate("Ruby Console");
    EXPECT_EQ(Focused(), console->Window());
}

TEST_F(AppActivate, PrefersTheExactTitleThenTheBeginningThenTheEnd) {
    const auto end = Open("The Ruby Console");
    console_.AppActivate("Ruby Console");
    EXPECT_EQ(Focused(), end->Window());

    const auto beginning = Open("Ruby Console 2");
    console_.AppActivate("Ruby Console");
    EXPECT_EQ(Focused(), beginning->Window());

    const auto exact = Open("Ruby Console");
    console_.AppActivate("The Ruby Console");
    console_.AppActivate("Ruby Console");
    EXPECT_EQ(Focused(), exact->Window());
}

TEST_F(AppActivate, ComparesWithoutRegardToCase) {
    const auto console = Open("ruby CONSOLE – École");
    Open("Other");
    console_.AppActivate("Ruby Console");
    EXPECT_EQ(Focused(), console->Window());
    console_.AppActivate("RUBY CONSOLE – ÉCOLE");
    EXPECT_EQ(Focused(), console->Window());
}

TEST_F(AppActivate, TakesTheUppermostOfWindowsThatFitAlike) {
    const auto first = Open("Ruby Console");
    const auto second = Open("Ruby Console");
    XRaiseWindow(Server().Server(), first->Window());
    Server().Sync();
    WaitUntil([&] { return Stack().back() == first->Window(); });
    console_.AppActivate("Ruby Console");
    EXPECT_EQ(Focused(), first->Window());
}

TEST_F(AppActivate, RaisesError5WhereThereIsNoSuchWindow) {
    const auto other = Open("A Ruby Console here");
    console_.AppActivate("A Ruby Console here");
    EXPECT_EQ(ErrorOf([&] { console_.AppActivate("Ruby Console"); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(ErrorOf([&] { console_.AppActivate(""); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(Focused(), other->Window());
}

TEST_F(AppActivate, RaisesError5WhereTheWindowDoesNotGetTheFocus) {
    const auto console = Open("Ruby Console", {"--no-focus"});
    EXPECT_EQ(ErrorOf([&] { console_.AppActivate("Ruby Console"); }), ErrorNumber::InvalidProcedureCall);
}

TEST_F(AppActivate, WhereTheWindowDoesNotGetTheFocusTheKeysGoWhereItIs) {
    const auto console = Open("Ruby Console", {"--no-focus"});
    const auto other = Open("Other");
    console_.AppActivate("Other");
    EXPECT_EQ(ErrorOf([&] { console_.AppActivate("Ruby Console"); }), ErrorNumber::InvalidProcedureCall);
    auto shell = console_.CreateObject("WScript.Shell");
    shell->SendKeys("x");
    shell.reset();
    EXPECT_EQ(other->TakeRecord(), "x");
}

TEST_F(AppActivate, WithoutAnySuchWindowTheKeysGoWhereTheFocusIs) {
    const auto other = Open("Other");
    console_.AppActivate("Other");
    EXPECT_EQ(ErrorOf([&] { console_.AppActivate("Ruby Console"); }), ErrorNumber::InvalidProcedureCall);
    auto shell = console_.CreateObject("WScript.Shell");
    shell->SendKeys("here");
    shell.reset();
    EXPECT_EQ(other->TakeRecord(), "here");
}

TEST_F(AppActivate, OnlyTheShellObjectCanBeCreated) {
    EXPECT_NE(console_.CreateObject("wscript.shell"), nullptr);
    EXPECT_EQ(ErrorOf([&] { console_.CreateObject("Other.Thing"); }), ErrorNumber::CannotCreateObject);
}

// Run without a window manager.
using BareDesktop = X11Desktop;

TEST_F(BareDesktop, WindowsAreFoundRaisedAndGivenTheFocus) {
    ASSERT_FALSE(x11::ManagerSupports(Server(), "_NET_ACTIVE_WINDOW"));
    ConsoleProcess console("The Ruby Console");
    ConsoleProcess cover("Cover");
    auto shell = ShellFor("Ruby Console");
    EXPECT_EQ(x11::FocusedWindow(Server()), console.Window());
    shell->SendKeys("hereé");
    shell.reset();
    EXPECT_EQ(console.TakeRecord(), "hereé");
    EXPECT_EQ(cover.TakeRecord(), "");

    ::Window root = None;
    ::Window parent = None;
    ::Window* children = nullptr;
    unsigned count = 0;
    XQueryTree(Server().Server(), Server().Root(), &root, &parent, &children, &count);
    EXPECT_EQ(children[count - 1], console.Window());
    XFree(children);
}

TEST_F(BareDesktop, AMissingWindowRaisesError5) {
    ConsoleProcess other("Other");
    EXPECT_EQ(ErrorOf([] { X11Console().AppActivate("Ruby Console"); }), ErrorNumber::InvalidProcedureCall);
}

} // namespace
} // namespace mirelle::test
