// The contrast effect at several percents.
#include "bench/fx/Effect.h"
#include "bench/Rows.h"
#include "fx/Contrast.h"

namespace mirelle::bench {

Group ContrastRows() {
    Group group{"Image FX: contrast", {}};
    for (const std::string percent : {"30", "50", "-75", "12.5", "99.6", "640"}) {
        group.measures.push_back(
            MeasureOf({"Contrast " + percent, kArithmetic, [=](FXForm form) {
                           return RunOnPictures([=](const Bitmap& from, Bitmap& to) {
                               Contrast(Variant(percent), form).Apply(from.Pixels(), to.Pixels());
                           });
                       }}));
    }
    return group;
}

} // namespace mirelle::bench
