// "SuperBatch Send": the list of files gathered from many folders.
#pragma once

#include "desktop/window/Panel.h"

namespace mirelle {

class SuperBatchPanel : public Panel {
    Q_OBJECT

public:
    SuperBatchPanel(Binder& binder, QWidget* parent);
};

} // namespace mirelle
