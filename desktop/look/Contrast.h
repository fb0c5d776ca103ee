// How well one colour can be read on another: the contrast ratio of the Web Content Accessibility Guidelines
// 2.2 (definitions of "relative luminance" and "contrast ratio").
#pragma once

#include <QRgb>

namespace mirelle::look {

inline constexpr double kReadableText = 4.5;  // the least ratio for text
inline constexpr double kReadableShape = 3.0; // the least ratio for what is not text: icons, rings, ticks

// 0 for black to 1 for white. The fourth byte is not looked at.
double RelativeLuminance(QRgb colour);

// 1 (the same) to 21 (black on white); the order of the two does not matter.
double ContrastRatio(QRgb one, QRgb other);

// The one of the two text inks, light and dark, that reads better on `ground`.
QRgb InkOn(QRgb ground);

// The colour of a focus ring on `ground`: the accent, or an ink where the accent would be lost on it.
QRgb RingOn(QRgb ground);

} // namespace mirelle::look
