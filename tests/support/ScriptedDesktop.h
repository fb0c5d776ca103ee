// A desktop made of stand-ins: every port of the program, scripted and recorded. The subject tests and the
// session driver run the real form over it.
#pragma once

#include "forms/Ports.h"
#include "forms/RunTimeError.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace mirelle::test {

// Thrown by the process stand-in: the program has ended.
struct ProgramEnded {};

class ScriptedClipboard : public Clipboard {
public:
    bool HasBitmap() const override { return !bitmap.IsEmpty(); }
    Picture GetData() override;
    void Clear() override;
    void SetData(const Picture& picture) override;
    void SetText(const std::string& newText) override;

    Picture bitmap;
    std::optional<std::string> text;
    int reads = 0;
    std::vector<std::string> changes; // "Clear", "SetData" and "SetText" so far, oldest first
};

struct ShownMessage {
    std::string text;
    std::string title;
    MessageButtons buttons = MessageButtons::Ok;
};

struct ShownDialog {
    enum class Kind { Open, Color, Input } kind = Kind::Open;
    OpenRequest open;
    std::string prompt, title, defaultText;
};

// A dialog with no answer lined up is cancelled; a message box gets OK, a question No.
class ScriptedDialogs : public Dialogs {
public:
    MessageAnswer MsgBox(const std::string& text, MessageButtons buttons, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::optional<std::string> ShowOpen(const OpenRequest& request) override;
    std::optional<Color> ShowColor(Color current) override;

    std::deque<MessageAnswer> messageAnswers;
    std::deque<std::optional<std::string>> inputAnswers;
    std::deque<std::optional<std::string>> openAnswers;
    std::deque<std::optional<Color>> colorAnswers;
    std::vector<ShownMessage> messages; // shown so far, oldest first
    std::vector<ShownDialog> dialogs;
};

// What went over the console channel: a verb, and its text, number or failure.
struct SentItem {
    std::string verb; // "AppActivate", "CreateObject", "SendKeys", "Pause"
    std::string text;
    double seconds = 0;
    bool failed = false;
};

// Thrown by the clock in a pause that would go on for ever: one begun so late in the day that the clock falls
// back to zero ahead of its end, with nobody to press Escape.
struct EndlessPause : std::runtime_error {
    EndlessPause() : std::runtime_error("the pause does not end") {}
};

// A clock that stands still but in pauses, where each look at it moves it on by 0.05 seconds.
class ScriptedTime : public EventPump {
public:
    explicit ScriptedTime(std::vector<SentItem>& sent) : sent_(sent) {}

    double Timer() override;
    CalendarDate Date() override { return today; }
    double Milliseconds() override { return seconds * 1000.0; }
    void DoEvents(PumpSite site) override;
    void PauseBegins(double delay) override;
    void PauseEnds() override;
    void Advance(double milliseconds);
    // No handler runs: no pause is open, and the next pass of a smudger is its first.
    void HandlersHaveEnded();

    double seconds = 36000; // since midnight
    CalendarDate today{2024, 2, 29};
    int pumps = 0;
    std::deque<std::function<void()>> duringPause;        // one is taken in each pause
    std::multimap<int, std::function<void()>> duringPass; // keyed by the pass after which they run

private:
    std::vector<SentItem>& sent_;
    std::vector<bool> eventPending_; // one entry for each pause that is running
    int pass_ = 0;
    int looks_ = 0; // at the clock, since the innermost pause began
};

class ScriptedKeyboard : public Keyboard {
public:
    bool EscapeWentDown() override { return std::exchange(escapePressed, false); }
    bool escapePressed = false;
};

class ScriptedConsole : public ConsoleShell {
public:
    void AppActivate(const std::string& title) override;
    std::unique_ptr<ShellObject> CreateObject(const std::string& className) override;

    bool present = true;     // whether a window titled "Ruby Console" is there
    std::string refusedKeys; // a text that holds this is no text for keys: error 5, and nothing is typed
    std::vector<SentItem> sent;
};

struct OpenedDocument {
    std::string target, workingFolder;
    int showMode = 0;
};

class ScriptedViewer : public SystemViewer {
public:
    void Open(const std::string& target, const std::string& workingFolder, int showMode) override {
        opened.push_back({target, workingFolder, showMode});
        if (failure) throw RunTimeError(*failure);
    }
    std::vector<OpenedDocument> opened;
    std::optional<ErrorNumber> failure; // what opening ends in
};

class ScriptedScreen : public Screen {
public:
    ScreenSize Size() const override { return size; }
    ScreenSize MaximisedClientSize() const override { return size; }
    bool SetTopMost(bool wanted) override {
        topmost = wanted;
        return true;
    }
    ScreenSize size{1920, 1080};
    bool topmost = false;
};

class ScriptedProcess : public Process {
public:
    [[noreturn]] void End() override { throw ProgramEnded{}; }
};

// Everything but files and pictures, which the user of this class brings along.
class ScriptedDesktop {
public:
    ScriptedDesktop() : time(console.sent) {}
    Ports PortsOver(FileSystem& files, PictureLoader& loader, ImageEncoders& encoders);

    ScriptedClipboard clipboard;
    ScriptedDialogs dialogs;
    ScriptedConsole console;
    ScriptedTime time;
    ScriptedKeyboard keyboard;
    ScriptedViewer viewer;
    ScriptedScreen screen;
    ScriptedProcess process;
};

} // namespace mirelle::test
