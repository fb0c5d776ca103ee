// Where one learns what a program shows: the accessibility service of the system that the program runs on.
#pragma once

#include "tools/road/Desk.h"

#include <string>
#include <vector>

namespace mirelle::road {

// A widget as a screen reader sees it.
struct Widget {
    std::string object; // what the service knows it by
    std::string role;   // "push button", "list item" and so on
    std::string name;
    Place place;
};

class WidgetSource {
public:
    virtual ~WidgetSource() = default;

    // The program that shows itself by this name; the empty text where none does.
    virtual std::string Program(const std::string& name) = 0;
    // The widgets in this one that are on the screen, in order; none where the object has gone.
    virtual std::vector<Widget> Children(const std::string& object) = 0;
    // The whole text of a text field.
    virtual std::string Text(const std::string& object) = 0;
    virtual bool IsChecked(const std::string& object) = 0;
    // Whether programs of that system see the picture that another one has put on the clipboard.
    virtual bool SeesCopiedPicture() = 0;
};

} // namespace mirelle::road
