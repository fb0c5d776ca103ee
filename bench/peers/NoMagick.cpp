// Stands for ImageMagick where the benchmarks are built without it.
#include "bench/peers/Peers.h"

namespace mirelle::bench {

std::optional<Peer> MagickPeer(const std::string&) {
    return std::nullopt;
}

std::string VersionOfMagick() {
    return "ImageMagick is not on this machine";
}

} // namespace mirelle::bench
