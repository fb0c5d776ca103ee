// What one types or chooses in: text boxes, combo boxes, spin boxes, the rows and frames of lists.
#pragma once

class QPainter;
class QRect;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionSpinBox;
class QStyleOptionViewItem;

namespace mirelle::look {

void PaintField(QPainter& painter, const QStyleOption& option);

void PaintComboBox(QPainter& painter, const QStyleOptionComboBox& option);
QRect ComboArrow(const QStyleOptionComboBox& option);
QRect ComboText(const QStyleOptionComboBox& option);

void PaintSpinBox(QPainter& painter, const QStyleOptionSpinBox& option);
QRect SpinArrowUp(const QStyleOptionSpinBox& option);
QRect SpinArrowDown(const QStyleOptionSpinBox& option);
QRect SpinText(const QStyleOptionSpinBox& option);

void PaintRow(QPainter& painter, const QStyleOptionViewItem& option);

// An arrow head in the middle of `rect`; `name` is a drawing of the icons.
void PaintArrow(QPainter& painter, const QRect& rect, const char16_t* name, const QStyleOption& option);

} // namespace mirelle::look
