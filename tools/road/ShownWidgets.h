// What a program shows, as a screen reader sees it: every widget with its role, its name and its place.
#pragma once

#include "tools/road/WidgetSource.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace mirelle::road {

class ShownWidgets {
public:
    // Of the program that names itself so.
    ShownWidgets(std::string program, std::unique_ptr<WidgetSource> source);

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
    // Waits until the program can paste what has been put on the clipboard.
    void AwaitCopiedPicture() const;

private:
    std::string program_;
    std::unique_ptr<WidgetSource> source_;
};

} // namespace mirelle::road
