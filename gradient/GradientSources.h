// What feeds the image gradient: a file in place of either picture, the swap buttons, the reset to the
// default picture.
#pragma once

#include "forms/Picture.h"

namespace mirelle {

class FrmPicX;
class PictureBox;

class GradientSources {
public:
    explicit GradientSources(FrmPicX& form);

private:
    void ToggleFileImage(int index);
    void RerunGradient();
    void SwapPictures();
    void Swap(int index);
    void Reset();

    FrmPicX& form_;
};

// The picture that the gradient begins with: a dusk sky, fading down.
Picture DefaultGradientPicture();

} // namespace mirelle
