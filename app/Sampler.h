// The program without a window: the form, and the handlers of every subject connected to it. The splash
// (app/Splash.h) is there before it.
#pragma once

#include "app/FrmPicX.h"
#include "app/Panels.h"
#include "app/UserManual.h"
#include "bridge/Bridge.h"
#include "canvas/Canvas.h"
#include "fx/ImageFX.h"
#include "gradient/Gradients.h"
#include "library/Library.h"

namespace mirelle {

class Sampler {
public:
    explicit Sampler(Ports ports);

    FrmPicX form;
    UserManual manual;

private:
    Panels panels_;
    Canvas canvas_;
    Library library_;
    Bridge bridge_;
    ImageFX imageFX_;
    Gradients gradients_;
};

} // namespace mirelle
