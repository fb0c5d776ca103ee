#include "desktop/system/QtProcess.h"

#include <cstdio>
#include <cstdlib>

namespace mirelle {

void QtProcess::End() {
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS);
}

} // namespace mirelle
