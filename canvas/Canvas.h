// The handlers of the canvas, the crop and the Material Image, connected to the form.
#pragma once

#include "canvas/MaterialPreview.h"
#include "canvas/OpenImage.h"
#include "canvas/Paste.h"
#include "canvas/PictureCanvasCrop.h"
#include "canvas/SamplingCrop.h"

namespace mirelle {

class Canvas {
public:
    explicit Canvas(FrmPicX& form)
        : open_(form), paste_(form), crop_(form), pictureCrop_(form), preview_(form) {}

private:
    OpenImage open_;
    Paste paste_;
    SamplingCrop crop_;
    PictureCanvasCrop pictureCrop_;
    MaterialPreview preview_;
};

} // namespace mirelle
