#include "desktop/windows/WindowsKeyboard.h"

#include "desktop/windows/System.h"

namespace mirelle {
namespace {

constexpr int kDown = 0x8000;
constexpr int kPressedSinceLastLook = 1;

} // namespace

WindowsKeyboard::WindowsKeyboard() {
    EscapeWentDown();
}

bool WindowsKeyboard::EscapeWentDown() {
    const int state = GetAsyncKeyState(VK_ESCAPE);
    const bool isDown = (state & kDown) != 0;
    // Another program's look takes the mark of a press away; that the key is down now and was not before
    // tells the same.
    const bool wentDown = (state & kPressedSinceLastLook) != 0 || (isDown && !wasDown_);
    wasDown_ = isDown;
    return wentDown;
}

} // namespace mirelle
