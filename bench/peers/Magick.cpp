#include "bench/peers/Peers.h"
#include "bench/Photograph.h"

#include <map>
#include <memory>

#include <wand/MagickWand.h>

namespace mirelle::bench {
namespace {

using Wand = std::unique_ptr<MagickWand, decltype(&DestroyMagickWand)>;

struct Effect {
    std::string name; // as ImageMagick calls it
    std::function<void(MagickWand*)> run;
};

const std::map<std::string, Effect>& Effects() {
    static const std::map<std::string, Effect> effects{
        {"Blur", {"ImageMagick: blur", [](MagickWand* wand) { MagickBlurImage(wand, 1, 0.5); }}},
        {"Silk",
         {"ImageMagick: posterize", [](MagickWand* wand) { MagickPosterizeImage(wand, 4, MagickFalse); }}},
        {"Flatten", {"ImageMagick: edge", [](MagickWand* wand) { MagickEdgeImage(wand, 1); }}},
        {"Flatten2", {"ImageMagick: emboss", [](MagickWand* wand) { MagickEmbossImage(wand, 1, 0.5); }}},
        {"Vivid",
         {"ImageMagick: solarize", [](MagickWand* wand) { MagickSolarizeImage(wand, QuantumRange / 3.0); }}},
        {"Pixelated", {"ImageMagick: oil paint", [](MagickWand* wand) { MagickOilPaintImage(wand, 1); }}},
        {"Emboss", {"ImageMagick: emboss", [](MagickWand* wand) { MagickEmbossImage(wand, 1, 0.5); }}},
    };
    return effects;
}

void Start() {
    static const bool started = [] {
        MagickWandGenesis();
        MagickSetResourceLimit(ThreadResource, 1);
        return true;
    }();
    static_cast<void>(started);
}

MagickWand* Source() {
    static const Wand source = [] {
        Wand wand(NewMagickWand(), &DestroyMagickWand);
        MagickConstituteImage(wand.get(), kWidth, kHeight, "BGRP", CharPixel, Photograph().Pixels().data());
        return wand;
    }();
    return source.get();
}

} // namespace

std::optional<Peer> MagickPeer(const std::string& effect) {
    const auto found = Effects().find(effect);
    if (found == Effects().end()) return std::nullopt;
    Start();
    return Peer{found->second.name, 1, Timed([&run = found->second.run] {
                    const Wand wand(CloneMagickWand(Source()), &DestroyMagickWand);
                    run(wand.get());
                })};
}

std::string VersionOfMagick() {
    std::size_t number = 0;
    return std::string(MagickGetVersion(&number)) + ", one thread";
}

} // namespace mirelle::bench
