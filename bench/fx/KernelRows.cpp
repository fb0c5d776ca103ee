// Each kernel of the Image FX panel.
#include "bench/fx/Effect.h"
#include "bench/Rows.h"
#include "fx/KernelTable.h"

#include <array>

namespace mirelle::bench {
namespace {

constexpr std::array kWithNeighbours{
    &KernelSet::FXGlow,         &KernelSet::FXBlur,    &KernelSet::FXBlurMore,
    &KernelSet::FXBlurMoreVert, &KernelSet::FXFlatten, &KernelSet::FXFlatten2,
    &KernelSet::FXEmboss,       &KernelSet::FXSilk,    &KernelSet::FXPixelated};
constexpr std::array kWithArithmetic{&KernelSet::FXVivid, &KernelSet::FXNegateMore, &KernelSet::FXNeonNegate};

double AimOf(Kernel kernel) {
    for (const Kernel each : kWithNeighbours) {
        if (kernel == each) return kNeighbours;
    }
    for (const Kernel each : kWithArithmetic) {
        if (kernel == each) return kArithmetic;
    }
    return kNearCopy;
}

} // namespace

Group KernelRows() {
    Group group{"Image FX: kernels", {}};
    const auto add = [&](std::string_view name, const KernelButton& button) {
        group.measures.push_back(MeasureOf({std::string(name), AimOf(button.kernel),
                                            [&button](FXForm form) { return RunOf(button, form); }}));
    };
    for (const KernelButton& button : kKernelButtons)
        add(button.toolTip, button);
    add("Blur Vertical", kBlurVertical);
    return group;
}

} // namespace mirelle::bench
