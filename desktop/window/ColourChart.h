// The colour chart, scaled to its room. What handlers are told of the mouse are the chart's own pixels: the
// colour that one points at is the colour that is sampled.
#pragma once

#include "desktop/canvas/FittedView.h"

namespace mirelle {

class FrmPicX;

class ColourChart : public FittedView {
    Q_OBJECT

public:
    ColourChart(FrmPicX& form, QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    FrmPicX& form_;
    bool pressed_ = false;
};

} // namespace mirelle
