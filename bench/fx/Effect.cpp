#include "bench/fx/Effect.h"

#include "bench/peers/Peers.h"
#include "bench/Photograph.h"

#include <cstring>
#include <optional>
#include <utility>

namespace mirelle::bench {
namespace {

Contest Prepare(const Effect& effect) {
    const EffectRun fast = effect.setUp(FXForm::Fast);
    fast.work(); // what is made once is made here
    Contest contest{.ours = Timed(fast.work), .peers = {OneCopy(effect.aim)}, .fault = [=]() -> std::string {
                        const EffectRun plain = effect.setUp(FXForm::Plain);
                        plain.work();
                        return fast.result() == plain.result() ? "" : "not the plain form's bytes";
                    }};
    for (std::optional<Peer>& peer : std::array{VipsPeer(effect.name), MagickPeer(effect.name)}) {
        if (peer) contest.peers.push_back(std::move(*peer));
    }
    return contest;
}

struct Frames {
    PixelFrame source;
    PixelFrame destination;
};

} // namespace

Measure MeasureOf(const Effect& effect) {
    return {effect.name, [effect] { return Prepare(effect); }};
}

EffectRun RunOnPictures(EffectOnPictures effect) {
    const auto destination = std::make_shared<Bitmap>(kWidth, kHeight);
    return {.work = [=] { effect(Photograph(), *destination); }, .result = [=] { return *destination; }};
}

EffectRun RunOf(const KernelButton& button, FXForm form) {
    const KernelSet& kernels = form == FXForm::Fast ? kFastKernels : kPlainKernels;
    return RunOnPictures([&kernels, &button](const Bitmap& source, Bitmap& destination) {
        (kernels.*button.kernel)({source.Pixels(), destination.Pixels(), source.Width(), source.Height()},
                                 button.arguments);
    });
}

EffectRun RunOf(PointEffect effect, const PointArguments& arguments, FXForm form) {
    const PointSet& points = form == FXForm::Fast ? kFastPoints : kPlainPoints;
    const auto frames = std::make_shared<Frames>();
    frames->source.SizeFor(kWidth, kHeight);
    frames->destination.SizeFor(kWidth, kHeight);
    GetBitmapBits(Photograph(), frames->source);
    return {.work = [=, &points] { (points.*effect)(frames->source, frames->destination, arguments); },
            .result =
                [=] {
                    Bitmap bitmap(kWidth, kHeight);
                    SetBitmapBits(bitmap, frames->destination);
                    return bitmap;
                }};
}

Peer OneCopy(double aim) {
    const auto copy = std::make_shared<Bitmap>(kWidth, kHeight);
    return {"a copy of the same bytes", aim, Timed([copy] {
                std::memcpy(copy->Pixels().data(), Photograph().Pixels().data(), kPictureBytes);
                Keep(copy->Pixels().data());
            })};
}

} // namespace mirelle::bench
