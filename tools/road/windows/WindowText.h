// What a window shows as text, on its way between two programs: a line for each widget, outer ones ahead of
// those in them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace mirelle::road {

struct Told {
    int depth = 0;
    int number = 0; // stands for the widget as long as it is there
    int kind = 0;   // of a control, as UI Automation numbers them
    int left = 0;   // on the screen, in pixels
    int top = 0;
    int width = 0;
    int height = 0;
    bool checked = false;
    std::string value; // a field's text
    std::string name;
};

// Ends in a line feed. Value and name hold neither that nor a tab.
std::string LineOf(const Told& widget);
std::vector<Told> ReadLines(const std::string& text);

// The shared memory that an answer goes to, by the process that asks.
constexpr std::size_t kBlockSize = 1U << 20;
std::wstring BlockName(unsigned long process);

} // namespace mirelle::road
