// The leaner crop on PicImage itself, for whenever that box is shown, and ckUseFormCanvas, which makes what
// is drawn on the form the picture to sample from.
#pragma once

#include "forms/Event.h"

namespace mirelle {

class FrmPicX;

class PictureCanvasCrop {
public:
    explicit PictureCanvasCrop(FrmPicX& form);

private:
    void MouseDown(const MouseArgs& mouse);
    void MouseMove(const MouseArgs& mouse);
    void MouseUp();
    void UseFormCanvas();

    FrmPicX& form_;
};

} // namespace mirelle
