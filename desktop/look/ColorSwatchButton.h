// A button that shows a colour: a swatch by itself, or a bar of it beneath the drawing of an icon button.
#pragma once

#include <QColor>

#include "desktop/look/IconButton.h"

namespace mirelle::look {

class ColorSwatchButton : public IconButton {
    Q_OBJECT
public:
    explicit ColorSwatchButton(QStringView icon = {}, QWidget* parent = nullptr);

    QColor Colour() const { return colour_; }
    // The colour is also told to assistive programs, as red, green and blue.
    void SetColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour_;
};

} // namespace mirelle::look
