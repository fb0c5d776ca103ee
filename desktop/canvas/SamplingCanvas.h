// The Sampling Canvas: the form's surface, one canvas pixel to one device pixel at every scale factor, with
// the hairlines over it. The mouse on it becomes the form's mouse events, in the form's scale.
#pragma once

#include "desktop/canvas/Hairlines.h"
#include "forms/Picture.h"

#include <QWidget>

namespace mirelle {

class FrmPicX;

class SamplingCanvas : public QWidget {
    Q_OBJECT

public:
    SamplingCanvas(FrmPicX& form, QWidget* parent);

    // What the canvas says, in one line, while there is no picture on it.
    static QString HintOf(const FrmPicX& form);
    // The part that panels leave free: where the hint stands.
    void SetFreeArea(const QRect& area);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void FollowShapes();
    void FollowPicture();
    void FollowPointer();
    QRegion SeenRegion() const;
    void PaintHint(QPainter& painter) const;
    void Release(int button);

    FrmPicX& form_;
    std::array<Hairline, 3> hairlines_;
    Picture shown_; // held, so that a handler that paints takes pixels of its own and the change can be told
    bool hintShown_ = false;
    QRect freeArea_;
    bool pressed_ = false; // the left button went down here
    QPoint lastPixel_;
    int lastShift_ = 0;
};

} // namespace mirelle
