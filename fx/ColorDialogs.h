// The five small buttons of cmdColorDialog: three colour pickers and the switches to the "Image FX" and
// "Gradient FX" panels. A right click on any of them brings the default colours back.
#pragma once

#include "forms/Picture.h"

namespace mirelle {

class FrmPicX;

class ColorDialogs {
public:
    explicit ColorDialogs(FrmPicX& form);

private:
    void Click(int index);
    void PickHairlineColor();
    void PickCanvasColor();
    void SwitchImageFX();
    void SwitchGradientFX();
    void PickGradientColor();
    void RestoreDefaultColors();
    bool ShowColor();

    FrmPicX& form_;
};

} // namespace mirelle
