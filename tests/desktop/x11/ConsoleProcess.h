// The recording console, run as a program of its own.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include <sys/types.h>

namespace mirelle::test {

class ConsoleProcess {
public:
    // Returns when its window is there. For the options see RecordingConsole.cpp.
    explicit ConsoleProcess(const std::string& title, const std::vector<std::string>& options = {});
    ~ConsoleProcess();
    ConsoleProcess(const ConsoleProcess&) = delete;
    ConsoleProcess& operator=(const ConsoleProcess&) = delete;

    // What it has recorded since the last call, with everything that the server passed to it before.
    std::string TakeRecord();
    unsigned long Window() const { return window_; }
    pid_t Process() const { return process_; }

private:
    std::string ReadLine();

    pid_t process_ = 0;
    int input_ = -1; // closing it ends the console
    std::FILE* output_ = nullptr;
    unsigned long window_ = 0;
};

// Runs a program to its end and returns its status.
int RunProgram(const std::vector<std::string>& command);

} // namespace mirelle::test
