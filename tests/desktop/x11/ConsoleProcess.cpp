#include "tests/desktop/x11/ConsoleProcess.h"

#include <X11/Xlib.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace mirelle::test {
namespace {

std::vector<char*> ArgumentsOf(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    return arguments;
}

pid_t Start(const std::vector<std::string>& command, const posix_spawn_file_actions_t* files) {
    pid_t process = 0;
    const std::vector<char*> arguments = ArgumentsOf(command);
    if (posix_spawnp(&process, arguments[0], files, nullptr, arguments.data(), environ) != 0)
        throw std::runtime_error("cannot start " + command.front());
    return process;
}

int StatusOf(pid_t process) {
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128;
}

} // namespace

ConsoleProcess::ConsoleProcess(const std::string& title, const std::vector<std::string>& options) {
    int toConsole[2];
    int fromConsole[2];
    if (pipe2(toConsole, O_CLOEXEC) != 0 || pipe2(fromConsole, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipes");
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, toConsole[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&files, fromConsole[1], STDOUT_FILENO);
    std::vector<std::string> command{MIRELLE_RECORDING_CONSOLE, title};
    command.insert(command.end(), options.begin(), options.end());
    process_ = Start(command, &files);
    posix_spawn_file_actions_destroy(&files);
    close(toConsole[0]);
    close(fromConsole[1]);
    input_ = toConsole[1];
    output_ = fdopen(fromConsole[0], "r");
    window_ = std::stoul(ReadLine());
}

ConsoleProcess::~ConsoleProcess() {
    kill(process_, SIGCONT);
    close(input_);
    std::fclose(output_);
    StatusOf(process_);
}

std::string ConsoleProcess::TakeRecord() {
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) throw std::runtime_error("no display");
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window_;
    event.xclient.message_type = XInternAtom(display, "MIRELLE_READ", False);
    event.xclient.format = 32;
    XSendEvent(display, window_, False, NoEventMask, &event);
    XCloseDisplay(display);
    std::string record(std::stoul(ReadLine()), '\0');
    if (std::fread(record.data(), 1, record.size(), output_) != record.size())
        throw std::runtime_error("the console ended");
    return record;
}

std::string ConsoleProcess::ReadLine() {
    std::string line;
    for (int c = std::fgetc(output_); c != '\n'; c = std::fgetc(output_)) {
        if (c == EOF) throw std::runtime_error("the console ended");
        line += char(c);
    }
    return line;
}

int RunProgram(const std::vector<std::string>& command) {
    return StatusOf(Start(command, nullptr));
}

} // namespace mirelle::test
