// "Gradient FX": fading one picture over another, and the two-colour gradient of the form.
#pragma once

#include "desktop/window/Panel.h"

namespace mirelle {

class GradientPanel : public Panel {
    Q_OBJECT

public:
    GradientPanel(Binder& binder, QWidget* parent);

private:
    QLayout* Pictures(Parts& parts);
    QLayout* Fade(Parts& parts);
    QWidget* FormGradient(Parts& parts);
};

} // namespace mirelle
