// Stands for libvips where the benchmarks are built without it.
#include "bench/peers/Peers.h"

namespace mirelle::bench {

std::optional<Peer> VipsPeer(const std::string&) {
    return Peer{"libvips", 1, {}};
}

std::string VersionOfVips() {
    return "libvips is not on this machine";
}

} // namespace mirelle::bench
