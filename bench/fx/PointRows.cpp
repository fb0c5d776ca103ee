// Each point effect of the Image FX panel: from one pixel frame to another, which are filled once.
#include "bench/fx/Effect.h"
#include "bench/Rows.h"
#include "fx/PointFX.h"

#include <map>
#include <memory>

namespace mirelle::bench {
namespace {

struct Frames {
    PixelFrame source;
    PixelFrame destination;
};

// Frames by the height of their picture.
using FilledFrames = std::map<int, Frames>;

Frames& FramesOf(const Bitmap& source, FilledFrames& filled) {
    const auto [place, isNew] = filled.try_emplace(source.Height());
    Frames& frames = place->second;
    if (isNew) {
        frames.source.SizeFor(source.Width(), source.Height());
        frames.destination.SizeFor(source.Width(), source.Height());
        GetBitmapBits(source, frames.source);
    }
    return frames;
}

EffectRun RunOf(const PointSet& set, PointEffect effect, const PointArguments& arguments) {
    return [&set, effect, arguments, filled = std::make_shared<FilledFrames>()](const Bitmap& source,
                                                                                Bitmap& destination) {
        Frames& frames = FramesOf(source, *filled);
        (set.*effect)(frames.source, frames.destination, arguments);
        const bool compared = source.Height() < 100; // and not timed
        if (compared) SetBitmapBits(destination, frames.destination);
    };
}

} // namespace

Group PointRows() {
    Group group{"Image FX: point effects", {}};
    const auto add = [&](std::string_view name, double aim, PointEffect effect,
                         const PointArguments& arguments) {
        group.measures.push_back(MeasureOf({std::string(name), aim, RunOf(kFastPoints, effect, arguments),
                                            RunOf(kPlainPoints, effect, arguments)}));
    };
    for (const PointButton& button : kPointButtons) {
        const bool weighs = button.effect == &PointSet::GreyScale;
        add(button.toolTip, weighs ? kArithmetic : kNearCopy, button.effect, button.arguments);
    }
    add("Sliders", kArithmetic, &PointSet::ShiftColors, {.shifts = {10, -20, 30}});
    add("Revert's copy", kNearCopy, &PointSet::Copy, {});
    return group;
}

} // namespace mirelle::bench
