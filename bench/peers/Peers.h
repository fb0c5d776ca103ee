// Libraries that people would otherwise use, each behind a few functions: they work on the bench's
// photograph, in memory, as fast as they are meant to be used. The benchmarks build without libvips and
// ImageMagick too; their peers have no run then.
#pragma once

#include "bench/Measure.h"

#include <optional>
#include <string>
#include <vector>

namespace mirelle::bench {

// Nearest to an effect, which is named by its tool tip; nullopt where the library has nothing near it.
// libvips: three bands of 8 bits in one thread, its vector code on, nothing cached.
std::optional<Peer> VipsPeer(const std::string& effect);
// ImageMagick, for what libvips lacks or does otherwise; one thread.
std::optional<Peer> MagickPeer(const std::string& effect);

// What the two above run; empty where the library is not on this machine.
Run VipsRun(const std::string& effect);
Run MagickRun(const std::string& effect);

// The libraries' names and versions, and how they are set.
std::string VersionOfLibJpeg();
std::string VersionOfVips();
std::string VersionOfMagick();
inline std::vector<std::string> PeerVersions() {
    return {VersionOfLibJpeg(), VersionOfVips(), VersionOfMagick()};
}

} // namespace mirelle::bench
