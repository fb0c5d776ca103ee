// A plain area in the colour that the program gives a control. The colour that all controls start with leaves
// the ground to the look.
#pragma once

#include "forms/Control.h"

#include <QRgb>
#include <QWidget>

namespace mirelle {

class Ground : public QWidget {
    Q_OBJECT

public:
    Ground(Control& control, QRgb otherwise, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Control& control_;
    QRgb otherwise_;
};

} // namespace mirelle
