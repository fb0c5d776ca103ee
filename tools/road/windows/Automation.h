// UI Automation as a client sees it: what the windows of other programs tell about themselves. Of its
// functions only those are here that are asked for; they are had from the library by their names, as not
// every compiler's headers declare them.
#pragma once

#include "desktop/windows/System.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace mirelle::road {

// An element: a window or something in one. Copies are the same element.
class Element {
public:
    // Of a window; nothing where it tells nothing.
    static std::optional<Element> OfWindow(HWND window);

    std::vector<Element> Children() const;
    std::string Name() const;
    // UIA_ButtonControlTypeId and so on; 0 where it is not told.
    int Kind() const;
    // On the screen, in pixels; empty for what is not shown.
    RECT Place() const;
    // The text of a field.
    std::string Value() const;
    bool IsChecked() const;

private:
    explicit Element(void* node);

    std::shared_ptr<void> node_;
};

} // namespace mirelle::road
