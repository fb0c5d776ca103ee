// Fits a drawing to the pixels of its device, so that upright and level lines stay sharp at every scale.
//
// At scale 1.25 or 1.5 a line drawn at a round place of its grid falls between two pixels and turns into a
// blur. Here each upright or level line is moved by less than a pixel so that its edges lie on pixel borders,
// its width becomes a whole number of pixels (or of halves while it is thinner than one and three quarters),
// and what lies between two such lines is stretched along with them. Drawings stay symmetrical: lines at
// equal distances from the middle stay so.
#pragma once

#include "desktop/look/SvgDrawing.h"

namespace mirelle::look {

// `drawing` in device pixels: its view box becomes (0, 0, width * scale, height * scale).
SvgDrawing FittedToPixels(const SvgDrawing& drawing, double scale);

// The width in device pixels of a stroke that is `width` wide in the drawing; at least half a pixel.
double FittedStroke(double width, double scale);

} // namespace mirelle::look
