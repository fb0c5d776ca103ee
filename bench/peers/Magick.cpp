#include "bench/peers/Peers.h"
#include "bench/Photograph.h"

#include <map>
#include <memory>

#include <wand/MagickWand.h>

namespace mirelle::bench {
namespace {

using Wand = std::unique_ptr<MagickWand, decltype(&DestroyMagickWand)>;

using Effect = void (*)(MagickWand* wand);

const std::map<std::string, Effect>& Effects() {
    static const std::map<std::string, Effect> effects{
        {"Blur", [](MagickWand* wand) { MagickBlurImage(wand, 1, 0.5); }},
        {"Silk", [](MagickWand* wand) { MagickPosterizeImage(wand, 4, MagickFalse); }},
        {"Flatten", [](MagickWand* wand) { MagickEdgeImage(wand, 1); }},
        {"Flatten2", [](MagickWand* wand) { MagickEmbossImage(wand, 1, 0.5); }},
        {"Vivid", [](MagickWand* wand) { MagickSolarizeImage(wand, QuantumRange / 3.0); }},
        {"Pixelated", [](MagickWand* wand) { MagickOilPaintImage(wand, 1); }},
        {"Emboss", [](MagickWand* wand) { MagickEmbossImage(wand, 1, 0.5); }},
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

Run MagickRun(const std::string& effect) {
    const Effect run = Effects().at(effect);
    Start();
    return Timed([run] {
        const Wand wand(CloneMagickWand(Source()), &DestroyMagickWand);
        run(wand.get());
    });
}

std::string VersionOfMagick() {
    std::size_t number = 0;
    return std::string(MagickGetVersion(&number)) + ", one thread";
}

} // namespace mirelle::bench
