// Stands for libvips where the benchmarks are built without it.
#include "bench/peers/Peers.h"

namespace mirelle::bench {

Run VipsRun(const std::string&) {
    return {};
}

std::string VersionOfVips() {
    return "libvips is not on this machine";
}

} // namespace mirelle::bench
