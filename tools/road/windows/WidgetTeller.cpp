// widget_teller: tells what programs for Windows show. Questions come as lines on standard input:
//
//   program NAME      the object of the program that has, or had, a window of this title
//   children OBJECT   a line for each widget in it, parted by tabs: object, kind, place, name
//   text OBJECT       the text of a field
//   checked OBJECT    1 or 0
//   clipboard picture 1 where there is a picture on the clipboard, or 0
//
// Each line of an answer begins with "+"; an empty line ends it. The teller ends with its standard input.
// Widgets are told as they stood when their program was last asked for; texts and checks as they stand now.
#include "desktop/windows/System.h"
#include "desktop/windows/Wide.h"
#include "tools/road/windows/WindowText.h"

#include <iostream>
#include <map>
#include <string>

namespace mirelle::road {
namespace {

constexpr LPARAM kAutomationRoot = -25; // UiaRootObjectId
constexpr UINT kLongestAnswerMs = 10'000;
constexpr const char* kProgram = "program";

BOOL CALLBACK AddIfShown(HWND window, LPARAM list) {
    if (IsWindowVisible(window) != 0) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

// Those of one program, the uppermost first.
std::vector<HWND> ShownWindows(DWORD process) {
    std::vector<HWND> windows;
    EnumWindows(AddIfShown, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [process](HWND window) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        return owner != process;
    });
    return windows;
}

// The memory that answers come to.
class Block {
public:
    Block() {
        handle_ = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, DWORD{kBlockSize},
                                     BlockName(GetCurrentProcessId()).c_str());
        memory_ = static_cast<const char*>(MapViewOfFile(handle_, FILE_MAP_READ, 0, 0, kBlockSize));
    }

    std::vector<Told> Widgets(HWND window) const {
        DWORD_PTR length = 0;
        const LRESULT done = SendMessageTimeoutW(window, WM_GETOBJECT, GetCurrentProcessId(), kAutomationRoot,
                                                 SMTO_NORMAL, kLongestAnswerMs, &length);
        if (done == 0 || memory_ == nullptr || length > kBlockSize) return {};
        return ReadLines(std::string(memory_, length));
    }

private:
    HANDLE handle_ = nullptr;
    const char* memory_ = nullptr;
};

class Teller {
public:
    std::vector<std::string> Answer(const std::string& what, const std::string& about) {
        if (what == "program") return Program(about);
        if (what == "children") return Children(about);
        if (what == "clipboard") return {IsClipboardFormatAvailable(CF_DIB) != 0 ? "1" : "0"};
        const Told widget = Now(about);
        if (what == "text") return {widget.value};
        return {widget.checked ? "1" : "0"};
    }

private:
    std::vector<std::string> Program(const std::string& name) {
        children_.clear();
        // Windows change their titles as they please.
        if (const HWND window = FindWindowW(nullptr, windows::Wide(name).c_str()))
            GetWindowThreadProcessId(window, &process_);
        const std::vector<HWND> windows = ShownWindows(process_);
        if (windows.empty()) return {};
        for (const HWND window : windows)
            Note(window);
        return {kProgram};
    }

    // The number of the window and that of the widget.
    static std::string Object(HWND window, const Told& widget) {
        return std::to_string(reinterpret_cast<std::uintptr_t>(window)) + '.' + std::to_string(widget.number);
    }

    void Note(HWND window) {
        std::vector<std::string> around{kProgram}; // the objects that a widget lies in, outermost first
        for (const Told& widget : block_.Widgets(window)) {
            const std::string object = Object(window, widget);
            around.resize(static_cast<std::size_t>(widget.depth) + 1);
            std::string line = object + '\t' + std::to_string(widget.kind);
            for (const int number : {widget.left, widget.top, widget.width, widget.height})
                line += '\t' + std::to_string(number);
            children_[around.back()].push_back(line + '\t' + widget.name);
            around.push_back(object);
        }
    }

    std::vector<std::string> Children(const std::string& object) const {
        const auto found = children_.find(object);
        return found == children_.end() ? std::vector<std::string>() : found->second;
    }

    Told Now(const std::string& object) const {
        const auto window = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(std::stoull(object)));
        for (const Told& widget : block_.Widgets(window))
            if (Object(window, widget) == object) return widget;
        return {};
    }

    Block block_;
    DWORD process_ = 0; // of the program that was asked for
    std::map<std::string, std::vector<std::string>> children_;
};

} // namespace
} // namespace mirelle::road

int main() {
    mirelle::road::Teller teller;
    for (std::string line; std::getline(std::cin, line);) {
        if (line.ends_with('\r')) line.pop_back();
        const std::size_t blank = line.find(' ');
        if (blank == std::string::npos) return 2;
        for (const std::string& each : teller.Answer(line.substr(0, blank), line.substr(blank + 1)))
            std::cout << '+' << each << '\n';
        std::cout << std::endl;
    }
}
