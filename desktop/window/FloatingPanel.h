// The small floating panel that brings hidden panels back. It is dragged by its border; where it comes to lie
// the form's handlers decide.
#pragma once

#include "desktop/window/Panel.h"

namespace mirelle {

class FloatingPanel : public Panel {
    Q_OBJECT

public:
    FloatingPanel(Binder& binder, QWidget* canvas, QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void Follow();
    void MoveTo(QPoint pixel);
    MouseArgs ArgsOf(const QMouseEvent& event) const;
    QPoint FormPixel(const QMouseEvent& event) const;

    Binder& binder_;
    Frame& frame_;
    QWidget& canvas_;
    bool dragging_ = false;
    bool moved_ = false;
};

} // namespace mirelle
