#include "desktop/windows/WindowsViewer.h"

#include "desktop/windows/Wide.h"

namespace mirelle {

void WindowsViewer::Open(const std::string& target, const std::string& workingFolder, int showMode) {
    // The window that asks is the one that the user works with; no operation means the document's usual one.
    execute_(GetActiveWindow(), nullptr, windows::Wide(target).c_str(), nullptr,
             windows::Wide(workingFolder).c_str(), showMode);
}

} // namespace mirelle
