// What a program shows, as a screen reader sees it: every widget with its role, its name and its place. The
// program is asked over the accessibility bus and knows nothing of who asks.
#pragma once

#include "tools/road/Desk.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace mirelle::road {

// An object of the accessibility bus.
struct Widget {
    std::string object;
    std::string role; // "push button", "list item" and so on
    std::string name;
    Place place;
};

class ShownWidgets {
public:
    // Of the program that names itself so. Throws where there is no accessibility bus. Programs that are
    // started from now on take part in it.
    explicit ShownWidgets(std::string program);
    ~ShownWidgets();
    ShownWidgets(const ShownWidgets&) = delete;
    ShownWidgets& operator=(const ShownWidgets&) = delete;

    // The first widget on the screen, in the order of the window, for which `fits` holds.
    std::optional<Widget> Find(const std::function<bool(const Widget&)>& fits) const;
    std::optional<Widget> Find(const std::string& role, const std::string& name) const;
    // Waits for it.
    Widget Await(const std::string& role, const std::string& name) const;

    // The widgets in this one, in order.
    std::vector<Widget> In(const Widget& widget) const;
    // The whole text of a text field.
    std::string TextOf(const Widget& field) const;
    bool IsChecked(const Widget& box) const;

private:
    class Bus;
    std::unique_ptr<Bus> bus_;
    std::string program_;
};

} // namespace mirelle::road
