// The contrast effect at several percents.
#include "bench/fx/Effect.h"
#include "bench/Rows.h"
#include "fx/Contrast.h"

namespace mirelle::bench {
namespace {

EffectRun RunOf(const std::string& percent, FXForm form) {
    return [=](const Bitmap& source, Bitmap& destination) {
        Contrast(Variant(percent), form).Apply(source.Pixels(), destination.Pixels());
    };
}

} // namespace

Group ContrastRows() {
    Group group{"Image FX: contrast", {}};
    for (const char* percent : {"30", "50", "-75", "12.5", "99.6", "640"}) {
        group.measures.push_back(MeasureOf({std::string("Contrast ") + percent, kArithmetic,
                                            RunOf(percent, FXForm::Fast), RunOf(percent, FXForm::Plain)}));
    }
    return group;
}

} // namespace mirelle::bench
