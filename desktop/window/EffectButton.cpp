#include "desktop/window/EffectButton.h"

#include "desktop/binding/Binder.h"
#include "desktop/look/Tokens.h"
#include "desktop/window/EffectIcon.h"

namespace mirelle {

EffectButton::EffectButton(Binder& binder, CommandButton& control, QWidget* parent)
    : look::IconButton({}, parent) {
    setIcon(EffectIcon(control.FullName()));
    setIconSize(QSize(look::kEffectPicture, look::kEffectPicture));
    binder.Button(control, *this);
}

} // namespace mirelle
