// Push buttons, tool buttons, check boxes and radio buttons.
#pragma once

class QPainter;
class QRectF;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionToolButton;

namespace mirelle::look {

void PaintPushButtonGround(QPainter& painter, const QStyleOptionButton& option);

// Ground and, where there is no text, icon; a button with text leaves its label to the style.
void PaintToolButtonGround(QPainter& painter, const QStyleOptionToolButton& option);
void PaintToolButtonIcon(QPainter& painter, const QStyleOptionToolButton& option);

void PaintTick(QPainter& painter, const QStyleOption& option);  // the square of a check box
void PaintRadio(QPainter& painter, const QStyleOption& option); // the disc of a radio button

} // namespace mirelle::look
