// A button of the Image FX panel. It shows the effect's drawing, or the initials of its name where it has
// none.
#pragma once

#include "desktop/look/IconButton.h"

namespace mirelle {

class Binder;
class CommandButton;

class EffectButton : public look::IconButton {
    Q_OBJECT

public:
    EffectButton(Binder& binder, CommandButton& control, QWidget* parent);
};

// "Blur More" gives "BM", "RGB>BGR" gives "BGR", "No Red" gives "NR".
QString InitialsOf(const QString& name);

} // namespace mirelle
