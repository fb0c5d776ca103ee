// The handlers of image FX, undo and the colour dialogs, connected to the form.
#pragma once

#include "fx/ColorDialogs.h"
#include "fx/ContrastEffect.h"
#include "fx/KernelEffects.h"
#include "fx/PointEffects.h"
#include "fx/UndoAndRetain.h"

namespace mirelle {

class ImageFX {
public:
    explicit ImageFX(FrmPicX& form)
        : kernels_(form), points_(form), contrast_(form), undo_(form), dialogs_(form) {}

private:
    KernelEffects kernels_;
    PointEffects points_;
    ContrastEffect contrast_;
    UndoAndRetain undo_;
    ColorDialogs dialogs_;
};

} // namespace mirelle
