// Opens documents and addresses with the program that Windows has for them: ShellExecute.
#pragma once

#include "desktop/windows/System.h"
#include "forms/ports/Shell.h"

#include <shellapi.h>

namespace mirelle {

class WindowsViewer : public SystemViewer {
public:
    // Window that asks, operation, target, parameters, working folder, show mode.
    using Execute = decltype(&ShellExecuteW);

    explicit WindowsViewer(Execute execute = ShellExecuteW) : execute_(execute) {}

    void Open(const std::string& target, const std::string& workingFolder, int showMode) override;

private:
    Execute execute_;
};

} // namespace mirelle
