// Opens documents and addresses with the program that Windows has for them: ShellExecute.
#pragma once

#include "forms/ports/Shell.h"

namespace mirelle {

class WindowsViewer : public SystemViewer {
public:
    void Open(const std::string& target, const std::string& workingFolder, int showMode) override;
};

} // namespace mirelle
