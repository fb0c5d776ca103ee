// Stands for ImageMagick where the benchmarks are built without it.
#include "bench/peers/Peers.h"

namespace mirelle::bench {

Run MagickRun(const std::string&) {
    return {};
}

std::string VersionOfMagick() {
    return "ImageMagick is not on this machine";
}

} // namespace mirelle::bench
