// The Material Image, full size on its background: one of its pixels to one device pixel, moved by the place
// that the scroll bars give it. The mouse on it becomes the mouse events of its box; beside it, of the
// background.
#pragma once

#include "forms/Picture.h"

#include <QWidget>

class QMouseEvent;

namespace mirelle {

class FrmPicX;

class MaterialView : public QWidget {
    Q_OBJECT

public:
    MaterialView(FrmPicX& form, QWidget* parent);

    void SetUsualHeight(int height) { usualHeight_ = height; }
    QSize sizeHint() const override { return {usualHeight_, usualHeight_}; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Follow();
    // The material's pixel under the mouse; pixels beside it lie outside its size.
    QPoint MaterialPixel(const QMouseEvent& event) const;
    bool IsOnMaterial(QPoint pixel) const;

    FrmPicX& form_;
    Picture shown_;
    QPoint place_; // of the material's first pixel, in device pixels
    int usualHeight_ = 0;
    bool visible_ = true;
    bool blank_ = false; // nothing is there but the ground that all boxes start with
    bool pressed_ = false;
};

} // namespace mirelle
