#include "desktop/windows/TopMost.h"

#include "desktop/windows/System.h"

namespace mirelle::windows {

bool SetTopMost(std::uintptr_t window, bool topmost) {
    return SetWindowPos(reinterpret_cast<HWND>(window), topmost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                        SWP_NOMOVE | SWP_NOSIZE) != 0;
}

} // namespace mirelle::windows
