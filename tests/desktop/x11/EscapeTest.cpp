// Escape is noticed whichever window has the focus, once for each look.
#include "tests/desktop/x11/X11Desktop.h"

#include "desktop/x11/X11Keyboard.h"

#include <X11/keysym.h>

namespace mirelle::test {
namespace {

class Escape : public X11Desktop {
protected:
    void Tap(KeySym symbol) {
        PressOnKeyboard(symbol);
        ReleaseOnKeyboard(symbol);
    }
};

TEST_F(Escape, IsSeenOnceAfterItWentDown) {
    ConsoleProcess other("Other");
    X11Keyboard keyboard;
    EXPECT_FALSE(keyboard.EscapeWentDown());
    Tap(XK_Escape);
    EXPECT_TRUE(keyboard.EscapeWentDown());
    EXPECT_FALSE(keyboard.EscapeWentDown());
    Tap(XK_Escape);
    Tap(XK_Escape);
    EXPECT_TRUE(keyboard.EscapeWentDown());
    EXPECT_FALSE(keyboard.EscapeWentDown());
}

TEST_F(Escape, OtherKeysAndReleasesAreNone) {
    X11Keyboard keyboard;
    Tap(XK_a);
    Tap(XK_Return);
    EXPECT_FALSE(keyboard.EscapeWentDown());
    PressOnKeyboard(XK_Escape);
    EXPECT_TRUE(keyboard.EscapeWentDown());
    ReleaseOnKeyboard(XK_Escape);
    EXPECT_FALSE(keyboard.EscapeWentDown());
}

TEST_F(Escape, IsSeenWhileAnotherProgramGrabsTheKeyboard) {
    X11Keyboard keyboard;
    ASSERT_EQ(
        XGrabKeyboard(Server().Server(), Server().Root(), False, GrabModeAsync, GrabModeAsync, CurrentTime),
        GrabSuccess);
    Tap(XK_Escape);
    EXPECT_TRUE(keyboard.EscapeWentDown());
    XUngrabKeyboard(Server().Server(), CurrentTime);
}

TEST_F(Escape, FollowsTheLayout) {
    X11Keyboard keyboard;
    ASSERT_EQ(RunProgram({"setxkbmap", "-layout", "us", "-option", "caps:swapescape"}), 0);
    Tap(XK_Caps_Lock);
    EXPECT_FALSE(keyboard.EscapeWentDown());
    Tap(XK_Escape);
    EXPECT_TRUE(keyboard.EscapeWentDown());
}

} // namespace
} // namespace mirelle::test
