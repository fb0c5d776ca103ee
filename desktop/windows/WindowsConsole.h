// The console window and the shell object that types into it, on a Windows desktop.
#pragma once

#include "forms/ports/Shell.h"

namespace mirelle {

class WindowsConsole : public ConsoleShell {
public:
    void AppActivate(const std::string& title) override;
    std::unique_ptr<ShellObject> CreateObject(const std::string& className) override;
};

} // namespace mirelle
