#include "tools/road/Programs.h"

#include "tools/road/Await.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <stdexcept>

namespace mirelle::road {
namespace {

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

RunningProgram::RunningProgram(const std::string& program, const std::vector<std::string>& arguments)
    : process_(std::make_unique<QProcess>()) {
    process_->setProcessChannelMode(QProcess::ForwardedChannels);
    process_->start(QString::fromStdString(program), Words(arguments));
    if (!process_->waitForStarted()) throw std::runtime_error("cannot start " + program);
}

RunningProgram::~RunningProgram() {
    process_->terminate();
    if (!process_->waitForFinished()) process_->kill();
}

bool RunningProgram::IsRunning() const {
    return !process_->waitForFinished(0) && process_->state() == QProcess::Running;
}

Console::Console(const std::string& title, const std::string& folder, const Place& place)
    : socket_(folder + "/" + std::to_string(getpid()) + "-" + std::to_string(place.x) + ".socket"),
      program_(MIRELLE_RUBY_CONSOLE, {title, socket_, std::to_string(place.x), std::to_string(place.y),
                                      std::to_string(place.width), std::to_string(place.height)}) {
    Await("the interpreter behind " + title, [&] { return (connection_ = ConnectTo(socket_)) >= 0; });
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
    // It stays behind as a program of its own until someone else owns the clipboard.
    const std::vector<std::string> words{"-selection", "clipboard", "-t", "image/png", "-i", pictureFile};
    if (QProcess::execute("xclip", Words(words)) != 0) throw std::runtime_error("nothing was copied");
}

} // namespace mirelle::road
