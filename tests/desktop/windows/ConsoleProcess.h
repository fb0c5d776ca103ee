// A console window of another program, which writes down what arrives.
#pragma once

#include "desktop/windows/System.h"
#include "tests/support/TemporaryFolder.h"

#include <functional>
#include <string>

namespace mirelle::test {

// Waits, at most two minutes, until the condition holds. Returns whether it does.
bool Await(const std::function<bool()>& condition);

// A program that stands beside the test itself.
std::wstring ProgramPath(const std::wstring& name);

// One turn of an event loop: whatever waits in the queue of this thread is handled.
void TakeMessages();

class ConsoleProcess {
public:
    // A deaf one looks at no message, and nothing brings it to the front.
    enum class Hearing { Usual, Deaf };

    // Returns when its window is there.
    explicit ConsoleProcess(const std::string& title, Hearing hearing = Hearing::Usual);
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
    Hearing hearing_;
    PROCESS_INFORMATION process_{};
};

} // namespace mirelle::test
