#include "tools/road/WindowsWidgets.h"

#include <QByteArray>
#include <QList>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace mirelle::road {
namespace {

constexpr int kLongestAnswerMs = 60'000;
constexpr char kMore = '+'; // ahead of each line of an answer; the line behind the last has nothing of it

// The kinds of controls of UI Automation by their numbers, under the names that the accessibility bus has.
struct KindRow {
    int number;
    const char* role;
};
constexpr std::array kKinds = {
    KindRow{50000, "push button"}, KindRow{50002, "check box"},    KindRow{50003, "combo box"},
    KindRow{50004, "text"},        KindRow{50006, "graphic"},      KindRow{50007, "list item"},
    KindRow{50008, "list"},        KindRow{50013, "radio button"}, KindRow{50015, "slider"},
    KindRow{50016, "spin button"}, KindRow{50020, "label"},        KindRow{50025, "canvas"},
    KindRow{50026, "panel"},       KindRow{50032, "frame"},
};

std::string RoleOf(int number) {
    const auto row = std::ranges::find(kKinds, number, &KindRow::number);
    return row == kKinds.end() ? "kind " + std::to_string(number) : row->role;
}

} // namespace

WindowsWidgets::WindowsWidgets(const Command& teller) : teller_(std::make_unique<QProcess>()) {
    QStringList arguments;
    for (const std::string& word : teller)
        arguments << QString::fromStdString(word);
    teller_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    teller_->start(arguments.takeFirst(), arguments);
    if (!teller_->waitForStarted()) throw std::runtime_error("cannot start " + teller.front());
}

WindowsWidgets::~WindowsWidgets() {
    teller_->closeWriteChannel(); // its end
    if (!teller_->waitForFinished()) teller_->kill();
}

std::vector<std::string> WindowsWidgets::Ask(const std::string& question) {
    teller_->write(QByteArray::fromStdString(question + "\n"));
    std::vector<std::string> answer;
    while (true) {
        while (!teller_->canReadLine())
            if (!teller_->waitForReadyRead(kLongestAnswerMs))
                throw std::runtime_error("nobody tells of the program's widgets");
        const QByteArray line = teller_->readLine();
        if (!line.startsWith(kMore)) return answer;
        answer.push_back(line.sliced(1).chopped(line.endsWith("\r\n") ? 2 : 1).toStdString());
    }
}

std::string WindowsWidgets::Program(const std::string& name) {
    const std::vector<std::string> answer = Ask("program " + name);
    return answer.empty() ? std::string() : answer.front();
}

// A line for each: object, kind, left, top, width, height, name.
std::vector<Widget> WindowsWidgets::Children(const std::string& object) {
    std::vector<Widget> children;
    for (const std::string& line : Ask("children " + object)) {
        const QStringList parts = QString::fromStdString(line).split('\t');
        if (parts.size() != 7) throw std::runtime_error("no widget: " + line);
        const Place place{parts[2].toInt(), parts[3].toInt(), parts[4].toInt(), parts[5].toInt()};
        if (place.width > 0)
            children.push_back(
                {parts[0].toStdString(), RoleOf(parts[1].toInt()), parts[6].toStdString(), place});
    }
    return children;
}

std::string WindowsWidgets::Text(const std::string& object) {
    const std::vector<std::string> answer = Ask("text " + object);
    return answer.empty() ? std::string() : answer.front();
}

bool WindowsWidgets::IsChecked(const std::string& object) {
    return Holds("checked " + object);
}

bool WindowsWidgets::SeesCopiedPicture() {
    return Holds("clipboard picture");
}

bool WindowsWidgets::Holds(const std::string& question) {
    const std::vector<std::string> answer = Ask(question);
    return !answer.empty() && answer.front() == "1";
}

} // namespace mirelle::road
