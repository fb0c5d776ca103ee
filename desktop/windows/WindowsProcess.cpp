#include "desktop/windows/WindowsProcess.h"

#include "desktop/windows/System.h"

#include <ole2.h>

#include <cstdio>
#include <cstdlib>

namespace mirelle {

void WindowsProcess::End() {
    // Windows has only been told what could be had; now it takes it. Where another program has copied
    // something since then, nothing happens.
    OleFlushClipboard();
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS);
}

} // namespace mirelle
