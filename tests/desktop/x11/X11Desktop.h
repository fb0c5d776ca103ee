// What the tests of the X desktop share: a second connection to the server, layouts, and keys that someone
// else holds. They run under tests/support/with_display.
#pragma once

// Ahead of Xlib, whose macros break it.
#include <gtest/gtest.h>

#include "desktop/x11/Connection.h"
#include "desktop/x11/X11Console.h"
#include "tests/desktop/x11/ConsoleProcess.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace mirelle::test {

class X11Desktop : public testing::Test {
protected:
    X11Desktop();
    ~X11Desktop() override;

    const x11::Connection& Server() const { return *server_; }

    // As setxkbmap names them ("us,ru"), and which of them is in force, counted from 0.
    void UseLayout(const std::string& layout, int group = 0);
    // The layout of the keyboard that is plugged in, and of no other.
    void UseLayoutOnKeyboard(const std::string& layout);
    // Masks of real modifiers.
    void LockModifiers(unsigned modifiers);
    unsigned LockedModifiers() const;
    unsigned HeldModifiers() const;
    bool IsDown(KeySym symbol) const;
    int LockedGroup() const;

    // A key that a program presses, and one that is pressed on the keyboard that is plugged in.
    void Press(KeySym symbol);
    void Release(KeySym symbol);
    void PressOnKeyboard(KeySym symbol);
    void ReleaseOnKeyboard(KeySym symbol);

    // What every key gives, in the core protocol's form.
    std::vector<KeySym> KeyboardMapping() const;
    // How often the mapping has changed since the last call, or since the test began.
    int MappingChanges();
    // Every key for which `fits` holds of its symbols gets one symbol.
    void FillKeys(const std::function<bool(const std::vector<KeySym>&)>& fits, KeySym symbol);

    // Returns when a window can be found by its title: a new one is announced by the window manager.
    void AwaitWindow(const std::string& title) const;
    // Starts a shell after activating the window.
    std::unique_ptr<ShellObject> ShellFor(const std::string& title);

private:
    KeyCode CodeOf(KeySym symbol) const;
    void SendOnKeyboard(KeySym symbol, bool press);

    std::unique_ptr<x11::Connection> server_;
    int mappingEvents_ = 0; // their type
    X11Console console_;
};

// The text with braces around whatever has a meaning in the keystroke language.
std::string Literally(const std::string& text);

// So many different characters that no layout of the tests has.
std::string RareCharacters(int count);

// Looks until the condition holds. After some ten seconds the test fails.
void WaitUntil(const std::function<bool()>& condition);

} // namespace mirelle::test
