#include "bench/OneCore.h"

#include <filesystem>
#include <string>

namespace mirelle::bench {
namespace {

// A thread that has ended meanwhile is none to keep.
void KeepAllThreadsOn(const cpu_set_t& cores) {
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task"))
        sched_setaffinity(std::stoi(thread.path().filename().string()), sizeof cores, &cores);
}

} // namespace

OneCore::OneCore() {
    sched_getaffinity(0, sizeof before_, &before_);
    cpu_set_t here;
    CPU_ZERO(&here);
    CPU_SET(sched_getcpu(), &here);
    KeepAllThreadsOn(here);
}

OneCore::~OneCore() {
    KeepAllThreadsOn(before_);
}

} // namespace mirelle::bench
