// "Image FX": the strip of effects, the channel sliders, and what keeps and undoes.
#pragma once

#include "desktop/window/Panel.h"

namespace mirelle {

class ImageFXPanel : public Panel {
    Q_OBJECT

public:
    ImageFXPanel(Binder& binder, QWidget* parent);

private:
    QLayout* Effects(Binder& binder);
    QLayout* Sliders(Parts& parts);
    QWidget* Keeping(Parts& parts);
    QLayout* Previews(Parts& parts);
};

} // namespace mirelle
