// Each point effect of the Image FX panel, from one pixel frame to another.
#include "bench/fx/Effect.h"
#include "bench/Rows.h"

namespace mirelle::bench {

Group PointRows() {
    Group group{"Image FX: point effects", {}};
    const auto add = [&](std::string_view name, double aim, PointEffect effect,
                         const PointArguments& arguments) {
        group.measures.push_back(
            MeasureOf({std::string(name), aim, [=](FXForm form) { return RunOf(effect, arguments, form); }}));
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
