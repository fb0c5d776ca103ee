// The column at the right edge: sends to SketchUp, their size, and what concerns the window as a whole.
#pragma once

#include "desktop/window/Panel.h"

namespace mirelle {

class SendPanel : public Panel {
    Q_OBJECT

public:
    SendPanel(Binder& binder, QWidget* parent);

private:
    void AddDivider();
};

} // namespace mirelle
