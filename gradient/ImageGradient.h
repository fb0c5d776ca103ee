// The image gradient: fades the Gradient Image over the Canvas Image along one axis and makes the result the
// canvas.
#pragma once

#include "gradient/StretchToFit.h"

namespace mirelle {

class FrmPicX;

class ImageGradient {
public:
    explicit ImageGradient(FrmPicX& form);

private:
    void StartGradient(int index);
    void TakeDirection();
    void RestorePictures();
    void ShowGradient();
    void DrawGradient();

    FrmPicX& form_;
    StretchToFit stretchToFit_;
};

} // namespace mirelle
