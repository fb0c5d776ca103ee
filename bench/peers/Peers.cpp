#include "bench/peers/Peers.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace mirelle::bench {
namespace {

// What is nearest to an effect, by the library's own name for it.
struct Nearest {
    std::string_view effect;
    std::string_view operation;
};

constexpr std::array kInVips{
    Nearest{"Blur", "conv"},
    Nearest{"Blur More", "conv"},
    Nearest{"Blur Vertical", "conv"},
    Nearest{"No Red", "boolean_const"},
    Nearest{"No Green", "boolean_const"},
    Nearest{"No Blue", "boolean_const"},
    Nearest{"Increase Red", "maplut"},
    Nearest{"Increase Green", "maplut"},
    Nearest{"Increase Blue", "maplut"},
    Nearest{"Increase RGB", "maplut"},
    Nearest{"Decrease Red", "maplut"},
    Nearest{"Decrease Green", "maplut"},
    Nearest{"Decrease Blue", "maplut"},
    Nearest{"Decrease RGB", "maplut"},
    Nearest{"Glow", "maplut"},
    Nearest{"Bright", "maplut"},
    Nearest{"Vivid", "maplut"},
    Nearest{"Flatten", "conv"},
    Nearest{"Flatten2", "conv"},
    Nearest{"Neon Negate", "maplut"},
    Nearest{"Negate", "invert"},
    Nearest{"Negate More", "maplut"},
    Nearest{"Incoherence", "bandjoin"},
    Nearest{"Pixelated", "shrink and zoom"},
    Nearest{"Darken", "maplut"},
    Nearest{"Lighten", "maplut"},
    Nearest{"Emboss", "conv"},
    Nearest{"Invert", "invert"},
    Nearest{"Flip Vertical", "flip"},
    Nearest{"Flip Horizontal", "flip"},
    Nearest{"Grey Scale", "recomb"},
    Nearest{"RGB>BGR", "bandjoin"},
    Nearest{"RGB>BRG", "bandjoin"},
    Nearest{"RGB>GBR", "bandjoin"},
    Nearest{"RGB>GRB", "bandjoin"},
    Nearest{"RGB>RBG", "bandjoin"},
    Nearest{"Sliders", "maplut"},
    Nearest{"Contrast 30", "maplut"},
    Nearest{"Contrast 50", "maplut"},
    Nearest{"Contrast -75", "maplut"},
    Nearest{"Contrast 12.5", "maplut"},
    Nearest{"Contrast 99.6", "maplut"},
    Nearest{"Contrast 640", "maplut"},
};

constexpr std::array kInMagick{
    Nearest{"Blur", "blur"},       Nearest{"Silk", "posterize"}, Nearest{"Flatten", "edge"},
    Nearest{"Flatten2", "emboss"}, Nearest{"Vivid", "solarize"}, Nearest{"Pixelated", "oil paint"},
    Nearest{"Emboss", "emboss"},
};

template <class Rows>
std::optional<Peer> PeerOf(const Rows& rows, const std::string& library, const std::string& effect,
                           Run (*runOf)(const std::string&)) {
    const auto found = std::ranges::find(rows, effect, &Nearest::effect);
    if (found == rows.end()) return std::nullopt;
    return Peer{library + ": " + std::string(found->operation), 1, runOf(effect)};
}

} // namespace

std::optional<Peer> VipsPeer(const std::string& effect) {
    return PeerOf(kInVips, "libvips", effect, VipsRun);
}

std::optional<Peer> MagickPeer(const std::string& effect) {
    return PeerOf(kInMagick, "ImageMagick", effect, MagickRun);
}

} // namespace mirelle::bench
