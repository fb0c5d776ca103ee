#include "tests/support/ScriptedDesktop.h"

#include "forms/RunTimeError.h"

#include <cmath>

namespace mirelle::test {
namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kLookSeconds = 0.05;
constexpr int kMostLooks = static_cast<int>(kSecondsPerDay / kLookSeconds);

template <class Answer>
std::optional<Answer> Next(std::deque<std::optional<Answer>>& answers) {
    if (answers.empty()) return std::nullopt;
    std::optional<Answer> answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

class RecordingShell : public ShellObject {
public:
    explicit RecordingShell(ScriptedConsole& console) : console_(console) {}
    void SendKeys(const std::string& text) override {
        const std::string& refused = console_.refusedKeys;
        if (!refused.empty() && text.find(refused) != std::string::npos)
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
        console_.sent.push_back({"SendKeys", text});
    }

private:
    ScriptedConsole& console_;
};

} // namespace

Picture ScriptedClipboard::GetData() {
    ++reads;
    return bitmap;
}

void ScriptedClipboard::Clear() {
    changes.emplace_back("Clear");
    bitmap = Picture();
    text.reset();
}

void ScriptedClipboard::SetData(const Picture& picture) {
    changes.emplace_back("SetData");
    text.reset();
    bitmap = picture;
}

void ScriptedClipboard::SetText(const std::string& newText) {
    changes.emplace_back("SetText");
    bitmap = Picture();
    text = newText;
}

MessageAnswer ScriptedDialogs::MsgBox(const std::string& text, MessageButtons buttons,
                                      const std::string& title) {
    messages.push_back({text, title, buttons});
    if (messageAnswers.empty())
        return buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Ok;
    const MessageAnswer answer = messageAnswers.front();
    messageAnswers.pop_front();
    return answer;
}

std::string ScriptedDialogs::InputBox(const std::string& prompt, const std::string& title,
                                      const std::string& defaultText) {
    dialogs.push_back({ShownDialog::Kind::Input, {}, prompt, title, defaultText});
    return Next(inputAnswers).value_or("");
}

std::optional<std::string> ScriptedDialogs::ShowOpen(const OpenRequest& request) {
    dialogs.push_back({ShownDialog::Kind::Open, request, {}, request.title, {}});
    return Next(openAnswers);
}

std::optional<Color> ScriptedDialogs::ShowColor(Color) {
    dialogs.push_back({ShownDialog::Kind::Color, {}, {}, {}, {}});
    return Next(colorAnswers);
}

double ScriptedTime::Timer() {
    if (!eventPending_.empty()) {
        if (++looks_ > kMostLooks) throw EndlessPause();
        seconds = std::fmod(seconds + kLookSeconds, kSecondsPerDay);
    }
    return seconds;
}

void ScriptedTime::DoEvents(PumpSite site) {
    ++pumps;
    if (site == PumpSite::Pause && !eventPending_.empty() && eventPending_.back()) {
        eventPending_.back() = false;
        if (duringPause.empty()) return;
        const auto event = std::move(duringPause.front());
        duringPause.pop_front();
        event();
    }
    if (site == PumpSite::Pass) {
        const auto [first, last] = duringPass.equal_range(++pass_);
        std::vector<std::function<void()>> events;
        for (auto entry = first; entry != last; ++entry)
            events.push_back(std::move(entry->second));
        duringPass.erase(first, last);
        for (const auto& event : events)
            event();
    }
}

void ScriptedTime::PauseBegins(double delay) {
    sent_.push_back({"Pause", {}, delay});
    eventPending_.push_back(true);
    looks_ = 0;
}

void ScriptedTime::PauseEnds() {
    if (!eventPending_.empty()) eventPending_.pop_back();
}

void ScriptedTime::HandlersHaveEnded() {
    eventPending_.clear();
    pass_ = 0;
}

void ScriptedTime::Advance(double milliseconds) {
    seconds = std::fmod(seconds + milliseconds / 1000.0, kSecondsPerDay);
}

void ScriptedConsole::AppActivate(const std::string& title) {
    const bool found = present && title == "Ruby Console";
    sent.push_back({"AppActivate", title, 0, !found});
    if (!found) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

std::unique_ptr<ShellObject> ScriptedConsole::CreateObject(const std::string& className) {
    if (className != "WScript.Shell") throw RunTimeError(ErrorNumber::CannotCreateObject);
    sent.push_back({"CreateObject", className});
    return std::make_unique<RecordingShell>(*this);
}

Ports ScriptedDesktop::PortsOver(FileSystem& files, PictureLoader& loader, ImageEncoders& encoders) {
    return {clipboard, dialogs, files, loader, encoders, time, keyboard, console, viewer, screen, process};
}

} // namespace mirelle::test
