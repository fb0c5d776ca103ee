// The picture of the splash: a brick wall with the crop's hairline on it, as on the program's icon.
#pragma once

#include <QRect>

class QPainter;

namespace mirelle {

// Fills `wall` with bricks, dark but for the area of `crop`, which is framed.
void PaintBrickWall(QPainter& painter, const QRect& wall, const QRect& crop);

} // namespace mirelle
