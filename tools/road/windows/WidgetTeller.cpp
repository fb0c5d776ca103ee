// widget_teller: tells what programs for Windows show. Questions come as lines on standard input:
//
//   program NAME      the object of the program that has a window of this title
//   children OBJECT   a line for each widget in it: object, kind, left, top, width, height, name, parted by
//   tabs text OBJECT       the text of a field checked OBJECT    1 or 0
//
// Each line of an answer begins with "+"; an empty line ends it. It ends with its standard input.
#include "desktop/windows/Wide.h"
#include "tools/road/windows/Automation.h"

#include <algorithm>
#include <iostream>
#include <map>
#include <string>

namespace mirelle::road {
namespace {

using windows::Wide;

// So many elements are remembered. Who asks goes through a window from the top again and again.
constexpr std::size_t kRemembered = 4000;
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

// What can't be told in a line.
std::string Plain(std::string text) {
    std::ranges::replace_if(
        text, [](char each) { return each >= 0 && each < ' '; }, ' ');
    return text;
}

class Teller {
public:
    std::vector<std::string> Answer(const std::string& what, const std::string& about) {
        if (what == "program") return Program(about);
        if (what == "children") return Children(about);
        const auto element = elements_.find(about);
        if (element == elements_.end()) return {};
        if (what == "text") return {Plain(element->second.Value())};
        return {element->second.IsChecked() ? "1" : "0"};
    }

private:
    std::vector<std::string> Program(const std::string& name) {
        const HWND window = FindWindowW(nullptr, Wide(name).c_str());
        if (window == nullptr) return {};
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        return {kProgram + std::to_string(process)};
    }

    std::vector<std::string> Children(const std::string& object) {
        std::vector<Element> children;
        if (object.starts_with(kProgram)) {
            for (const HWND window : ShownWindows(std::stoul(object.substr(std::string(kProgram).size()))))
                if (std::optional<Element> element = Element::OfWindow(window)) children.push_back(*element);
        } else if (const auto element = elements_.find(object); element != elements_.end()) {
            children = element->second.Children();
        }
        std::vector<std::string> lines;
        for (const Element& child : children)
            lines.push_back(Line(child));
        return lines;
    }

    std::string Line(const Element& element) {
        const std::string object = std::to_string(++last_);
        elements_.emplace(object, element);
        if (last_ > kRemembered) elements_.erase(std::to_string(last_ - kRemembered));
        const RECT place = element.Place();
        std::string line = object + '\t' + std::to_string(element.Kind());
        for (const LONG number : {place.left, place.top, place.right - place.left, place.bottom - place.top})
            line += '\t' + std::to_string(number);
        return line + '\t' + Plain(element.Name());
    }

    std::map<std::string, Element> elements_;
    std::size_t last_ = 0;
};

} // namespace
} // namespace mirelle::road

int main() {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
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
