// Where there is no display nothing is found and nothing typed, and nothing ends the program.
#include "desktop/x11/X11Console.h"
#include "desktop/x11/X11Keyboard.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace mirelle::test {
namespace {

class NoDisplay : public testing::Test {
protected:
    NoDisplay() { unsetenv("DISPLAY"); }
};

TEST_F(NoDisplay, NoWindowIsFound) {
    X11Console console;
    EXPECT_EQ(ErrorOf([&] { console.AppActivate("Ruby Console"); }), ErrorNumber::InvalidProcedureCall);
}

TEST_F(NoDisplay, NoShellObjectIsMade) {
    X11Console console;
    EXPECT_EQ(ErrorOf([&] { console.CreateObject("WScript.Shell"); }), ErrorNumber::CannotCreateObject);
}

TEST_F(NoDisplay, EscapeNeverGoesDown) {
    X11Keyboard keyboard;
    EXPECT_FALSE(keyboard.EscapeWentDown());
}

} // namespace
} // namespace mirelle::test
