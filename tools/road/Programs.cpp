#include "tools/road/Programs.h"

#include "tools/road/Await.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace mirelle::road {
namespace {

constexpr int kLongestAnswerMs = 5000;

QStringList Words(const std::vector<std::string>& words) {
    QStringList list;
    for (const std::string& word : words)
        list << QString::fromStdString(word);
    return list;
}

// A connection to a socket that someone listens on, or -1.
int ConnectTo(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof(address.sun_path)) throw std::runtime_error("too long a path: " + path);
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    const int end = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connect(end, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0) return end;
    close(end);
    return -1;
}

} // namespace

RunningProgram::RunningProgram(const Command& command) : RunningProgram(command, {}) {}

RunningProgram::RunningProgram(const Command& first, const Command& second) {
    for (const Command* command : {&first, &second}) {
        if (command->empty()) continue;
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(QProcess::ForwardedChannels);
        process->setProgram(QString::fromStdString(command->front()));
        process->setArguments(Words({command->begin() + 1, command->end()}));
        processes_.push_back(std::move(process));
    }
    if (processes_.size() == 2) {
        processes_[0]->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        processes_[0]->setStandardOutputProcess(processes_[1].get());
    }
    for (const auto& process : processes_) {
        process->start();
        if (!process->waitForStarted())
            throw std::runtime_error("cannot start " + process->program().toStdString());
    }
}

RunningProgram::~RunningProgram() {
    for (const auto& process : processes_) {
        process->terminate();
        if (!process->waitForFinished()) process->kill();
    }
}

bool RunningProgram::IsRunning() const {
    return std::ranges::all_of(processes_, [](const auto& process) {
        return !process->waitForFinished(0) && process->state() == QProcess::Running;
    });
}

void RunningProgram::AwaitEnd() const {
    Await("the end of " + processes_.front()->program().toStdString(), [this] { return !IsRunning(); });
}

ConsoleStarter RubyConsole(const std::string& title, const Place& place) {
    return [=](const std::string& socket) {
        return std::make_unique<RunningProgram>(
            Command{MIRELLE_RUBY_CONSOLE, title, socket, std::to_string(place.x), std::to_string(place.y),
                    std::to_string(place.width), std::to_string(place.height)});
    };
}

ConsoleStarter ConsoleOf(const Command& typing) {
    return [=](const std::string& socket) {
        return std::make_unique<RunningProgram>(typing, Command{"ruby", MIRELLE_RUBY_MODEL, socket});
    };
}

Console::Console(const std::string& folder, const ConsoleStarter& start)
    : socket_(folder + "/" + std::to_string(getpid()) + ".socket"), program_(start(socket_)) {
    Await("the interpreter behind the console", [&] { return (connection_ = ConnectTo(socket_)) >= 0; });
}

Console::~Console() {
    close(connection_);
    unlink(socket_.c_str());
}

std::string Console::Ask(const std::string& expression) const {
    const std::string question = expression + "\n";
    if (write(connection_, question.data(), question.size()) != ssize_t(question.size()))
        throw std::runtime_error("the interpreter ended");
    std::string answer;
    for (char byte = 0;;) {
        if (read(connection_, &byte, 1) != 1) throw std::runtime_error("the interpreter ended");
        if (byte == '\n') return answer;
        answer += byte;
    }
}

void Console::AwaitAnswer(const std::string& expression, const std::string& answer) const {
    std::string last;
    try {
        Await(expression, [&] { return (last = Ask(expression)) == answer; });
    } catch (const std::runtime_error&) {
        throw std::runtime_error(expression + " is " + last + ", never " + answer);
    }
}

void PutOnClipboard(const std::string& pictureFile) {
    const std::string type = pictureFile.ends_with(".bmp") ? "image/bmp" : "image/png";
    // It stays behind as a program of its own until someone else owns the clipboard.
    const std::vector<std::string> words{"-selection", "clipboard", "-t", type, "-i", pictureFile};
    if (QProcess::execute("xclip", Words(words)) != 0) throw std::runtime_error("nothing was copied");
}

void TakeFromClipboard(const std::string& pictureFile) {
    Await("a picture on the clipboard", [&] {
        QProcess xclip;
        xclip.setStandardOutputFile(QString::fromStdString(pictureFile));
        xclip.start("xclip", {"-selection", "clipboard", "-t", "image/bmp", "-o"});
        // Who asks in the midst of a change may get no answer at all, and asks again.
        if (xclip.waitForFinished(kLongestAnswerMs)) return xclip.exitCode() == 0;
        xclip.kill();
        xclip.waitForFinished();
        return false;
    });
}

} // namespace mirelle::road
