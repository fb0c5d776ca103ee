// The point effects of the "Image FX" panel and its three colour sliders: they change the picture on the
// canvas as it stands, so they add up, and each is retained at once. At its first error a handler ends
// without a word.
#pragma once

#include "fx/PointFX.h"

namespace mirelle {

class FrmPicX;

class PointEffects {
public:
    explicit PointEffects(FrmPicX& form);

private:
    void Run(PointEffect effect, const PointArguments& arguments);
    void ShiftColors();

    FrmPicX& form_;
};

} // namespace mirelle
