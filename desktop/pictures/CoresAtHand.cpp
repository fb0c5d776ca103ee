#include "desktop/pictures/CoresAtHand.h"

#include <algorithm>
#include <thread>

#ifdef __linux__
#include <sched.h>
#endif

namespace mirelle {

int CoresAtHand() {
#ifdef __linux__
    cpu_set_t cores;
    if (sched_getaffinity(0, sizeof cores, &cores) == 0) return std::max(1, CPU_COUNT(&cores));
#endif
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

} // namespace mirelle
