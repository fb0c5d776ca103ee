// The program as it stands somewhere to be walked through: how it is started, where its data lie, how it is
// asked what it shows.
#pragma once

#include "tools/road/Programs.h"
#include "tools/road/WidgetSource.h"

#include <functional>
#include <memory>
#include <string>

namespace mirelle::road {

struct Installation {
    Command start;
    std::string home; // the folder that holds Support, as this machine names it
    // How the program shows and sends a path of this machine.
    std::function<std::string(const std::string& path)> pathOf;
    std::function<std::unique_ptr<WidgetSource>()> widgetsOf;
};

// The program of this machine's own kind over a home of this walk's own.
Installation OwnProgram(const std::string& program, const std::string& home);

// The program for Windows that lies in `home`, under Wine. `wine` runs programs for Windows; `teller` is
// WidgetTeller.cpp, one of them.
Installation WindowsProgram(const std::string& wine, const std::string& teller, const std::string& home);

// What Wine shows a path of this machine as.
std::string WindowsPath(const std::string& path);

} // namespace mirelle::road
