// Opens documents and addresses with the program that the system has for them.
#pragma once

#include "forms/ports/Shell.h"

namespace mirelle {

class QtViewer : public SystemViewer {
public:
    // The working folder and the show mode mean something on Windows only.
    void Open(const std::string& target, const std::string& workingFolder, int showMode) override;
};

} // namespace mirelle
