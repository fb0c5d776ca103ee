// A picture button: 28 pixels square, one drawing, its tool tip for a name. It takes the focus, and Space
// presses it.
#pragma once

#include <QToolButton>

namespace mirelle::look {

class IconButton : public QToolButton {
    Q_OBJECT
public:
    // `icon` names a drawing; empty leaves the button without one.
    explicit IconButton(QStringView icon = {}, QWidget* parent = nullptr);

    void SetDrawing(QStringView icon);

protected:
    bool event(QEvent* event) override;
};

} // namespace mirelle::look
