#include "tools/road/Installation.h"

#include "tools/road/AccessibilityBus.h"
#include "tools/road/WindowsWidgets.h"

#include <algorithm>

namespace mirelle::road {

Installation OwnProgram(const std::string& program, const std::string& home) {
    return {{program, "--home", home},
            home,
            [](const std::string& path) { return path; },
            [] { return std::make_unique<AccessibilityBus>(); }};
}

Installation WindowsProgram(const std::string& wine, const std::string& teller, const std::string& home) {
    return {{wine, home + "/mirelle.exe"}, home, WindowsPath, [=] {
                return std::make_unique<WindowsWidgets>(Command{wine, teller});
            }};
}

std::string WindowsPath(const std::string& path) {
    std::string told = "Z:" + path;
    std::ranges::replace(told, '/', '\\');
    return told;
}

} // namespace mirelle::road
