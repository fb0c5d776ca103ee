#include "bench/fx/Effect.h"

#include "bench/peers/Peers.h"
#include "bench/Photograph.h"

#include <cstring>
#include <memory>

namespace mirelle::bench {
namespace {

constexpr int kStripHeight = 48;

// On a strip alone: the plain form takes its time.
std::string FaultOf(const Effect& effect) {
    const Bitmap strip = MakePhotograph(kWidth, kStripHeight);
    Bitmap fast(kWidth, kStripHeight);
    Bitmap plain(kWidth, kStripHeight);
    effect.fast(strip, fast);
    effect.plain(strip, plain);
    return fast == plain ? "" : "the result differs from the plain form's";
}

Contest Prepare(const Effect& effect) {
    const Bitmap& source = Photograph();
    const auto destination = std::make_shared<Bitmap>(kWidth, kHeight);
    effect.fast(source, *destination); // what is made once is made here
    Contest contest{.ours = Timed([=, &source] { effect.fast(source, *destination); }),
                    .peers = {{"a copy of the same bytes", effect.aim, Timed([=, &source] {
                                   std::memcpy(destination->Pixels().data(), source.Pixels().data(),
                                               kPictureBytes);
                                   Keep(destination->Pixels().data());
                               })}},
                    .fault = [effect] { return FaultOf(effect); }};
    for (const std::optional<Peer>& peer : {VipsPeer(effect.name), MagickPeer(effect.name)}) {
        if (peer) contest.peers.push_back(*peer);
    }
    return contest;
}

} // namespace

Measure MeasureOf(const Effect& effect) {
    return {effect.name, [effect] { return Prepare(effect); }};
}

} // namespace mirelle::bench
