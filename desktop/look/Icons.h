// The icons of the window: drawings of one hand (20-pixel grid, 1.5-pixel strokes, round ends) out of the
// program's resources, in the ink that the state of their button asks for, sharp at every device scale.
#pragma once

#include <QIcon>
#include <QStringView>

#include "desktop/look/SvgDrawing.h"

namespace mirelle::look {

// The drawing icons/`name`.svg. A name without a drawing gives an empty drawing, which paints nothing.
const SvgDrawing& IconDrawing(QStringView name);

// An icon of that drawing: text ink at rest, stronger under the pointer, faint when disabled, the accent as
// ink while its button is switched on.
QIcon MakeIcon(QStringView name);
// The same with `ink` at rest, under the pointer and while switched on.
QIcon MakeIcon(QStringView name, QRgb ink);

// Paints a drawing over `target` (the painter's units), moved and fitted to the device's pixels.
void PaintFitted(QPainter& painter, const SvgDrawing& drawing, const QRectF& target, const QColor& ink);

// The ink of MakeIcon's icons.
QColor IconInk(QIcon::Mode mode, QIcon::State state);

// The program's own icon: the crop hairline over a swatch of material.
QIcon ApplicationIcon();

} // namespace mirelle::look
