// The sampling crop on the form: a press starts it, moves draw its rectangle, the release copies the area
// under it from PicImage into the Material Image and proposes the next material name.
#pragma once

#include "forms/Event.h"

namespace mirelle {

class FrmPicX;
class PictureBox;

class SamplingCrop {
public:
    explicit SamplingCrop(FrmPicX& form);

private:
    void MouseDown(const MouseArgs& mouse);
    void MouseMove(const MouseArgs& mouse);
    void MouseUp();
    void Click();

    void ExitCrop();
    void StartCrop(const MouseArgs& mouse);
    void MarkFloorBar(const MouseArgs& mouse);
    void ShowClickCropOutline(const MouseArgs& mouse);
    void CopyCrop();
    void PaintCrop(PictureBox& box);

    FrmPicX& form_;
};

} // namespace mirelle
