// "Materials Images": the material's name, the increment counter, and Fast Save.
#pragma once

#include "desktop/window/Parts.h"

#include <QWidget>

namespace mirelle {

class NamePanel : public QWidget {
    Q_OBJECT

public:
    NamePanel(Binder& binder, QWidget* parent);
};

} // namespace mirelle
