#include "desktop/look/Contrast.h"

#include <algorithm>
#include <cmath>

#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

double Linear(int channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

} // namespace

double RelativeLuminance(QRgb colour) {
    return 0.2126 * Linear(qRed(colour)) + 0.7152 * Linear(qGreen(colour)) + 0.0722 * Linear(qBlue(colour));
}

double ContrastRatio(QRgb one, QRgb other) {
    const double a = RelativeLuminance(one);
    const double b = RelativeLuminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QRgb InkOn(QRgb ground) {
    return ContrastRatio(kText, ground) >= ContrastRatio(kTextOnAccent, ground) ? kText : kTextOnAccent;
}

QRgb RingOn(QRgb ground) {
    for (const QRgb ring : {kAccent, kAccentText, kTextStrong}) {
        if (ContrastRatio(ring, ground) >= kReadableShape) return ring;
    }
    return kTextOnAccent;
}

} // namespace mirelle::look
