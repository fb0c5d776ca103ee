// The programs on the desk: one that runs until its owner lets it go, and the console stand-in with questions
// to its interpreter.
#pragma once

#include "tools/road/Desk.h"

#include <memory>
#include <string>
#include <vector>

class QProcess;

namespace mirelle::road {

class RunningProgram {
public:
    // Throws where it can't be started.
    RunningProgram(const std::string& program, const std::vector<std::string>& arguments);
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    bool IsRunning() const;

private:
    std::unique_ptr<QProcess> process_;
};

// The window of RubyConsole.cpp.
class Console {
public:
    // `folder` is where its socket stands.
    Console(const std::string& title, const std::string& folder, const Place& place);
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    // What the interpreter says to a Ruby expression, as JSON.
    std::string Ask(const std::string& expression) const;
    // Waits until it says so.
    void AwaitAnswer(const std::string& expression, const std::string& answer) const;

private:
    std::string socket_;
    RunningProgram program_;
    int connection_ = -1;
};

// Puts a PNG file on the clipboard, as another program does that is asked for a copy.
void PutOnClipboard(const std::string& pictureFile);

} // namespace mirelle::road
