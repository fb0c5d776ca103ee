// "Pixel Sampler for SketchUp Color": the colour chart, the colour under the pointer, and the ten slots.
#pragma once

#include "desktop/window/Parts.h"

#include <QWidget>

class QGridLayout;

namespace mirelle {

class PalettePanel : public QWidget {
    Q_OBJECT

public:
    PalettePanel(Binder& binder, QWidget* parent);

private:
    QLayout* Head(Parts& parts);
    QLayout* ChartAndPreview(Parts& parts);
    QLayout* Slots(Parts& parts);
    QLayout* Switches(Parts& parts);

    QLabel* caption_ = nullptr;
};

} // namespace mirelle
