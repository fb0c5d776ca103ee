#include "gradient/GradientBands.h"

#include "forms/Numbers.h"

#include <limits>

namespace mirelle {
namespace {

constexpr double kSteps = 256;

int Rounded(double value) {
    return ToLong(value);
}

Band BandAt(const BandSizes& sizes, double place, int alpha, int direction) {
    if (direction == kHorizontal) {
        const int at = Rounded(place);
        const int width = Rounded(sizes.destinationWidth / kSteps);
        return {{at, 0, width, Rounded(sizes.destinationHeight)},
                {at, 0, width, Rounded(sizes.sourceHeight)},
                alpha};
    }
    const int at = Rounded(place);
    return {{0, at, Rounded(sizes.destinationWidth), Rounded(sizes.destinationHeight / kSteps + 1)},
            {0, at, Rounded(sizes.sourceWidth), Rounded(sizes.sourceHeight / kSteps + 1)},
            alpha};
}

Band SolidRest(const BandSizes& sizes, double gradEnd, int direction) {
    const int at = Rounded(gradEnd);
    if (direction == kHorizontal) {
        const int height = Rounded(sizes.destinationHeight);
        return {{at, 0, Rounded(sizes.destinationWidth - gradEnd), height},
                {at, 0, Rounded(sizes.sourceWidth - gradEnd), height},
                255};
    }
    const int height = Rounded(sizes.destinationHeight - gradEnd);
    return {
        {0, at, Rounded(sizes.destinationWidth), height}, {0, at, Rounded(sizes.sourceWidth), height}, 255};
}

} // namespace

std::vector<Band> BandsOf(const BandSizes& sizes, double gradStart, double gradEnd, int direction) {
    std::vector<Band> bands;
    if (direction != kHorizontal && direction != kVertical) return bands;
    const double distance = gradEnd - gradStart;
    // Without a distance the step is infinite: one round, whose alpha of 0 changes nothing.
    const double step = distance != 0 ? kSteps / distance : std::numeric_limits<double>::infinity();
    if (step > 0) {
        for (double i = 1; i <= kSteps; i += step) {
            const double place = distance / kSteps * i + gradStart;
            bands.push_back(BandAt(sizes, place, Rounded(i - 1), direction));
        }
    }
    bands.push_back(SolidRest(sizes, gradEnd, direction));
    return bands;
}

} // namespace mirelle
