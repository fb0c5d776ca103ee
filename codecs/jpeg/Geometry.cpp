#include "codecs/jpeg/Geometry.h"

#include "codecs/jpeg/Errors.h"
#include "forms/Numbers.h"

#include <algorithm>

namespace mirelle::jpeg {
namespace {

void RequireFactor(std::int32_t factor) {
    if (factor < 1 || factor > 4) RaiseCodecFailure(kInvalidSamplingValue);
}

// ceil(factor * length / largest)
std::int32_t Share(std::int32_t factor, std::int32_t length, std::int32_t largest) {
    const Long product = Long(factor) * Long(length);
    return static_cast<std::int32_t>((std::int64_t{product.Value()} + largest - 1) / largest);
}

} // namespace

std::int32_t RoundedUpTo8(std::int32_t length) {
    const Long raised = Long(length) + Long(7);
    return raised.Value() & ~7;
}

PlaneSize PlaneSizeOf(const Component& component, const Frame& frame, std::int32_t w8, std::int32_t h8) {
    const std::int32_t xi = Share(component.Hi, w8, frame.Hmax);
    const std::int32_t yi = Share(component.Vi, h8, frame.Vmax);
    return {xi, yi, RoundedUpTo8(xi), RoundedUpTo8(yi)};
}

void SetSamplingFrequencies(Frame& frame, std::int32_t H1, std::int32_t V1, std::int32_t H2, std::int32_t V2,
                            std::int32_t H3, std::int32_t V3) {
    const auto component = [](std::int32_t identifier, std::int32_t h, std::int32_t v, std::int32_t table) {
        Component made;
        made.Ci = identifier;
        made.Hi = h;
        made.Vi = v;
        made.Tqi = table;
        return made;
    };
    RequireFactor(H1);
    RequireFactor(V1);
    std::vector<Component> components;
    if (H2 == 0 && V2 == 0 && H3 == 0 && V3 == 0) {
        components.push_back(component(1, 1, 1, 0));
    } else {
        for (const std::int32_t factor : {H2, V2, H3, V3})
            RequireFactor(factor);
        components.push_back(component(1, H1, V1, 0));
        components.push_back(component(2, H2, V2, 1));
        components.push_back(component(3, H3, V3, 1));
    }
    frame.Components = std::move(components);
    frame.Hmax = frame.Vmax = 1;
    for (const Component& each : frame.Components) {
        frame.Hmax = std::max(frame.Hmax, each.Hi);
        frame.Vmax = std::max(frame.Vmax, each.Vi);
    }
}

} // namespace mirelle::jpeg
