#include "tools/road/windows/WindowText.h"

#include <sstream>

namespace mirelle::road {

std::string LineOf(const Told& widget) {
    std::string line;
    for (const int number : {widget.depth, widget.number, widget.kind, widget.left, widget.top, widget.width,
                             widget.height, static_cast<int>(widget.checked)})
        line += std::to_string(number) + '\t';
    return line + widget.value + '\t' + widget.name + '\n';
}

std::vector<Told> ReadLines(const std::string& text) {
    std::vector<Told> widgets;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream parts(line);
        Told widget;
        parts >> widget.depth >> widget.number >> widget.kind >> widget.left >> widget.top >> widget.width >>
            widget.height >> widget.checked;
        parts.get(); // the tab behind the numbers
        std::getline(parts, widget.value, '\t');
        std::getline(parts, widget.name);
        widgets.push_back(widget);
    }
    return widgets;
}

std::wstring BlockName(unsigned long process) {
    return L"MirelleWidgets-" + std::to_wstring(process);
}

} // namespace mirelle::road
