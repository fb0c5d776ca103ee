// The image gradient: fades the Gradient Image over the Canvas Image along one axis and makes the result the
// canvas.
#pragma once

#include "forms/Picture.h"

namespace mirelle {

class FrmPicX;
class PictureBox;

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
};

// Paints the picture over the whole box, stretched, and makes that the box's picture.
void StretchToFit(PictureBox& target, const Picture& picture);

} // namespace mirelle
