// A console window of another program, which writes down what arrives.
#pragma once

#include "desktop/windows/System.h"
#include "tests/support/TemporaryFolder.h"

#include <functional>
#include <string>

namespace mirelle::test {

// Waits, at most two minutes, until the condition holds. Returns whether it does.
bool Await(const std::function<bool()>& condition);

class ConsoleProcess {
public:
    // Returns when its window is there.
    explicit ConsoleProcess(const std::string& title);
    ~ConsoleProcess();
    ConsoleProcess(const ConsoleProcess&) = delete;
    ConsoleProcess& operator=(const ConsoleProcess&) = delete;

    HWND Window() const;
    // What it wrote down so far: its keys ahead of the line "text", and the text behind that line.
    std::string Keys() const;
    std::string Text() const;

private:
    TemporaryFolder folder_;
    std::string title_;
    PROCESS_INFORMATION process_{};
};

} // namespace mirelle::test
