// Which keys go down and up, and what becomes of keys that someone holds.
#include "tests/desktop/x11/X11Desktop.h"

#include <X11/keysym.h>
#include <X11/Xatom.h>
#include <X11/Xutil.h>

#include <unistd.h>

#include <chrono>
#include <csignal>
#include <future>

namespace mirelle::test {
namespace {

using Keys = X11Desktop;

TEST_F(Keys, NamedKeysAndChordsArrive) {
    ConsoleProcess console("Ruby Console");
    auto shell = ShellFor("Ruby Console");
    shell->SendKeys("^c%{F4}+{LEFT}{PGDN}{F13}{HOME 2}^+{END}~{BS}{TAB}{ESC}");
    EXPECT_EQ(console.TakeRecord(),
              "<Ctrl+c><Alt+F4><Shift+Left><Next><F13><Home><Home><Shift+Ctrl+End>\r\b\t\x1b");
}

TEST_F(Keys, AGroupKeepsItsModifierDown) {
    ConsoleProcess console("Ruby Console", {"--keys"});
    auto shell = ShellFor("Ruby Console");
    shell->SendKeys("+(a^(b)c)");
    EXPECT_EQ(console.TakeRecord(), "+Shift_L +a -a +Control_L +b -b -Control_L +c -c -Shift_L");
}

TEST_F(Keys, ChordsOneAfterTheOtherLetTheModifierGoInBetween) {
    ConsoleProcess console("Ruby Console", {"--keys"});
    auto shell = ShellFor("Ruby Console");
    shell->SendKeys("%a%b");
    EXPECT_EQ(console.TakeRecord(), "+Alt_L +a -a -Alt_L +Alt_L +b -b -Alt_L");
}

TEST_F(Keys, CapitalsAreTypedUnderShift) {
    ConsoleProcess console("Ruby Console", {"--keys"});
    auto shell = ShellFor("Ruby Console");
    shell->SendKeys("aBCd");
    EXPECT_EQ(console.TakeRecord(), "+a -a +Shift_L +b -b +c -c -Shift_L +d -d");
}

TEST_F(Keys, LockKeysToggleTheLocks) {
    ConsoleProcess console("Ruby Console");
    LockModifiers(Mod2Mask);
    auto shell = ShellFor("Ruby Console");
    shell->SendKeys("a{CAPSLOCK}b{NUMLOCK}c");
    EXPECT_EQ(console.TakeRecord(), "abc");
    EXPECT_EQ(LockedModifiers(), unsigned(LockMask));
}

TEST_F(Keys, AShiftThatAProgramHoldsIsLetGoAndComesBack) {
    ConsoleProcess console("Ruby Console");
    auto shell = ShellFor("Ruby Console");
    Press(XK_Shift_L);
    shell->SendKeys("aB1");
    EXPECT_EQ(console.TakeRecord(), "aB1");
    EXPECT_TRUE(IsDown(XK_Shift_L));
    Release(XK_Shift_L);
}

// As after a click on a send button by the Enter key.
TEST_F(Keys, AHeldKeyThatIsNoModifierCanBeTypedAndDoesNotComeBack) {
    ConsoleProcess console("Ruby Console");
    auto shell = ShellFor("Ruby Console");
    PressOnKeyboard(XK_Return);
    console.TakeRecord();
    shell->SendKeys("a\rb\r");
    EXPECT_EQ(console.TakeRecord(), "a\rb\r");
    EXPECT_FALSE(IsDown(XK_Return));
    ReleaseOnKeyboard(XK_Return);
    EXPECT_EQ(console.TakeRecord(), "");
}

TEST_F(Keys, AModifierThatTheUserLetsGoMeanwhileStaysUp) {
    ConsoleProcess console("Ruby Console");
    auto shell = ShellFor("Ruby Console");
    PressOnKeyboard(XK_Shift_L);
    // So many rare characters that the typing also stops to wait for the window.
    const std::string text = std::string(100000, 'a') + RareCharacters(60);
    auto typing = std::async(std::launch::async, [&] { shell->SendKeys(text); });
    WaitUntil([&] { return !console.TakeRecord().empty(); });
    ReleaseOnKeyboard(XK_Shift_L);
    typing.get();
    EXPECT_FALSE(IsDown(XK_Shift_L));
}

// The server takes over the layout of whichever keyboard spoke last.
TEST_F(Keys, TheLayoutThatCountsIsTheOneOfTheKeyboardThatTypes) {
    ConsoleProcess console("Ruby Console");
    UseLayout("de");
    UseLayoutOnKeyboard("fr");
    auto shell = ShellFor("Ruby Console");
    const std::vector<KeySym> german = KeyboardMapping();
    PressOnKeyboard(XK_Down);
    ReleaseOnKeyboard(XK_Down);
    ASSERT_NE(KeyboardMapping(), german);
    console.TakeRecord();
    shell->SendKeys("zyaß");
    EXPECT_EQ(console.TakeRecord(), "zyaß");
}

// A busy program looks up what a key means only when it comes to read it.
TEST_F(Keys, BorrowedKeysAreNotGivenBackBeforeTheyAreRead) {
    ConsoleProcess console("Ruby Console");
    const std::vector<KeySym> mapping = KeyboardMapping();
    auto shell = ShellFor("Ruby Console");
    kill(console.Process(), SIGSTOP);
    shell->SendKeys("é字");
    auto dropping = std::async(std::launch::async, [&] { shell.reset(); });
    EXPECT_EQ(dropping.wait_for(std::chrono::milliseconds(200)), std::future_status::timeout);
    EXPECT_NE(KeyboardMapping(), mapping);
    kill(console.Process(), SIGCONT);
    dropping.get();
    EXPECT_EQ(console.TakeRecord(), "é字");
    EXPECT_EQ(KeyboardMapping(), mapping);
}

TEST_F(Keys, AProgramThatAnswersNoPingGetsTimeToRead) {
    ConsoleProcess console("Ruby Console", {"--no-ping"});
    const std::vector<KeySym> mapping = KeyboardMapping();
    auto shell = ShellFor("Ruby Console");
    shell->SendKeys("é字");
    shell.reset();
    EXPECT_EQ(console.TakeRecord(), "é字");
    EXPECT_EQ(KeyboardMapping(), mapping);
}

// It could not answer while it types: the borrowed keys stay until it has had its turn.
TEST_F(Keys, TypingIntoAWindowOfThisProgramDoesNotWaitForIt) {
    Display* server = Server().Server();
    const Window window = XCreateSimpleWindow(server, Server().Root(), 0, 0, 100, 100, 0, 0, 0);
    const long process = getpid();
    XChangeProperty(server, window, Server().Named("_NET_WM_PID"), XA_CARDINAL, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(&process), 1);
    Atom ping = Server().Named("_NET_WM_PING");
    XSetWMProtocols(server, window, &ping, 1);
    XStoreName(server, window, "Ours");
    XSelectInput(server, window, KeyPressMask);
    XMapWindow(server, window);
    AwaitWindow("Ours");

    const std::vector<KeySym> mapping = KeyboardMapping();
    {
        X11Console console;
        console.AppActivate("Ours");
        console.CreateObject("WScript.Shell")->SendKeys("é");
        XEvent event;
        XWindowEvent(server, window, KeyPressMask, &event);
        int width = 0;
        KeySym* symbols = XGetKeyboardMapping(server, KeyCode(event.xkey.keycode), 1, &width);
        EXPECT_EQ(symbols[0], KeySym(XK_eacute));
        XFree(symbols);
    }
    EXPECT_EQ(KeyboardMapping(), mapping);
    XDestroyWindow(server, window);
    Server().Sync();
}

} // namespace
} // namespace mirelle::test
