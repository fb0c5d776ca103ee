#include "desktop/windows/WindowsProcess.h"

#include "desktop/windows/System.h"
#include "desktop/windows/WindowsClipboard.h"

#include <ole2.h>

#include <cstdio>
#include <cstdlib>

namespace mirelle {

void WindowsProcess::End() {
    clipboard_.Settle();
    // A text that a field copied Windows has only been told of; now it takes it. Where something has been
    // copied since then, nothing happens.
    OleFlushClipboard();
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS);
}

} // namespace mirelle
