// The programs on the desk: one that runs until its owner lets it go, and the console stand-in with questions
// to its interpreter.
#pragma once

#include "tools/road/Desk.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QProcess;

namespace mirelle::road {

// A program and its arguments.
using Command = std::vector<std::string>;

class RunningProgram {
public:
    // Throws where it can't be started.
    explicit RunningProgram(const Command& command);
    // What the first writes the second reads; both are let go together.
    RunningProgram(const Command& first, const Command& second);
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    bool IsRunning() const;
    // Waits for its end.
    void AwaitEnd() const;

private:
    std::vector<std::unique_ptr<QProcess>> processes_;
};

// Starts a console's window and an interpreter behind it, which answers at the socket.
using ConsoleStarter = std::function<std::unique_ptr<RunningProgram>(const std::string& socket)>;

// The window of RubyConsole.cpp.
ConsoleStarter RubyConsole(const std::string& title, const Place& place);
// A window of which another program is asked for each line that was typed: `typing` writes them.
ConsoleStarter ConsoleOf(const Command& typing);

class Console {
public:
    // `folder` is where its socket stands.
    Console(const std::string& folder, const ConsoleStarter& start);
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    // What the interpreter says to a Ruby expression, as JSON.
    std::string Ask(const std::string& expression) const;
    // Waits until it says so.
    void AwaitAnswer(const std::string& expression, const std::string& answer) const;

private:
    std::string socket_;
    std::unique_ptr<RunningProgram> program_;
    int connection_ = -1;
};

// Puts a PNG or BMP file on the clipboard, as another program does that is asked for a copy.
void PutOnClipboard(const std::string& pictureFile);
// Writes what another program has put there as a BMP file. Waits for it.
void TakeFromClipboard(const std::string& pictureFile);

} // namespace mirelle::road
