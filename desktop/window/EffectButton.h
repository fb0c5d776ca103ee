// A button of the Image FX panel. It shows a sample picture as its effect changes it.
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

} // namespace mirelle
